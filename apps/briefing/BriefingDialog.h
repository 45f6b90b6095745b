#pragma once

#include "apps/briefing/Briefing.h"

/// The program's window: a list of what the briefing has, and a button that takes the sample's units over.
class BriefingDialog : public LayoutManagement::LayoutDialog
{
public:
    explicit BriefingDialog(Currency currency);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void OnTakeOver();
    afx_msg void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    void AddColumns();
    void FitColumns();
    void Fill();

    Currency m_currency;
    CListCtrl m_list;
    vorn::WindowIcons m_icons;
};
