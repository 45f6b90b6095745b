#pragma once

#include <limits>

namespace vorn::test
{

inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInfinite = std::numeric_limits<double>::infinity();

} // namespace vorn::test
