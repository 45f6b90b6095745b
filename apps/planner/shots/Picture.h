#pragma once

#include <VornCommon.h>

#include <string>
#include <vector>

namespace vorn::planner
{

/// Whether nothing of a window lies beyond the screen, where its picture would show nothing.
bool IsWholeOnScreen(HWND window);

/// Makes `picture` what shown windows look like now, frames included, in their places: the later ones lie on top. What
/// none of them covers is grey. False when there is nothing to see.
bool TakePicture(const std::vector<HWND>& windows, DIB& picture);

/// Writes all PNG pictures of a folder, but an earlier contact sheet, as small ones with their names into contact.png
/// there. False when there is none, or it cannot be written.
bool WriteContactSheet(const std::string& folder);

} // namespace vorn::planner
