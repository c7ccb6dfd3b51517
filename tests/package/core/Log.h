// The provider's own header, at a path that the library has too: neither may stand in for the other's.
#pragma once

#define PROVIDER_LOG 1
