#pragma once

/// @file
/// Arithmetic of bars that the user sizes by an edge: their frames, hits, drags and stored sizes. All in pixels.
#include <optional>
#include <string>
#include <string_view>

namespace vorn
{

struct BarSize
{
    int cx = 0;
    int cy = 0;
    bool operator==(const BarSize&) const = default;
};

/// Smallest and largest sizes; where they contradict each other the smallest counts.
struct BarLimits
{
    BarSize least;
    BarSize most;
};

/// Where a bar is.
enum class BarSide
{
    Top,
    Bottom,
    Left,
    Right,
    Floating
};

/// What of a bar lies at a point.
enum class BarPart
{
    Inside,
    Gripper,
    LeftEdge,
    RightEdge,
    TopEdge,
    BottomEdge
};

/// What the bar's frame takes of its window; also a rectangle.
struct BarMargins
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const BarMargins&) const = default;
};

inline constexpr int kSizingEdge = 5;    ///< thickness of an edge by which a bar is sized
inline constexpr int kGripperBand = 7;   ///< thickness of the gripper
inline constexpr int kTrackerLine = 4;   ///< thickness of the line that shows where an edge would come to lie
inline constexpr int kLeastBarSize = 32; ///< of a bar that declares no layout
inline constexpr int kMostBarSize = 32767;

/// Whether the bar lies along the upper or lower side of its frame.
bool LiesHorizontally(BarSide side);

/// The frame: an edge on the side away from the one where the bar is docked, on all sides while it floats; a gripper,
/// if asked for, on the left of a lying bar and on the top of a standing one.
BarMargins BarFrameOf(BarSide side, bool gripper);

/// @param x from the window's own corner, @param y likewise
BarPart BarPartAt(BarSide side, bool gripper, BarSize size, int x, int y);

/// The edge by which a docked bar is sized; of a floating one the lower.
BarPart SizingEdgeOf(BarSide side);

/// The size after a drag of an edge by so many pixels to the right and down.
BarSize DraggedBarSize(BarPart edge, BarSize start, int dx, int dy);

BarSize LimitedBarSize(BarSize size, const BarLimits& limits);

/// The line along an edge of a bar that would have another size while its other edges stay: with the edge, inside.
/// @param bar its present rectangle
BarMargins TrackerLineOf(BarPart edge, const BarMargins& bar, BarSize size);

/// "223,234"
std::string BarSizeText(BarSize size);
/// Nothing unless the text is two whole numbers from 1 to 32767.
std::optional<BarSize> ReadBarSize(std::string_view text);

/// A size for a font other than that for which it was made. Factors that are no positive number count as 1; the result
/// is from 1 to 32767.
BarSize ScaledBarSize(BarSize size, double factorX, double factorY);

} // namespace vorn
