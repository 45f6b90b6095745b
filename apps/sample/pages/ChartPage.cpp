#include "apps/sample/pages/ChartPage.h"

#include "apps/chart/ChartColors.h"
#include "apps/chart/core/ScaleBar.h"
#include "apps/planner/PlannerData.h"
#include "apps/sample/model/Messages.h"
#include "apps/sample/model/SavePicture.h"
#include "apps/sample/resource.h"

#include <algorithm>

namespace
{

// The stored view: section and key.
constexpr const char* kViews = "Views";
constexpr const char* kChart = "Chart";
constexpr const char* kNight = "Night";              // a state of the colours: by day, by night, at dusk
constexpr const char* kOldProjection = "Projection"; // a section without it has no view in the older form
constexpr int kNoProjection = -1;

constexpr double kZoomButton = 1.5;
constexpr double kPrinterMargin = 0.02; // of the sheet's width

/// An older release kept each field of a view by itself. Where its fields are still to be seen, in the file of its
/// settings, they would go before every view that is stored from now on.
void ForgetOldView()
{
    for (const char* const section : {kViews, kChart})
    {
        if (VornCommonApp::Inst()->GetSettingInt(section, kOldProjection, kNoProjection) != kNoProjection)
            VornCommonApp::Inst()->WriteSettingInt(section, kOldProjection, kNoProjection);
    }
}

} // namespace

ChartPage::ChartPage() : m_window(m_chart)
{
    m_window.OnMoved(
        [this]
        {
            ShowPosition();
        });
}

const char* ChartPage::Name() const
{
    return "Chart";
}

/// The tables are read with the first look at the page's values: later on they may be open for changes.
void ChartPage::Refresh()
{
    Load();
    if (m_view != nullptr)
        ShowState();
    m_window.Repaint();
}

int ChartPage::HeightFor(int, const Theme&) const
{
    return 0; // as high as the window
}

bool ChartPage::FillsWindow() const
{
    return true;
}

void ChartPage::Load()
{
    if (m_loaded)
        return;
    m_loaded = true;
    m_missing = m_chart.Load(vorn::chart::Chart::OwnFolder());
    if (!m_missing.empty())
        LogNote(LOG_ERROR, "The chart lacks " + m_missing);
    if (const int state = VornCommonApp::Inst()->GetSettingInt(kChart, kNight, COLORSTATE_DAY); state != COLORSTATE_DAY)
        ColorContext::Instance()->SetCurrentState(state);
}

std::string ChartPage::TakeOptions(const StartOptions& options)
{
    m_viewWish = options.view;
    m_keeps = !options.IsUnattended();
    ViewDefinition view;
    if (!m_viewWish.empty() && !view.Parse(m_viewWish.c_str()))
        return "--view is no text of a view";
    if (options.night)
        ColorContext::Instance()->SetCurrentState(COLORSTATE_NIGHT);
    return {};
}

void ChartPage::ShowStored()
{
    ViewDefinition view;
    const bool wished = !m_viewWish.empty() && view.Parse(m_viewWish.c_str());
    if (!wished && !LoadViewDef(&view, kViews, kChart))
        view = ViewDefinition();
    if (!wished && !(view.mScale > 0)) // nothing stored
        m_chart.ShowRegion();
    else if (!m_chart.Restore(view))
        m_chart.ShowRegion();
}

void ChartPage::KeepView()
{
    if (!m_placed || !m_keeps)
        return;
    ViewDefinition view;
    m_chart.Store(view);
    AppRegMgr::Instance()->WriteVornString(kViews, kChart, view.Format(), 0);
    ForgetOldView();
    VornCommonApp::Inst()->WriteSettingInt(kChart, kNight, ColorContext::Instance()->GetCurrentState());
}

void ChartPage::CenterOn(const LatLon& position)
{
    m_chart.View().SetCentre(position);
    m_window.Repaint();
}

LatLon ChartPage::Center() const
{
    return m_chart.View().Centre();
}

void ChartPage::Leave()
{
    KeepView();
}

