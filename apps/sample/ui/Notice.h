#pragma once

#include "apps/sample/core/ReportTable.h"
#include "apps/sample/ui/Theme.h"

/// A line of words about what has just happened, in the colour of good or bad news. Screen readers and tests read it as
/// any other text.
class Notice : public CStatic
{
public:
    enum class News
    {
        Plain,
        Good,
        Bad,
    };

    BOOL Create(CWnd& view, UINT id);
    void SetTheme(const Theme& theme);
    void Say(const std::string& words, News news);

protected:
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    const Theme* m_theme = nullptr;
    News m_news = News::Plain;
};
