#include "aviation/core/Rounding.h"

#include <array>
#include <cmath>

namespace vorn
{

namespace
{

/// The powers that a double holds exactly.
constexpr std::array<double, 23> kExactPowers = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                                 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

} // namespace

double PowerOfTen(int exponent)
{
    if (exponent >= 0 && exponent < static_cast<int>(kExactPowers.size()))
        return kExactPowers[static_cast<std::size_t>(exponent)];
    return std::pow(10.0, exponent);
}

double RoundedTo(double value, int decimals)
{
    const double power = PowerOfTen(decimals);
    const double scaled = value * power;
    if (!std::isfinite(power) || !std::isfinite(scaled))
        return value;
    return power == 0.0 ? 0.0 : std::trunc(scaled + 0.5) / power;
}

} // namespace vorn
