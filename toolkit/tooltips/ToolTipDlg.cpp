#include "toolkit/tooltips/ToolTipDlg.h"

IMPLEMENT_DYNAMIC(ToolTipDlg, IconDlg)

BEGIN_MESSAGE_MAP(ToolTipDlg, IconDlg)
ON_WM_DESTROY()
END_MESSAGE_MAP()

ToolTipDlg::ToolTipDlg() : m_tips(*this)
{
}

ToolTipDlg::ToolTipDlg(UINT id, CWnd* parent) : IconDlg(id, parent), m_tips(*this)
{
}

ToolTipDlg::ToolTipDlg(LPCSTR name, CWnd* parent) : IconDlg(name, parent), m_tips(*this)
{
}

ToolTipDlg::~ToolTipDlg() = default;

bool ToolTipDlg::InitTips()
{
    return m_tips.Init();
}

void ToolTipDlg::AddTips(const UINT* ctrlIds, const UINT* textIds, int count)
{
    m_tips.Add(ctrlIds, textIds, count);
}

void ToolTipDlg::AddTips(const UINT* idPairs, int count)
{
    m_tips.Add(idPairs, count);
}

void ToolTipDlg::EnableMultiLineToolTips(BOOL bEnable)
{
    m_tips.BreakLines(bEnable != FALSE);
}

ToolTipCtrlEx& ToolTipDlg::GetToolTipCtrl()
{
    return m_tips.Control();
}

BOOL ToolTipDlg::OnInitDialog()
{
    const BOOL result = IconDlg::OnInitDialog();
    InitTips();
    return result;
}

BOOL ToolTipDlg::PreTranslateMessage(MSG* message)
{
    m_tips.Relay(message);
    return IconDlg::PreTranslateMessage(message);
}

void ToolTipDlg::OnDestroy()
{
    m_tips.End();
    IconDlg::OnDestroy();
}
