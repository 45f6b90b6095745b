#pragma once

#include "framework/include/afxext.h"

#include <gtest/gtest.h>

/// A shown frame without menu whose client area has the given size.
CFrameWnd* ShowHostFrame(int width, int height);

/// Sizes the client area of a frame.
void SizeClient(CWnd& frame, int width, int height);

/// The size of a window's client area.
CSize ClientSize(const CWnd& window);

/// Where a window stands in its parent's client area.
CRect PlaceInParent(HWND window);
