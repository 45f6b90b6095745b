#pragma once

#include <windows.h>

#include <vector>

namespace vorn
{

/// Mini frames with a permanent object on this thread that are owned by a window.
std::vector<HWND> MiniFramesOf(HWND owner);

/// Gives the captions of a window and of those of its mini frames that follow it one look: active when a window of
/// this family is.
/// @param active whether a window of the family is being activated, else one of them loses the activation to @p other
void SyncCaptions(HWND owner, bool active, HWND other);

} // namespace vorn
