#pragma once

/// Marks what the module library `KVSubtitles` offers to hosts. Everything else stays hidden.
#if defined(_WIN32)
#if defined(KVSUBTITLES_BUILD)
#define KVSUBTITLES_API __declspec(dllexport)
#else
#define KVSUBTITLES_API __declspec(dllimport)
#endif
#else
#define KVSUBTITLES_API __attribute__((visibility("default")))
#endif
