#pragma once

/// @file
/// How one node of a layout sizes itself on each axis, and what each axis calls its own.
#include "framework/core/BaseTypes.h"

#include <climits>

namespace vorn
{

/// The bits of a node's mode. An axis without its fixed and its percent bit is greedy: the node takes an equal share of
/// what the others leave.
namespace panemode
{
inline constexpr unsigned kFixedWidth = 0x1;
inline constexpr unsigned kPercentWidth = 0x2;
inline constexpr unsigned kFixedHeight = 0x4;
inline constexpr unsigned kPercentHeight = 0x8;
inline constexpr unsigned kAlignRight = 0x20;
inline constexpr unsigned kAlignHCenter = 0x30; ///< both bits
inline constexpr unsigned kAlignBottom = 0x80;
inline constexpr unsigned kAlignVCenter = 0xC0; ///< both bits
inline constexpr unsigned kStretchWidth = 0x100;
inline constexpr unsigned kStretchHeight = 0x200;
} // namespace panemode

enum class PaneAxis : unsigned char
{
    Width,
    Height
};

constexpr PaneAxis Across(PaneAxis axis)
{
    return axis == PaneAxis::Width ? PaneAxis::Height : PaneAxis::Width;
}

/// The bits of one axis.
struct PaneAxisBits
{
    unsigned fixed;
    unsigned percent;
    unsigned stretch;
    unsigned alignFar;
    unsigned alignCenter;
};

constexpr PaneAxisBits BitsOf(PaneAxis axis)
{
    using namespace panemode;
    return axis == PaneAxis::Width
               ? PaneAxisBits{kFixedWidth, kPercentWidth, kStretchWidth, kAlignRight, kAlignHCenter}
               : PaneAxisBits{kFixedHeight, kPercentHeight, kStretchHeight, kAlignBottom, kAlignVCenter};
}

/// No limit.
inline constexpr int kUnbounded = -1;

/// What a greedy or percent item, and a child in the sum of a pane, has at least, in pixels.
inline constexpr int kLeastExtent = 5;

/// The nearest int.
constexpr int ClampToInt(long long value)
{
    return value < INT_MIN ? INT_MIN : value > INT_MAX ? INT_MAX : static_cast<int>(value);
}

/// A sum that stays at the limit of an int. A 32-bit machine needs several steps for 64 bits, and these sums are many.
constexpr int SumOf(int first, int second)
{
    int sum = 0;
    return __builtin_add_overflow(first, second, &sum) ? (first < 0 ? INT_MIN : INT_MAX) : sum;
}

/// A percentage of an extent, truncated toward zero.
constexpr int PercentOf(int extent, int percent)
{
    // A 32-bit machine divides 64 bits ten times slower than 32.
    constexpr int kShort = 1 << 20;
    constexpr int kFew = 1 << 10;
    if (extent > -kShort && extent < kShort && percent > -kFew && percent < kFew)
    {
        return extent * percent / 100;
    }
    return ClampToInt(static_cast<long long>(extent) * percent / 100);
}

} // namespace vorn
