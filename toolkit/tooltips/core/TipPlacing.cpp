#include "toolkit/tooltips/core/TipPlacing.h"

#include <algorithm>
#include <cstdint>

namespace vorn
{
namespace
{

/// A tool whose edges are this far away is so large that its tip stands at the cursor.
constexpr std::int64_t kFarEdge = 81;
constexpr LONG kBelowCursor = 35;

std::int64_t Distance(LONG first, LONG second)
{
    const std::int64_t way = static_cast<std::int64_t>(first) - second;
    return way < 0 ? -way : way;
}

} // namespace

CPoint HoverTipPoint(const RECT& tool, POINT cursor)
{
    const std::int64_t toBottom = Distance(tool.bottom, cursor.y);
    const std::int64_t toRight = Distance(tool.right, cursor.x);
    if (std::min(toBottom, toRight) >= kFarEdge)
    {
        return CPoint(cursor.x, WrapAdd(cursor.y, kBelowCursor));
    }
    return toBottom < toRight ? CPoint(cursor.x, tool.bottom) : CPoint(tool.right, cursor.y);
}

CRect PlaceTip(POINT point, SIZE size, const RECT& tool, const RECT& screen)
{
    CRect place(point, size);
    if (place.right > screen.right)
    {
        place.MoveToX(WrapSubtract(screen.right, size.cx));
    }
    if (place.left < screen.left)
    {
        place.MoveToX(screen.left);
    }
    if (place.bottom > screen.bottom)
    {
        place.MoveToY(std::max(WrapSubtract(tool.top, size.cy), screen.top));
    }
    return place;
}

CRect KeepOnArea(POINT point, SIZE size, const RECT& area)
{
    const LONG left = std::max(area.left, std::min(point.x, WrapSubtract(area.right, size.cx)));
    const LONG top = std::max(area.top, std::min(point.y, WrapSubtract(area.bottom, size.cy)));
    return CRect(CPoint(left, top), size);
}

CSize TipSize(SIZE text, const RECT& margins)
{
    if (text.cx <= 0 || text.cy <= 0)
    {
        return CSize(0, 0);
    }
    const CSize size(WrapAdd(WrapAdd(text.cx, margins.left), margins.right),
                     WrapAdd(WrapAdd(text.cy, margins.top), margins.bottom));
    return size.cx > 0 && size.cy > 0 ? size : CSize(0, 0);
}

InfoBoxPlaces StackInfoBox(SIZE title, SIZE text, const RECT& margins)
{
    InfoBoxPlaces places;
    const LONG width = std::max(title.cx, text.cx);
    places.title = CRect(CPoint(margins.left, margins.top), CSize(width, title.cy));
    places.text = CRect(CPoint(margins.left, WrapAdd(margins.top, title.cy)), CSize(width, text.cy));
    places.size = TipSize(CSize(width, WrapAdd(title.cy, text.cy)), margins);
    return places;
}

} // namespace vorn
