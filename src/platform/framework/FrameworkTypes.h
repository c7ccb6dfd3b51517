// The application framework's types, thin over the standard library, with the operations that this system and a
// typical service provider use.
#pragma once

#include "platform/base/WinTypes.h"
#include "platform/framework/Array.h"
#include "platform/framework/InvalidArgException.h"
#include "platform/framework/Map.h"
#include "platform/framework/Mutex.h"
#include "platform/framework/String.h"
