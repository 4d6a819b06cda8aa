#pragma once

/// Marks what the platform library `KVPlatform` offers to the module and to hosts. Everything else stays hidden.
#if defined(_WIN32)
#if defined(KVPLATFORM_BUILD)
#define KORVEX_PLATFORM_API __declspec(dllexport)
#else
#define KORVEX_PLATFORM_API __declspec(dllimport)
#endif
#else
#define KORVEX_PLATFORM_API __attribute__((visibility("default")))
#endif
