#pragma once

#include <VornCommon.h>

/// Writes what a shown window looks like, frame and caption included, as a PNG file.
/// @return false when the file cannot be written or the window has no area
bool SaveSnapshot(CWnd& window, const char* fileName);
