#pragma once

/// @file
/// Which of many rectangles is meant by a point.
#include "framework/core/BaseTypes.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace vorn
{

inline constexpr std::size_t kNoTip = static_cast<std::size_t>(-1);

inline bool TipRectHolds(const RECT& rect, POINT point)
{
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

inline std::int64_t TipRectArea(const RECT& rect)
{
    return (static_cast<std::int64_t>(rect.right) - rect.left) * (static_cast<std::int64_t>(rect.bottom) - rect.top);
}

/// The smallest rectangle around a point, the first of several as small; kNoTip for none.
/// @param counts asked about each rectangle that would be the smallest so far
template <class Predicate>
std::size_t SmallestAround(std::span<const RECT> rects, POINT point, Predicate counts)
{
    std::size_t found = kNoTip;
    for (std::size_t i = 0; i < rects.size(); ++i)
    {
        const bool smaller =
            TipRectHolds(rects[i], point) && (found == kNoTip || TipRectArea(rects[i]) < TipRectArea(rects[found]));
        if (smaller && counts(i))
        {
            found = i;
        }
    }
    return found;
}

} // namespace vorn
