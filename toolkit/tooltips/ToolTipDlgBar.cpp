#include "toolkit/tooltips/ToolTipDlgBar.h"

IMPLEMENT_DYNAMIC(ToolTipDlgBar, CDialogBar)

BEGIN_MESSAGE_MAP(ToolTipDlgBar, CDialogBar)
ON_WM_DESTROY()
END_MESSAGE_MAP()

ToolTipDlgBar::ToolTipDlgBar() : m_tips(*this)
{
}

ToolTipDlgBar::~ToolTipDlgBar() = default;

bool ToolTipDlgBar::InitTips()
{
    return m_tips.Init();
}

void ToolTipDlgBar::AddTips(const UINT* ctrlIds, const UINT* textIds, int count)
{
    m_tips.Add(ctrlIds, textIds, count);
}

void ToolTipDlgBar::AddTips(const UINT* idPairs, int count)
{
    m_tips.Add(idPairs, count);
}

void ToolTipDlgBar::EnableMultiLineToolTips(BOOL bEnable)
{
    m_tips.BreakLines(bEnable != FALSE);
}

ToolTipCtrlEx& ToolTipDlgBar::GetToolTipCtrl()
{
    return m_tips.Control();
}

void ToolTipDlgBar::UpdateToolRects()
{
    m_tips.UpdateRects();
}

BOOL ToolTipDlgBar::PreTranslateMessage(MSG* message)
{
    m_tips.Relay(message);
    return CDialogBar::PreTranslateMessage(message);
}

void ToolTipDlgBar::OnDestroy()
{
    m_tips.End();
    CDialogBar::OnDestroy();
}
