#pragma once

#include "apps/planner/core/PlanSums.h"

#include <VornCommon.h>

#include <functional>

namespace vorn::planner
{

/// What the planner's dialogs work on. Lives as long as any of them.
struct PlannerData
{
    Plan plan;
    std::vector<Place> places; ///< that a route can lead over

    /// Brings a position into the middle of the chart.
    std::function<void(const LatLon&)> showOnChart;
    /// Called after a dialog has changed the plan.
    std::function<void()> changed;

    /// Takes the plan from the host's settings; what is not there stays.
    void Load();
    /// Writes the plan into the host's settings and tells of the change.
    void Store() const;

    std::vector<Leg> Legs() const;
};

/// A switch of the planner in the host's settings.
bool ReadSwitch(const char* key, bool defaultValue);
void WriteSwitch(const char* key, bool value);

// The switches.
inline constexpr const char* kWarns = "Warning";           ///< the planner says first what it is not for
inline constexpr const char* kPositionTip = "PositionTip"; ///< a note follows the pointer over the chart

} // namespace vorn::planner
