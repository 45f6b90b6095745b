#pragma once

#include "apps/chart/Chart.h"
#include "apps/planner/PositionTip.h"
#include "apps/sample/pages/Page.h"
#include "apps/sample/ui/ChartWnd.h"

#include <array>

/// The chart of the sample's region: aids, aerodromes and a route, in a projection of choice, by day and night. The
/// view is kept in the settings and comes back at the next start.
class ChartPage : public Page
{
public:
    ChartPage();

    const char* Name() const override;
    void Refresh() override;
    int HeightFor(int width, const Theme& theme) const override;
    void Paint(CDC& dc, const CRect& area, const Theme& theme) const override;
    void Print(CDC& dc, const CRect& area, const Theme& theme) const override;
    std::string Summary() const override;
    std::string TakeOptions(const StartOptions& options) override;
    bool FillsWindow() const override;
    void Activate(CWnd& view, bool active) override;
    void PlaceControls(const CRect& area, const Theme& theme) override;
    bool OnControl(UINT id, UINT code) override;
    bool OnKey(UINT key, CWnd* control) override;
    CWnd* FirstControl() override;
    bool OwnsCommand(UINT command) const override;
    bool CanRun(UINT command) const override;
    bool IsChecked(UINT command) const override;
    void Run(UINT command) override;
    void Leave() override;

    /// Brings a position into the middle of the chart.
    void CenterOn(const LatLon& position);
    LatLon Center() const;

private:
    static constexpr std::size_t kButtons = 5;

    struct Places
    {
        CRect title;
        CRect projection;
        std::array<CRect, kButtons> buttons;
        CRect chart;
    };

    Places PlacesIn(const CRect& area, const Theme& theme) const;
    void CreateControls(CWnd& view);
    std::vector<CWnd*> Controls();
    void Load();
    void ShowStored();
    void KeepView();
    void ChooseProjection(int number);
    void ToggleNight();
    void Export();
    void ShowPosition();
    void ShowPositionTip(const std::optional<LatLon>& position);
    void ShowState();

    mutable vorn::chart::Chart m_chart; // painting places its labels
    std::string m_missing;              // tables that could not be opened
    std::string m_viewWish;             // of the command line
    bool m_loaded = false;
    bool m_keeps = true;   // a user leaves the view, which comes back
    bool m_placed = false; // the chart has a size and a view
    CWnd* m_view = nullptr;
    ChartWnd m_window;
    vorn::planner::PositionTip m_tip;
    CComboBox m_projection;
    std::array<CButton, kButtons> m_buttons;
};
