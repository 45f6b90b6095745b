#pragma once

#include "frame/core/Export.h"

#include <windows.h>

/// Version of a library by its own account: its exported "DllGetVersion". The major version stands in the high 16 bits,
/// the minor in the low ones. 0 when the library does not load, has no such export or reports a failure. The library is
/// freed again.
VORNCOMMON_API DWORD GetDllVersion(const char* dllName);

/// Whether the system is of the NT family.
VORNCOMMON_API bool IsNT();

/// Whether the system's version is above 6.0. (A program that does not declare what it is made for is told 6.2 by every
/// later system.)
VORNCOMMON_API bool IsWindows7OrLater();
