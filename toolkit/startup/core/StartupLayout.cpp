#include "toolkit/startup/core/StartupLayout.h"

#include <algorithm>

namespace vorn
{

namespace
{

constexpr int kLeastAreaLines = 3; // a scrolling area shows as many lines at least, as high as the check box

int Width(const StartupParts& parts)
{
    return parts.most.cx - 2 * parts.margin.cx;
}

int TotalHeight(const std::vector<CSize>& boxes, int gap)
{
    int height = 0;
    for (const CSize& box : boxes)
    {
        height += box.cy + gap;
    }
    return height;
}

/// Height of everything above and below the area, with the gap that parts the area from it.
int HeightAround(const StartupParts& parts)
{
    const int disclaimer = parts.disclaimer.cy > 0 ? parts.disclaimer.cy + parts.gap.cy : 0;
    return 2 * parts.margin.cy + parts.title.cy + parts.copyright.cy + parts.gap.cy + disclaimer + parts.gap.cy +
           parts.check.cy + parts.gap.cy + std::max<int>(parts.ok.cy, parts.update.cy);
}

CSize AreaLimit(const StartupParts& parts)
{
    const int height = parts.most.cy - HeightAround(parts);
    return CSize(Width(parts), std::max<int>(height, kLeastAreaLines * parts.check.cy));
}

struct Content
{
    StartupColumns groups;
    std::vector<CRect> lines;
    CSize size;
};

Content ContentWithin(const StartupParts& parts, CSize limit)
{
    Content content;
    const int below = TotalHeight(parts.lines, 0) + (parts.lines.empty() ? 0 : parts.gap.cy);
    content.groups = FitColumns(parts.groups, parts.gap, CSize(limit.cx, std::max<int>(limit.cy - below, 1)));
    content.size = content.groups.size;
    if (!parts.lines.empty() && !parts.groups.empty())
    {
        content.size.cy += parts.gap.cy;
    }
    for (const CSize& line : parts.lines)
    {
        const CRect place(CPoint(0, content.size.cy), CSize(std::min<int>(line.cx, limit.cx), line.cy));
        content.lines.push_back(place);
        content.size = CSize(std::max<int>(content.size.cx, place.right), place.bottom);
    }
    return content;
}

/// Takes what stands next from the top of what is left.
CRect TakeTop(CRect& rest, int height, int gap)
{
    const CRect place(rest.left, rest.top, rest.right, rest.top + height);
    rest.top += height > 0 ? height + gap : 0;
    return place;
}

int Widest(const StartupParts& parts, int content)
{
    const int buttons = parts.update.cx + parts.gap.cx + parts.ok.cx;
    return std::min<int>(
        std::max<int>({parts.title.cx, parts.copyright.cx, parts.disclaimer.cx, content, parts.check.cx, buttons}),
        std::max<int>(Width(parts), 0));
}

void PlaceButtons(const StartupParts& parts, const CRect& rest, StartupPlaces& places)
{
    places.update = CRect(CPoint(rest.left, rest.top), parts.update);
    places.ok = CRect(CPoint(rest.right - parts.ok.cx, rest.top), parts.ok);
}

} // namespace

StartupGroup GroupAround(CSize caption, const std::vector<CSize>& lines, const StartupGroupUnits& units)
{
    StartupGroup group;
    int widest = caption.cx;
    for (const CSize& line : lines)
    {
        widest = std::max<int>(widest, line.cx);
    }
    int top = units.caption + units.below / 2;
    for (const CSize& line : lines)
    {
        group.lines.emplace_back(units.side, top, units.side + widest, top + line.cy);
        top += line.cy;
    }
    group.size = CSize(widest + 2 * units.side, top + units.below - units.below / 2);
    return group;
}

StartupColumns PlaceInColumns(const std::vector<CSize>& boxes, CSize gap, int height)
{
    StartupColumns columns;
    CPoint at(0, 0);
    int right = 0;
    for (const CSize& box : boxes)
    {
        if (at.y > 0 && at.y + box.cy > height)
        {
            at = CPoint(right + gap.cx, 0);
        }
        const CRect& place = columns.places.emplace_back(at, box);
        right = std::max<int>(right, place.right);
        columns.size = CSize(right, std::max<int>(columns.size.cy, place.bottom));
        at.y = place.bottom + gap.cy;
    }
    return columns;
}

StartupColumns FitColumns(const std::vector<CSize>& boxes, CSize gap, CSize most)
{
    StartupColumns columns = PlaceInColumns(boxes, gap, most.cy);
    int tooLow = most.cy;
    int high = TotalHeight(boxes, gap.cy); // one column: narrower it cannot be
    if (columns.size.cx <= most.cx || high <= tooLow)
    {
        return columns;
    }
    columns = PlaceInColumns(boxes, gap, high);
    while (high - tooLow > 1)
    {
        const int middle = tooLow + (high - tooLow) / 2;
        StartupColumns tried = PlaceInColumns(boxes, gap, middle);
        if (tried.size.cx <= most.cx)
        {
            high = middle;
            columns = std::move(tried);
        }
        else
        {
            tooLow = middle;
        }
    }
    return columns;
}

StartupPlaces PlaceStartup(const StartupParts& parts)
{
    const CSize limit = AreaLimit(parts);
    Content content = ContentWithin(parts, limit);
    int areaWidth = content.size.cx;
    if (content.size.cy > limit.cy)
    {
        content = ContentWithin(parts, CSize(limit.cx - parts.scrollBar, limit.cy));
        areaWidth = content.size.cx + parts.scrollBar;
    }

    StartupPlaces places;
    const int inner = Widest(parts, areaWidth);
    CRect rest(CPoint(parts.margin.cx, parts.margin.cy), CSize(inner, 0));
    places.title = TakeTop(rest, parts.title.cy, 0);
    places.copyright = TakeTop(rest, parts.copyright.cy, parts.gap.cy);
    places.disclaimer = TakeTop(rest, parts.disclaimer.cy, parts.gap.cy);
    places.area = TakeTop(rest, std::min<int>(content.size.cy, limit.cy), parts.gap.cy);
    places.check = TakeTop(rest, parts.check.cy, parts.gap.cy);
    PlaceButtons(parts, rest, places);
    places.contentHeight = content.size.cy;
    places.groups = std::move(content.groups.places);
    places.lines = std::move(content.lines);
    places.client =
        CSize(inner + 2 * parts.margin.cx, rest.top + std::max<int>(parts.ok.cy, parts.update.cy) + parts.margin.cy);
    return places;
}

} // namespace vorn
