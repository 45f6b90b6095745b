#pragma once

#include "apps/planner/PlannerDialog.h"
#include "apps/planner/Refusal.h"

namespace vorn::planner
{

/// Brings a position or a place into the middle of the chart.
class GotoDialog : public PlannerDialog
{
public:
    GotoDialog(PlannerData& data, CWnd* parent);

protected:
    void Fill() override;
    void Arrange(Form& form) override;
    bool Take() override;
    void Keep() override;
    std::span<const Tip> Tips() const override;

    afx_msg void OnPositionTyped();
    afx_msg void OnPlaceTyped();
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    void ShowChosen();
    bool ByPosition();
    bool ByPlace();
    void Refuse(UINT id, const std::string& why);

    HotEdit m_latitude;
    HotEdit m_longitude;
    CComboBox m_place;
    Refusal m_refusal;
    bool m_filled = false;
};

} // namespace vorn::planner
