#pragma once

#include "apps/planner/PlannerDialog.h"

namespace vorn::planner
{

/// Where the flight leads: its ends, the places between, how it is routed and what it keeps away from.
class RouteDialog : public PlannerDialog
{
public:
    RouteDialog(PlannerData& data, CWnd* parent);

protected:
    void Fill() override;
    void Arrange(Form& form) override;
    bool Take() override;
    std::span<const Tip> Tips() const override;

    afx_msg void OnSwap();
    afx_msg void OnAdd();
    afx_msg void OnRemove();
    afx_msg void OnUp();
    afx_msg void OnDown();
    afx_msg void OnPlacesChanged();
    afx_msg void OnEndChosen();
    afx_msg void OnTab(NMHDR* header, LRESULT* result);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    DECLARE_MESSAGE_MAP()

private:
    bool IsOnTab(int id) const;
    void TakeTabColor();
    std::string Via() const;
    Plan Typed() const;
    void MoveSelected(int by);
    void ShowTab();
    void ShowTotal(const Plan& plan);

    CComboBox m_from;
    CComboBox m_to;
    CComboBox m_place;
    CListBox m_via;
    CTabCtrl m_tab;
    FloatEdit m_longest;
    CBrush m_tabBrush; ///< of the body of the tab control
    COLORREF m_tabColor = CLR_INVALID;
};

} // namespace vorn::planner
