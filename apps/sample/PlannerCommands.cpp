#include "apps/sample/PlannerCommands.h"

#include "apps/chart/core/ChartData.h"
#include "apps/planner/FlightLog.h"
#include "apps/planner/FuelDialog.h"
#include "apps/planner/GotoDialog.h"
#include "apps/planner/LinksDialog.h"
#include "apps/planner/NewFlightWizard.h"
#include "apps/planner/PreferencesSheet.h"
#include "apps/planner/PrintDialog.h"
#include "apps/planner/RouteDialog.h"
#include "apps/planner/Warning.h"
#include "apps/planner/WeightDialog.h"
#include "apps/planner/resource.h"
#include "apps/sample/MainFrame.h"
#include "apps/sample/PageView.h"
#include "apps/sample/pages/ChartPage.h"

using namespace vorn::planner;

namespace
{

std::vector<Place> PlacesOf(const vorn::chart::ChartData& chart)
{
    std::vector<Place> places;
    for (const vorn::chart::Aerodrome& aerodrome : chart.aerodromes)
        places.push_back({aerodrome.ident, aerodrome.name, aerodrome.position});
    for (const vorn::chart::Aid& aid : chart.aids)
        places.push_back({aid.ident, aid.name, aid.position});
    return places;
}

template <class Dialog>
void Open(PlannerData& data, CWnd& frame)
{
    ShowWarningOnce(&frame);
    Dialog(data, &frame).DoModal();
}

} // namespace

PlannerCommands::PlannerCommands(MainFrame& frame) : m_frame(frame)
{
}

PlannerData& PlannerCommands::Data()
{
    Load();
    return m_data;
}

PlannerData& PlannerCommands::Plan()
{
    return m_data;
}

void PlannerCommands::Load()
{
    if (m_loaded)
        return;
    m_loaded = true;
    vorn::chart::ChartData chart;
    vorn::chart::ReadChartData(vorn::chart::Chart::OwnFolder(), chart);
    m_data.places = PlacesOf(chart);
    m_data.showOnChart = [this](const LatLon& position)
    {
        ShowOnChart(position);
    };
    m_data.changed = [this]
    {
        Refresh();
    };
    m_data.Load();
    m_frame.Legs().Refresh();
}

void PlannerCommands::Refresh()
{
    if (const FlightLogFrame* const log = Log())
        log->View().Refresh();
    m_frame.Legs().Refresh();
}

void PlannerCommands::ShowOnChart(const LatLon& position)
{
    PageView& view = *m_frame.View();
    view.ShowPage("Chart");
    if (auto* const chart = dynamic_cast<ChartPage*>(view.Pages()[view.CurrentPage()].get()))
        chart->CenterOn(position);
}

void PlannerCommands::Update(CCmdUI& item)
{
    item.Enable();
    if (item.m_nID == ID_PLANNER_LEG_BAR)
        item.SetCheck(m_frame.Legs().IsWindowVisible() ? 1 : 0);
}

/// One window, which comes to the front when it is there.
void PlannerCommands::OpenLog()
{
    if (FlightLogFrame* const open = Log())
        return open->ActivateFrame();
    auto* const log = new FlightLogFrame(Data()); // deletes itself with its window
    if (log->Open(m_frame))
        m_log = log->m_hWnd;
}

FlightLogFrame* PlannerCommands::Log() const
{
    return IsWindow(m_log) ? dynamic_cast<FlightLogFrame*>(CWnd::FromHandlePermanent(m_log)) : nullptr;
}

void PlannerCommands::Run(UINT command)
{
    switch (command)
    {
    case ID_PLANNER_ROUTE:
        return Open<RouteDialog>(Data(), m_frame);
    case ID_PLANNER_WEIGHT:
        return Open<WeightDialog>(Data(), m_frame);
    case ID_PLANNER_FUEL:
        return Open<FuelDialog>(Data(), m_frame);
    case ID_PLANNER_PRINT:
        return Open<PrintDialog>(Data(), m_frame);
    case ID_PLANNER_GOTO:
        return Open<GotoDialog>(Data(), m_frame);
    case ID_PLANNER_LINKS:
        return Open<LinksDialog>(Data(), m_frame);
    case ID_PLANNER_PREFERENCES:
        PreferencesSheet(&m_frame,
                         [this]
                         {
                             m_frame.View()->RefreshPage();
                         })
            .DoModal();
        return;
    case ID_PLANNER_NEW:
        ShowWarningOnce(&m_frame);
        NewFlightWizard(Data(), &m_frame).Run();
        return;
    case ID_PLANNER_LOG:
        return OpenLog();
    case ID_PLANNER_LEG_BAR:
        Load();
        return m_frame.ShowControlBar(&m_frame.Legs(), !m_frame.Legs().IsWindowVisible(), FALSE);
    case ID_PLANNER_WARNING:
        return ShowWarning(&m_frame);
    default:
        return;
    }
}
