#pragma once

#include <windows.h>

#include <string>

namespace vorn::test
{

/// Saves what a shown window looks like now, frame included, as a 24-bit BMP file.
bool SaveWindowPicture(HWND window, const std::string& path);

} // namespace vorn::test
