#include "toolkit/tooltips/ToolTipPropertyPage.h"

IMPLEMENT_DYNAMIC(ToolTipPropertyPage, CPropertyPage)

BEGIN_MESSAGE_MAP(ToolTipPropertyPage, CPropertyPage)
ON_WM_DESTROY()
END_MESSAGE_MAP()

ToolTipPropertyPage::ToolTipPropertyPage() : m_tips(*this)
{
}

ToolTipPropertyPage::ToolTipPropertyPage(UINT templateId, UINT captionId)
    : CPropertyPage(templateId, captionId), m_tips(*this)
{
}

ToolTipPropertyPage::ToolTipPropertyPage(LPCTSTR templateName, UINT captionId)
    : CPropertyPage(templateName, captionId), m_tips(*this)
{
}

ToolTipPropertyPage::~ToolTipPropertyPage() = default;

bool ToolTipPropertyPage::InitTips()
{
    return m_tips.Init();
}

void ToolTipPropertyPage::AddTips(const UINT* ctrlIds, const UINT* textIds, int count)
{
    m_tips.Add(ctrlIds, textIds, count);
}

void ToolTipPropertyPage::AddTips(const UINT* idPairs, int count)
{
    m_tips.Add(idPairs, count);
}

void ToolTipPropertyPage::EnableMultiLineToolTips(BOOL bEnable)
{
    m_tips.BreakLines(bEnable != FALSE);
}

ToolTipCtrlEx& ToolTipPropertyPage::GetToolTipCtrl()
{
    return m_tips.Control();
}

BOOL ToolTipPropertyPage::OnInitDialog()
{
    const BOOL result = CPropertyPage::OnInitDialog();
    InitTips();
    return result;
}

BOOL ToolTipPropertyPage::PreTranslateMessage(MSG* message)
{
    m_tips.Relay(message);
    return CPropertyPage::PreTranslateMessage(message);
}

void ToolTipPropertyPage::OnDestroy()
{
    m_tips.End();
    CPropertyPage::OnDestroy();
}
