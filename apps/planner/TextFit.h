#pragma once

#include <VornCommon.h>

#include <optional>

namespace vorn::planner
{

/// What the text of a label, button, check box or group box needs in the control's font: the whole control's size. A
/// label of two lines and more needs the height of its text at its present width. Nothing for a control that has no
/// text, or whose text may be cut or scrolled.
std::optional<CSize> SizeForText(HWND control);

/// Gives the labels, buttons and check boxes of a window the size of their texts; buttons are not made smaller, and
/// labels of two lines and more keep their width.
void FitTexts(CWnd& window);

/// Whether a label breaks its text into lines: it is high enough for two.
bool IsOfSeveralLines(HWND label);

} // namespace vorn::planner
