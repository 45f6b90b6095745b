#include "apps/planner/PositionTip.h"

namespace vorn::planner
{

namespace
{

constexpr int kRightOfPointer = 16; // pixels
constexpr int kBelowPointer = 20;

} // namespace

void PositionTip::Show(CWnd& window, const std::string& text, CPoint point)
{
    if (m_tip.m_hWnd == nullptr)
    {
        if (!m_tip.Create(&window))
            return;
        m_tip.AddTool(&window, true, text.c_str());
    }
    m_tip.UpdateTipText(text.c_str(), &window);
    m_tip.TrackTip(point.x + kRightOfPointer, point.y + kBelowPointer);
    if (!m_tip.IsTrackActive())
        m_tip.ActivateTip(&window, true);
}

void PositionTip::Hide(CWnd& window)
{
    if (m_tip.m_hWnd != nullptr && m_tip.IsTrackActive())
        m_tip.ActivateTip(&window, false);
}

HWND PositionTip::Window() const
{
    return m_tip.m_hWnd;
}

} // namespace vorn::planner
