#pragma once

#include <cstdint>
#include <limits>

namespace vorn
{

/// Sum of two numbers of seconds, held at the ends of the 64-bit range.
constexpr std::int64_t AddSaturated(std::int64_t a, std::int64_t b)
{
    using Limits = std::numeric_limits<std::int64_t>;
    if (b > 0 && a > Limits::max() - b)
        return Limits::max();
    if (b < 0 && a < Limits::min() - b)
        return Limits::min();
    return a + b;
}

/// Difference of two numbers of seconds, held at the ends of the 64-bit range.
constexpr std::int64_t SubtractSaturated(std::int64_t a, std::int64_t b)
{
    using Limits = std::numeric_limits<std::int64_t>;
    if (b < 0 && a > Limits::max() + b)
        return Limits::max();
    if (b > 0 && a < Limits::min() + b)
        return Limits::min();
    return a - b;
}

} // namespace vorn
