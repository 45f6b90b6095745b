#include "apps/chart/ChartPanels.h"

#include "apps/chart/ChartColors.h"
#include "apps/chart/ChartText.h"
#include "apps/chart/core/ScaleBar.h"

#include <algorithm>
#include <cmath>

namespace vorn::chart
{

namespace
{

// Pixels at 96 dpi.
constexpr double kInset = 12; // from the drawing's edges
constexpr double kPadding = 8;
constexpr double kTitleWidth = 264;
constexpr double kTitleHeight = 76;
constexpr double kHeightsWidth = 96;
constexpr double kSwatch = 15;
constexpr double kHeightsTitle = 18;
constexpr double kBarWidth = 190; // at most
constexpr double kBarSides = 56;  // beside the bar, for half of a text at each end
constexpr double kBarLeft = 18;
constexpr double kLeastBar = 120;
constexpr double kBarHeight = 38;
constexpr double kEdgeLabels = 16; // meridians' and parallels' texts along the edges

constexpr const char* kFace = "Segoe UI";

COLORREF AppColor(AppColorsType type)
{
    return ColorContext::Instance()->GetColor(type);
}

void DrawSheet(CDC& dc, const PixelBox& box, double unit)
{
    const HGDIOBJ brush = SelectObject(&dc, ResMgr::Inst()->GetAppBrush(APPCOLOR_BACKGROUND));
    const HGDIOBJ pen = SelectObject(&dc, FinePen(APPCOLOR_GRID, unit));
    dc.Rectangle(box.left, box.top, box.right, box.bottom);
    SelectObject(&dc, pen);
    SelectObject(&dc, brush);
}

void DrawText(CDC& dc, int x, int y, const std::string& text, UINT align)
{
    const UINT before = dc.SetTextAlign(align);
    dc.TextOut(x, y, text.c_str(), static_cast<int>(text.size()));
    dc.SetTextAlign(before);
}

} // namespace

int ChartPanels::Px(double at96) const
{
    return static_cast<int>(std::lround(at96 * m_unit));
}

void ChartPanels::Place(const ChartView& view)
{
    m_unit = view.DotsPerInch() / 96;
    m_title = m_heights = m_scaleBar = PixelBox();
    const int left = Px(kInset + 2 * kEdgeLabels);
    const int top = Px(kInset + kEdgeLabels);
    const int right = view.Width() - left;
    const int bottom = view.Height() - top;
    const int heights = Px(kHeightsTitle + kBands * kSwatch + 2 * kPadding);
    if (right - left >= Px(1.6 * kTitleWidth) && bottom - top >= Px(kTitleHeight * 2.5))
        m_title = {left, top, left + Px(kTitleWidth), top + Px(kTitleHeight)};
    if (!m_title.IsEmpty() && bottom - m_title.bottom >= heights + Px(2 * kInset))
        m_heights = {left, bottom - heights, left + Px(kHeightsWidth), bottom};
    const int most = std::min(Px(kBarWidth), view.Width() * 2 / 5);
    if (most < Px(kLeastBar) || bottom - top < Px(3 * kBarHeight))
        return;
    m_bar = ScaleBarFor(view.PixelsPerMile(), most - Px(kBarSides));
    const int width = static_cast<int>(std::lround(m_bar.pixels)) + Px(kBarSides);
    m_scaleBar = {right - width, bottom - Px(kBarHeight), right, bottom};
}

std::vector<PixelBox> ChartPanels::Boxes() const
{
    std::vector<PixelBox> boxes;
    for (const PixelBox& box : {m_title, m_heights, m_scaleBar})
    {
        if (!box.IsEmpty())
            boxes.push_back(Grown(box, Px(2)));
    }
    return boxes;
}

void ChartPanels::Draw(CDC& dc, const PanelTexts& texts, const TerrainColorMap& terrain)
{
    const int mode = dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(AppColor(APPCOLOR_TEXT));
    if (!m_title.IsEmpty())
        DrawTitle(dc, texts);
    if (!m_heights.IsEmpty())
        DrawHeights(dc, terrain);
    if (!m_scaleBar.IsEmpty())
        DrawScaleBar(dc);
    dc.SetBkMode(mode);
}

void ChartPanels::DrawTitle(CDC& dc, const PanelTexts& texts) const
{
    DrawSheet(dc, m_title, m_unit);
    using namespace TextLayout;
    const COLORREF ink = AppColor(APPCOLOR_TEXT);
    const COLORREF accent = AppColor(APPCOLOR_AIRSPACE);
    const int large = Px(19);
    const int small = Px(13);
    const auto line = [&](const std::string& text, int height, int weight, COLORREF color)
    {
        return new Text(text.c_str(), kFace, weight, 0, height, color, Px(8)); // owned by the tree that it goes into
    };
    auto* const head = new Alignment("left vcenter", line(texts.title, large, FW_BOLD, accent));
    auto* const middle = new Alignment("left vcenter", line(texts.subtitle, small, FW_NORMAL, ink));
    auto* const foot = new Split("|58%", new Alignment("left bottom", line(texts.projection, small, FW_NORMAL, ink)),
                                 new Alignment("right bottom", line(texts.scale, small, FW_SEMIBOLD, ink)));
    Root root(m_title.Width() - 2 * Px(kPadding), m_title.Height() - Px(kPadding),
              new Split("-44%", head, new Split("-40%", middle, foot)));
    root.Set("x", m_title.left + Px(kPadding));
    root.Set("y", m_title.top + Px(kPadding / 2));
    if (root.ComputeLayout(&dc))
        root.Draw(&dc);
}

void ChartPanels::DrawHeights(CDC& dc, const TerrainColorMap& terrain) const
{
    DrawSheet(dc, m_heights, m_unit);
    const int left = m_heights.left + Px(kPadding);
    int y = m_heights.top + Px(kPadding / 2);
    const HGDIOBJ font = SelectObject(&dc, FontOf(TextStyle::Ident, m_unit));
    DrawText(dc, left, y, "Elevation", TA_LEFT);
    y += Px(kHeightsTitle);
    SelectObject(&dc, FontOf(TextStyle::Plain, m_unit));
    const HGDIOBJ pen = SelectObject(&dc, FinePen(APPCOLOR_GRID, m_unit));
    for (int band = kBands - 1; band >= 0; --band)
    {
        const HGDIOBJ brush = SelectObject(&dc, ResMgr::Inst()->GetBrush(BandColor(terrain, band)));
        dc.Rectangle(left, y, left + Px(26), y + Px(kSwatch) + 1);
        SelectObject(&dc, brush);
        DrawText(dc, m_heights.right - Px(kPadding), y + Px(1), ElevationText(kBandHeights[band]), TA_RIGHT);
        y += Px(kSwatch);
    }
    SelectObject(&dc, pen);
    SelectObject(&dc, font);
}

void ChartPanels::DrawScaleBar(CDC& dc) const
{
    DrawSheet(dc, m_scaleBar, m_unit);
    const HGDIOBJ font = SelectObject(&dc, FontOf(TextStyle::Plain, m_unit));
    const int width = static_cast<int>(std::lround(m_bar.pixels));
    const int left = m_scaleBar.left + Px(kBarLeft);
    const int top = m_scaleBar.bottom - Px(kPadding + 6);
    for (int part = 0; part < m_bar.parts; ++part)
    {
        const CRect area(left + width * part / m_bar.parts, top, left + width * (part + 1) / m_bar.parts, top + Px(6));
        dc.FillSolidRect(&area, AppColor(part % 2 == 0 ? APPCOLOR_TEXT : APPCOLOR_TEXTHALO));
    }
    const HGDIOBJ brush = SelectObject(&dc, ResMgr::Inst()->GetNullBrush());
    const HGDIOBJ pen = SelectObject(&dc, FinePen(APPCOLOR_TEXT, m_unit));
    dc.Rectangle(left, top, left + width + 1, top + Px(6));
    SelectObject(&dc, pen);
    SelectObject(&dc, brush);
    dc.SetTextColor(AppColor(APPCOLOR_TEXT));
    DrawText(dc, left, top - Px(15), "0", TA_CENTER);
    DrawText(dc, left + width, top - Px(15), LengthText(m_bar.miles), TA_CENTER);
    SelectObject(&dc, font);
}

} // namespace vorn::chart
