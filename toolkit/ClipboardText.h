#pragma once

#include "framework/include/afxwin.h"

namespace vorn
{

/// The text on the clipboard. A clipboard that another program holds is asked again a few times.
/// @return false when there is none, or it cannot be had.
bool GetClipboardText(const CWnd& owner, CString& text);

} // namespace vorn
