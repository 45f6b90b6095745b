#pragma once

#include "frame/core/Export.h"
#include "framework/core/BaseTypes.h"
#include "framework/core/CString.h"

/// "red,green,blue" in decimal, without the top byte: "255,128,0".
VORNCOMMON_API CString ColorToString(COLORREF c);

/// The palette-relative colour of such a text, with blanks around it or not. A component is the low byte of the number
/// that its part begins with (0 without digits). One comma gives red alone; no comma gives black.
VORNCOMMON_API COLORREF StringToColor(const CString& s);
