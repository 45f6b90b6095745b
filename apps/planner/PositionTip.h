#pragma once

#include <VornCommon.h>

#include <string>

namespace vorn::planner
{

/// A small note that follows the pointer over a window.
class PositionTip
{
public:
    /// Shows the text beside a point of the screen.
    void Show(CWnd& window, const std::string& text, CPoint point);
    void Hide(CWnd& window);

    /// The note's window; null before it was shown first.
    HWND Window() const;

private:
    TrackingToolTip m_tip;
};

} // namespace vorn::planner
