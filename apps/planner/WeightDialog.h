#pragma once

#include "apps/planner/CgGraph.h"
#include "apps/planner/PlannerDialog.h"

#include <array>

namespace vorn::planner
{

/// Who and what is on board, and what that makes of weight and balance. Everything is computed anew with each key.
class WeightDialog : public PlannerDialog
{
public:
    WeightDialog(PlannerData& data, CWnd* parent);

protected:
    void Fill() override;
    void Arrange(Form& form) override;
    bool Take() override;
    std::span<const Tip> Tips() const override;

    afx_msg void OnNumber(UINT id);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    DECLARE_MESSAGE_MAP()

private:
    Plan Typed() const;
    void ShowSums();

    HotEdit m_name;
    std::array<FloatEdit, kStations> m_weights;
    std::array<FloatEdit, kStations> m_arms;
    CgGraph m_graph;
    std::string m_fault;
    bool m_filled = false;
};

} // namespace vorn::planner
