#pragma once

#include "apps/planner/core/PlanSums.h"

#include <VornCommon.h>

namespace vorn::planner
{

/// The envelope of the aircraft with the loads of takeoff and landing, drawn into a control of style SS_OWNERDRAW.
class CgGraph : public CStatic
{
public:
    void Show(const LoadingSums& sums);

    void DrawItem(LPDRAWITEMSTRUCT item) override;

private:
    CPoint At(const CRect& area, double arm, double weight) const;
    void DrawEnvelope(CDC& dc, const CRect& area) const;
    void DrawScale(CDC& dc, const CRect& area) const;
    void DrawLoad(CDC& dc, const CRect& area, const Load& load, bool isTakeoff) const;

    LoadingSums m_sums;
};

} // namespace vorn::planner
