#pragma once

/// @file
/// Texts of controls, by handle.
#include "framework/core/CString.h"

#include <windows.h>

namespace vorn
{
/// The whole text of a control.
CString ControlText(HWND control);
/// Sets a control's text unless it is there already: no flicker, no notification for nothing.
void SetControlText(HWND control, const char* text);
/// Selects the text of an edit box or of a combo box's field.
void SelectControlText(HWND control);
/// Whether the control is a combo box.
bool IsComboBox(HWND control);
} // namespace vorn