std::string ChartPage::Summary() const
{
    ViewDefinition view;
    m_chart.Store(view);
    const vorn::chart::ChartModel& model = m_chart.Model();
    std::string text = "Chart\n";
    text += "  Aids        " + std::to_string(model.data.aids.size()) + '\n';
    text += "  Aerodromes  " + std::to_string(model.data.aerodromes.size()) + '\n';
    text += std::string("  Projection  ") + m_chart.ProjectionName() + '\n';
    text += "  Scale       " + vorn::chart::ScaleText(m_chart.View().Scale()) + '\n';
    text += std::string("  View        ") + view.Format().GetString() + '\n';
    return text;
}

void ChartPage::Print(CDC& dc, const CRect& area, const Theme&) const
{
    const vorn::chart::ColorStateScope day(COLORSTATE_DAY); // on paper
    const vorn::chart::ChartView before = m_chart.View();
    CRect sheet(area);
    const int margin = static_cast<int>(area.Width() * kPrinterMargin);
    sheet.DeflateRect(margin, margin, margin, margin);
    vorn::chart::ChartView& view = m_chart.View();
    view.SetSize(sheet.Width(), sheet.Height(), dc.GetDeviceCaps(LOGPIXELSY));
    m_chart.DrawDirectly(dc, sheet.left, sheet.top);
    view = before;
    view.SetCentre(LatLon(before.Centre()));
}

void ChartPage::ChooseProjection(int number)
{
    if (!m_chart.SetProjection(number))
        return;
    ShowState();
    m_window.Repaint();
}

void ChartPage::ToggleNight()
{
    ColorContext::Instance()->SetCurrentState(IsNightVision() ? COLORSTATE_DAY : COLORSTATE_NIGHT);
    ShowState();
    m_window.Repaint();
}

void ChartPage::Export()
{
    CFileDialog dialog(FALSE, "png", "Chart.png", OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST,
                       "PNG pictures (*.png)|*.png|Bitmaps (*.bmp)|*.bmp|JPEG pictures (*.jpg)|*.jpg||", m_view);
    if (dialog.DoModal() != IDOK)
        return;
    DIB image;
    const std::string trouble = m_chart.DrawInto(image) ? SavePicture(image, dialog.GetPathName().GetString())
                                                        : "There is no memory for the picture.";
    if (!trouble.empty())
        AfxMessageBox(trouble.c_str(), MB_OK | MB_ICONEXCLAMATION);
}

bool ChartPage::OwnsCommand(UINT command) const
{
    return command >= ID_CHART_FIRST && command <= ID_CHART_LAST;
}

bool ChartPage::CanRun(UINT) const
{
    return m_view != nullptr && m_placed;
}

bool ChartPage::IsChecked(UINT command) const
{
    if (command == ID_CHART_NIGHT)
        return IsNightVision();
    return command == ID_CHART_PROJECTION + static_cast<UINT>(m_chart.ProjectionNumber());
}

void ChartPage::Run(UINT command)
{
    switch (command)
    {
    case ID_CHART_IN:
        return m_window.Zoom(kZoomButton);
    case ID_CHART_OUT:
        return m_window.Zoom(1 / kZoomButton);
    case ID_CHART_REGION:
        m_chart.ShowRegion();
        return m_window.Repaint();
    case ID_CHART_NIGHT:
        return ToggleNight();
    case ID_CHART_EXPORT:
        return Export();
    default:
        if (command >= ID_CHART_PROJECTION)
            ChooseProjection(static_cast<int>(command - ID_CHART_PROJECTION));
    }
}

void ChartPage::ShowPosition()
{
    auto* const frame = m_view != nullptr ? m_view->GetParentFrame() : nullptr;
    if (frame == nullptr)
        return;
    CString text;
    const std::optional<LatLon> position = m_window.Pointed();
    ShowPositionTip(position);
    if (position)
        text = LatToString(position->Lat()) + "   " + LonToString(position->Lon()) + "   ";
    text += vorn::chart::ScaleText(m_chart.View().Scale()).c_str();
    frame->SetMessageText(text);
}

/// Only while the pointer is over the chart, and the user has not put the note off.
void ChartPage::ShowPositionTip(const std::optional<LatLon>& position)
{
    using namespace vorn::planner;
    if (!position || !ReadSwitch(kPositionTip, true))
        return m_tip.Hide(m_window);
    CPoint pointer;
    GetCursorPos(&pointer);
    const CString text = LatToString(position->Lat()) + "  " + LonToString(position->Lon());
    m_tip.Show(m_window, text.GetString(), pointer);
}
