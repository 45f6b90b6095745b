#pragma once

#include "framework/include/afxwin.h"

namespace vorn::test
{

/// In pixels.
CSize SizeOfIcon(HICON icon);

/// Whether a window has the test program's own icon, 128, in the large and in the small size, pixel by pixel.
bool HasHostIcons(const CWnd& window);

} // namespace vorn::test
