#include "toolkit/layout/core/BarSizing.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace vorn
{
namespace
{

bool HasEdge(BarSide side, BarPart edge)
{
    switch (edge)
    {
    case BarPart::LeftEdge:
        return side == BarSide::Right || side == BarSide::Floating;
    case BarPart::RightEdge:
        return side == BarSide::Left || side == BarSide::Floating;
    case BarPart::TopEdge:
        return side == BarSide::Bottom || side == BarSide::Floating;
    case BarPart::BottomEdge:
        return side == BarSide::Top || side == BarSide::Floating;
    default:
        return false;
    }
}

int EdgeOf(BarSide side, BarPart edge)
{
    return HasEdge(side, edge) ? kSizingEdge : 0;
}

int Scaled(int length, double factor)
{
    const double use = std::isfinite(factor) && factor > 0 ? factor : 1.0;
    return static_cast<int>(std::clamp(std::round(length * use), 1.0, double{kMostBarSize}));
}

/// A whole number from 1 to the most, with nothing around it.
std::optional<int> ReadLength(std::string_view text)
{
    int length = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), length);
    if (error != std::errc() || end != text.data() + text.size() || length < 1 || length > kMostBarSize)
    {
        return std::nullopt;
    }
    return length;
}

} // namespace

bool LiesHorizontally(BarSide side)
{
    return side == BarSide::Top || side == BarSide::Bottom;
}

BarMargins BarFrameOf(BarSide side, bool gripper)
{
    const int band = gripper && side != BarSide::Floating ? kGripperBand : 0;
    BarMargins frame{EdgeOf(side, BarPart::LeftEdge), EdgeOf(side, BarPart::TopEdge), EdgeOf(side, BarPart::RightEdge),
                     EdgeOf(side, BarPart::BottomEdge)};
    (LiesHorizontally(side) ? frame.left : frame.top) += band;
    return frame;
}

BarPart BarPartAt(BarSide side, bool gripper, BarSize size, int x, int y)
{
    if (x < 0 || y < 0 || x >= size.cx || y >= size.cy)
    {
        return BarPart::Inside;
    }
    if (x < EdgeOf(side, BarPart::LeftEdge))
    {
        return BarPart::LeftEdge;
    }
    if (x >= size.cx - EdgeOf(side, BarPart::RightEdge))
    {
        return BarPart::RightEdge;
    }
    if (y < EdgeOf(side, BarPart::TopEdge))
    {
        return BarPart::TopEdge;
    }
    if (y >= size.cy - EdgeOf(side, BarPart::BottomEdge))
    {
        return BarPart::BottomEdge;
    }
    const BarMargins frame = BarFrameOf(side, gripper);
    return x < frame.left || y < frame.top ? BarPart::Gripper : BarPart::Inside;
}

BarPart SizingEdgeOf(BarSide side)
{
    switch (side)
    {
    case BarSide::Bottom:
        return BarPart::TopEdge;
    case BarSide::Left:
        return BarPart::RightEdge;
    case BarSide::Right:
        return BarPart::LeftEdge;
    default:
        return BarPart::BottomEdge;
    }
}

BarSize DraggedBarSize(BarPart edge, BarSize start, int dx, int dy)
{
    switch (edge)
    {
    case BarPart::LeftEdge:
        return {start.cx - dx, start.cy};
    case BarPart::RightEdge:
        return {start.cx + dx, start.cy};
    case BarPart::TopEdge:
        return {start.cx, start.cy - dy};
    case BarPart::BottomEdge:
        return {start.cx, start.cy + dy};
    default:
        return start;
    }
}

BarSize LimitedBarSize(BarSize size, const BarLimits& limits)
{
    return {std::max(std::min(size.cx, limits.most.cx), limits.least.cx),
            std::max(std::min(size.cy, limits.most.cy), limits.least.cy)};
}

BarMargins TrackerLineOf(BarPart edge, const BarMargins& bar, BarSize size)
{
    BarMargins line = bar;
    switch (edge)
    {
    case BarPart::LeftEdge:
        line.left = bar.right - size.cx;
        line.right = line.left + kTrackerLine;
        break;
    case BarPart::TopEdge:
        line.top = bar.bottom - size.cy;
        line.bottom = line.top + kTrackerLine;
        break;
    case BarPart::RightEdge:
        line.right = bar.left + size.cx;
        line.left = line.right - kTrackerLine;
        break;
    default:
        line.bottom = bar.top + size.cy;
        line.top = line.bottom - kTrackerLine;
        break;
    }
    return line;
}

std::string BarSizeText(BarSize size)
{
    return std::to_string(size.cx).append(",").append(std::to_string(size.cy));
}

std::optional<BarSize> ReadBarSize(std::string_view text)
{
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos)
    {
        return std::nullopt;
    }
    const auto width = ReadLength(text.substr(0, comma));
    const auto height = ReadLength(text.substr(comma + 1));
    return width && height ? std::optional<BarSize>({*width, *height}) : std::nullopt;
}

BarSize ScaledBarSize(BarSize size, double factorX, double factorY)
{
    return {Scaled(size.cx, factorX), Scaled(size.cy, factorY)};
}

} // namespace vorn
