#pragma once

#include "config/core/PathKinds.h"
#include "frame/core/Export.h"

/// The setting by which a folder of the family can be moved. Both texts are null for a folder without one; they are
/// constants of the library.
struct DefinedPathSetting
{
    const char* section;
    const char* key;
};

/// Which setting moves `path` in a layout (PCV_LEGACY or PCV_VISTA). Paths outside the table and other layouts have
/// none.
VORNCOMMON_API DefinedPathSetting GetDefinedPathSetting(DefinedPath path, PathCfgVer layout);
