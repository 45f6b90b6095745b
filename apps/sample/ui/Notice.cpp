#include "apps/sample/ui/Notice.h"

BEGIN_MESSAGE_MAP(Notice, CStatic)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

BOOL Notice::Create(CWnd& view, UINT id)
{
    return CStatic::Create("", WS_CHILD | SS_LEFT | SS_NOPREFIX | SS_ENDELLIPSIS | SS_CENTERIMAGE, CRect(), &view, id);
}

void Notice::SetTheme(const Theme& theme)
{
    m_theme = &theme;
    SetFont(const_cast<CFont*>(&theme.body), FALSE);
}

void Notice::Say(const std::string& words, News news)
{
    m_news = news;
    SetWindowText(words.c_str());
    Invalidate();
}

HBRUSH Notice::CtlColor(CDC* dc, UINT)
{
    if (m_theme == nullptr)
        return nullptr;
    dc->SetTextColor(m_news == News::Bad ? m_theme->bad : m_news == News::Good ? m_theme->good : m_theme->muted);
    dc->SetBkColor(m_theme->window);
    return m_theme->windowBrush;
}
