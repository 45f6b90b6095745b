#include "toolkit/core/WarningBoxLayout.h"

#include <algorithm>

namespace vorn
{

namespace
{
constexpr int kWorkAreaPercent = 60;
} // namespace

WarningBoxPlaces PlaceWarningBox(const WarningBoxParts& parts)
{
    const int right = parts.margin.cx + parts.icon.cx + parts.gap.cx;
    const int rowHeight = std::max<int>(parts.icon.cy, parts.text.cy);
    const bool hasCheck = parts.check.cx > 0;
    const int checkTop = parts.margin.cy + rowHeight + parts.gap.cy;
    const int buttonTop = checkTop + (hasCheck ? parts.check.cy + parts.gap.cy : 0);
    const int besideIcon = std::max<int>(parts.text.cx, hasCheck ? parts.check.cx : 0);
    const int inner = std::max<int>(right + besideIcon - parts.margin.cx, parts.button.cx);

    WarningBoxPlaces places;
    places.client = CSize(inner + 2 * parts.margin.cx, buttonTop + parts.button.cy + parts.margin.cy);
    places.icon = CRect(CPoint(parts.margin.cx, parts.margin.cy), parts.icon);
    const int textTop = parts.margin.cy + (rowHeight - parts.text.cy) / 2;
    places.text = CRect(CPoint(right, textTop), parts.text);
    places.check = hasCheck ? CRect(CPoint(right, checkTop), parts.check) : CRect(0, 0, 0, 0);
    places.button = CRect(CPoint((places.client.cx - parts.button.cx) / 2, buttonTop), parts.button);
    return places;
}

int WarningTextWidth(int widthInPixels, int workAreaWidth)
{
    return std::min(widthInPixels, workAreaWidth * kWorkAreaPercent / 100);
}

int WarningTextHeight(int workAreaHeight)
{
    return workAreaHeight * kWorkAreaPercent / 100;
}

} // namespace vorn
