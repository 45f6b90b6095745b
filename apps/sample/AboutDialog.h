#pragma once

#include <VornCommon.h>

/// Names the sample, the libraries that it stands on, and their versions; links lead to the family's page and to the
/// licences where they are installed.
class AboutDialog : public ToolTipDlg
{
public:
    explicit AboutDialog(CWnd* parent);

protected:
    BOOL OnInitDialog() override;

private:
    void AddLinks();

    HyperLink m_page;
    HyperLink m_licences;
};
