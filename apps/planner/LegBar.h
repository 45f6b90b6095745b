#pragma once

#include "apps/planner/PlannerData.h"

namespace vorn::planner
{

/// The legs of the flight in a bar that docks, floats and is sized by its edge.
class LegBar : public ResizableDialogBar
{
public:
    explicit LegBar(PlannerData& data);

    /// @param frame has docking enabled
    bool Open(CFrameWnd& frame, UINT id);
    /// Takes the plan anew.
    void Refresh();

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnShow();
    afx_msg void OnUpdateShow(CCmdUI* item);
    afx_msg void OnUpdateRoute(CCmdUI* item);
    afx_msg void OnRoute();
    DECLARE_MESSAGE_MAP()

private:
    PlannerData& m_data;
    CListBox m_legs;
};

} // namespace vorn::planner
