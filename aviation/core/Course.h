#pragma once

#include <string>

namespace vorn
{

/// A course as "%03.0f", or a variation as letter, blank and "%03.0f" of its size: E for zero and above, W below. No
/// wrap: 359.6 is "360". Ties round to even. Empty for what is not finite.
std::string CourseText(double value, bool eastWest);

} // namespace vorn
