#include "apps/sample/preferences/ColorPreview.h"

#include "apps/chart/ChartColors.h"
#include "apps/planner/StoredValue.h"
#include "apps/sample/preferences/core/Entries.h"

#include <utility>

namespace vorn::preferences
{

namespace
{

constexpr int kRows = 2;
constexpr int kGap = 3; // pixels
constexpr double kUsualFactor = 0.4;

double StoredFactor(const char* key)
{
    return Factor(planner::App().GetSettingString("Colors", key, "").GetString()).value_or(kUsualFactor);
}

BYTE Scaled(BYTE component, double factor)
{
    return static_cast<BYTE>(component * factor);
}

} // namespace

BEGIN_MESSAGE_MAP(ColorPreview, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

NightFactors StoredFactors()
{
    return {StoredFactor("NVRedScale"), StoredFactor("NVGreenScale"), StoredFactor("NVBlueScale")};
}

COLORREF Dimmed(COLORREF color, const NightFactors& factors)
{
    return RGB(Scaled(GetRValue(color), factors[0]), Scaled(GetGValue(color), factors[1]),
               Scaled(GetBValue(color), factors[2]));
}

std::vector<COLORREF> ColorsOf(int state)
{
    const vorn::chart::ColorStateScope scope(state);
    std::vector<COLORREF> colors;
    colors.reserve(APPCOLOR_COUNT);
    for (int type = 0; type < APPCOLOR_COUNT; ++type)
        colors.push_back(ColorContext::Instance()->GetColor(static_cast<AppColorsType>(type)));
    return colors;
}

void ColorPreview::Show(std::vector<COLORREF> colors, const NightFactors& factors)
{
    m_colors = std::move(colors);
    m_factors = factors;
    Invalidate();
}

CRect ColorPreview::Swatch(const CRect& area, std::size_t index) const
{
    const int columns = (static_cast<int>(m_colors.size()) + kRows - 1) / kRows;
    const int row = static_cast<int>(index) / columns;
    const int column = static_cast<int>(index) % columns;
    return {MulDiv(area.Width(), column, columns), MulDiv(area.Height(), row, kRows),
            MulDiv(area.Width(), column + 1, columns) - kGap, MulDiv(area.Height(), row + 1, kRows) - kGap};
}

void ColorPreview::OnPaint()
{
    CPaintDC dc(this);
    CRect area;
    GetClientRect(&area);
    dc.FillSolidRect(area, GetSysColor(COLOR_3DFACE));
    for (std::size_t i = 0; i < m_colors.size(); ++i)
    {
        CRect swatch = Swatch(area, i);
        dc.FillSolidRect(swatch, GetSysColor(COLOR_3DSHADOW));
        swatch.DeflateRect(1, 1);
        dc.FillSolidRect(swatch, m_colors[i]);
        swatch.left = swatch.CenterPoint().x;
        dc.FillSolidRect(swatch, Dimmed(m_colors[i], m_factors));
    }
}

} // namespace vorn::preferences
