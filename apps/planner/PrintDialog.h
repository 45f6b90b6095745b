#pragma once

#include "apps/planner/PlannerDialog.h"

#include <array>

namespace vorn::planner
{

/// What is printed of a flight, and on which paper.
class PrintDialog : public PlannerDialog
{
public:
    PrintDialog(PlannerData& data, CWnd* parent);

protected:
    void Fill() override;
    void Arrange(Form& form) override;
    bool Take() override;
    std::span<const Tip> Tips() const override;

private:
    std::array<FloatEdit, 4> m_margins;
    CSpinButtonCtrl m_copies;
};

} // namespace vorn::planner
