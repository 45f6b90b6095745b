#pragma once

#include "frame/core/Export.h"

#include <windows.h>

class CFrameWnd;
class CWnd;

/// Reads a window's placement from the host's settings. A window that would stand above the screen or reach below it
/// comes back with its top at 50 and its height unchanged. False, with `placement` untouched, when nothing complete is
/// stored under `key`, or without a registered application.
VORNCOMMON_API bool ReadWindowPlacement(const char* section, const char* key, WINDOWPLACEMENT* placement);

/// Stores a window's placement in the host's settings, as ten decimal numbers. A failure is silent.
VORNCOMMON_API void WriteWindowPlacement(const char* section, const char* key, WINDOWPLACEMENT* placement);

/// Shows the main window for the first time: placed as stored under `key` and, if `barStateSection` is not empty, with
/// the control bars as stored there. A `showCommand` other than SW_SHOWNORMAL replaces the stored one. With nothing
/// stored, the window is just shown with `showCommand`.
VORNCOMMON_API void InitialShowMainFrame(CFrameWnd* frame, const char* section, const char* key,
                                         const char* barStateSection, UINT showCommand);

/// Shows a child window for the first time, placed and shown as stored under `key`, or else maximised.
VORNCOMMON_API void InitialShowChildFrame(CWnd* child, const char* section, const char* key);
