// The application framework's types, thin over the standard library, with the operations that this system and a
// typical service provider use.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/Array.h"
#include "wqspcfg/platform/framework/InvalidArgException.h"
#include "wqspcfg/platform/framework/Map.h"
#include "wqspcfg/platform/framework/Mutex.h"
#include "wqspcfg/platform/framework/String.h"
