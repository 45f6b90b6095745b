#include "aviation/core/Course.h"

#include "aviation/core/NumberText.h"

#include <cmath>

namespace vorn
{

std::string CourseText(double value, bool eastWest)
{
    constexpr int width = 3;
    if (!std::isfinite(value))
        return {};
    if (!eastWest)
        return PaddedFixedText(value, width, 0);
    return (value >= 0 ? "E " : "W ") + PaddedFixedText(std::fabs(value), width, 0);
}

} // namespace vorn
