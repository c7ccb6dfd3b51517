// Marks what the shared library offers. Everything else is hidden.
#pragma once

#if defined(WQSPCFG_STATIC)
#define WQSPCFG_API
#elif defined(_WIN32)
#if defined(WQSPCFG_BUILDING)
#define WQSPCFG_API __declspec(dllexport)
#else
#define WQSPCFG_API __declspec(dllimport)
#endif
#else
#define WQSPCFG_API __attribute__((visibility("default")))
#endif
