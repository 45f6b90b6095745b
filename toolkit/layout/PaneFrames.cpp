#include "framework/controls/CTabCtrl.h"
#include "toolkit/layout/LayoutDescription.h"
#include "toolkit/layout/Panes.h"

namespace LayoutManagement
{
namespace
{
HWND ParentOf(HWND window)
{
    return window != nullptr ? GetParent(window) : nullptr;
}
} // namespace

LayoutMgr::PaneCtrl::PaneCtrl(LayoutMgr* pMgr, HWND hWnd, Orientation orientation, ResizeMode modeResize,
                              int sizeSpacing, int sizeBorder, int sizeTopExtra, int sizeSecondary)
    : Pane(pMgr, orientation, modeResize, sizeSpacing, sizeBorder, sizeSecondary), m_hWnd(hWnd),
      m_sizeTopExtra(sizeTopExtra), m_hWndParent(ParentOf(hWnd))
{
}

HWND LayoutMgr::PaneCtrl::describeFrame(vorn::PaneSpec& shape, const LayoutDescription& description)
{
    shape.frame = vorn::PaneFrame::Box;
    shape.insets.top = m_sizeTopExtra;
    if (IsStillThere(m_hWnd, m_hWndParent))
    {
        shape.hasControl = true;
        shape.present = description.PlaceOf(m_hWnd);
    }
    return m_hWnd;
}

LayoutMgr::PaneTab::PaneTab(LayoutMgr* pMgr, CTabCtrl* pTab, Orientation orientation, ResizeMode modeResize,
                            int sizeSpacing, int sizeBorder, int sizeSecondary)
    : Pane(pMgr, orientation, modeResize, sizeSpacing, sizeBorder, sizeSecondary), m_pTab(pTab),
      m_hWndTab(pTab->GetSafeHwnd()), m_hWndParent(ParentOf(m_hWndTab))
{
}

HWND LayoutMgr::PaneTab::describeFrame(vorn::PaneSpec& shape, const LayoutDescription& description)
{
    if (!IsStillThere(m_hWndTab, m_hWndParent))
    {
        return nullptr;
    }
    RECT border{};
    SendMessageA(m_hWndTab, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&border));
    shape.frame = vorn::PaneFrame::Tab;
    shape.insets = {border.left, border.top, -border.right, -border.bottom};
    shape.hasControl = true;
    shape.isShownAlone = HasVisibleStyle(m_hWndTab);
    shape.present = description.PlaceOf(m_hWndTab);
    return m_hWndTab;
}

} // namespace LayoutManagement
