#pragma once

#include "frame/core/Export.h"

/// Whether there is a file or folder of this path, whose last part may hold "*" and "?". False for null and for an
/// empty text, and for a path that ends in a separator (so for a drive's root as well), as the system's search has it.
VORNCOMMON_API bool FileExists(const char* path);
