#pragma once

#include "frame/core/Export.h"

#include <windows.h>

/// Product version of a program of the family ("Aerolune", "VornView" or "Glasspad", whatever the case), as installed:
/// its folder is the value of `pathKey` in section "Paths" of the family's "Vornwald.ini" in the Windows folder, else
/// "SetupDir" of the same section, else "C:\Vornwald\".
///
/// @return 1 with the version in `major` and `minor`; 1 with both untouched for a null or empty product; 0 when there
/// is no such program or it has no readable version resource; -1 for every other product.
VORNCOMMON_API int GetProgramVersion(const char* product, const char* pathKey, int& major, int& minor);

/// Whether the installed siblings of a program are recent enough to work with it. Each flag is 0 when its sibling is
/// installed in too old a version and 1 otherwise. For "VornView" and "Glasspad" the first flag is the flight
/// planner's; for "Aerolune", the planner itself, it is the viewer's. For "Glasspad" the second flag is the viewer's,
/// else the moving map's. Major and minor version are compared each by itself.
///
/// @return whether both flags are 1; TRUE with both 1 for any other product
VORNCOMMON_API BOOL CheckRPCompatibility(const char* product, int& plannerOk, int& viewerOk);
