#include "apps/sample/ui/PageTips.h"

void PageTips::TakeControlsOf(CWnd& view)
{
    if (m_tips.m_hWnd == nullptr && !m_tips.Create(&view))
        return;
    for (CWnd* child = view.GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
    {
        const UINT number = static_cast<UINT>(child->GetDlgCtrlID());
        TOOLINFOEX known;
        CString text;
        if (!m_tips.GetToolInfo(known, child) && text.LoadString(number))
            m_tips.AddTool(child, number);
    }
}

void PageTips::Relay(MSG& message)
{
    if (m_tips.m_hWnd != nullptr)
        m_tips.RelayEvent(&message);
}

void PageTips::Moved()
{
    if (m_tips.m_hWnd != nullptr)
        m_tips.UpdateTipRects();
}

ToolTipCtrlEx& PageTips::Window()
{
    return m_tips;
}
