#pragma once

/// Marks what the widget library `KVGui` offers to the module and to hosts.
#if defined(_WIN32)
#if defined(KVGUI_BUILD)
#define KORVEX_GUI_API __declspec(dllexport)
#else
#define KORVEX_GUI_API __declspec(dllimport)
#endif
#else
#define KORVEX_GUI_API __attribute__((visibility("default")))
#endif
