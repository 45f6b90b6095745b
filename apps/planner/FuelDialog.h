#pragma once

#include "apps/planner/PlannerDialog.h"

#include <array>

namespace vorn::planner
{

/// What the flight burns, what has to be left, where else it may end.
class FuelDialog : public PlannerDialog
{
public:
    FuelDialog(PlannerData& data, CWnd* parent);

    BOOL OnInitDialog() override;

protected:
    void Fill() override;
    void Arrange(Form& form) override;
    bool Take() override;
    std::span<const Tip> Tips() const override;

    afx_msg void OnChanged();
    afx_msg void OnNumber(UINT id);
    afx_msg void OnFull();
    afx_msg void OnPlaceChosen();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    DECLARE_MESSAGE_MAP()

private:
    Plan Typed() const;
    void ShowSums();
    void FillList(const FuelSums& sums);
    void SizeColumns();

    static constexpr std::size_t kFields = 6;
    std::array<FloatEdit, kFields> m_fields;
    CComboBox m_alternate;
    CComboBox m_second;
    CListCtrl m_list;
    bool m_lacks = false;
    bool m_filled = false;
};

} // namespace vorn::planner
