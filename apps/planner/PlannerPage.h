#pragma once

#include "apps/planner/Form.h"
#include "apps/planner/PlannerData.h"

namespace vorn::planner
{

/// A page of the planner's sheets: it fills its controls and lays them out when it is shown first.
class PlannerPage : public LayoutManagement::LayoutPropertyPage
{
public:
    explicit PlannerPage(UINT id);

    BOOL OnInitDialog() override;

protected:
    virtual void Fill() = 0;
    /// Declares the panes, from the root on.
    virtual void Arrange(Form& form) = 0;
    /// A change of any control can be applied.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    bool IsChecked(UINT id) const;
    void Check(UINT id, bool checked);

private:
    bool m_filled = false;
};

} // namespace vorn::planner
