#pragma once

#include "apps/planner/PlannerData.h"

#include <VornCommon.h>

class MainFrame;
namespace vorn::planner
{
class FlightLogFrame;
}

/// The commands of the Planner menu, and the plan that they work on.
class PlannerCommands
{
public:
    /// @param frame the owner of all that is opened; must outlive this
    explicit PlannerCommands(MainFrame& frame);

    void Run(UINT command);
    void Update(CCmdUI& item);
    /// Shows the plan anew in the windows that stay open.
    void Refresh();

    /// The plan with the region's places, read at the first use.
    vorn::planner::PlannerData& Data();
    /// The same object, as far as it has been read.
    vorn::planner::PlannerData& Plan();

private:
    void Load();
    void ShowOnChart(const LatLon& position);
    void OpenLog();
    vorn::planner::FlightLogFrame* Log() const;

    MainFrame& m_frame;
    vorn::planner::PlannerData m_data;
    bool m_loaded = false;
    HWND m_log = nullptr; // of the flight log while it is open
};
