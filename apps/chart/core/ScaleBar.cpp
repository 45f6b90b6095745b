#include "apps/chart/core/ScaleBar.h"

#include <array>
#include <cmath>

namespace vorn::chart
{

namespace
{

constexpr std::array kLengths = {5000.0, 2000.0, 1000.0, 500.0, 200.0, 100.0, 50.0, 20.0,
                                 10.0,   5.0,    2.0,    1.0,   0.5,   0.2,   0.1};

std::string Grouped(long long number)
{
    std::string text = std::to_string(number);
    for (std::size_t place = text.size(); place > 3;)
        text.insert(place -= 3, 1, ',');
    return text;
}

} // namespace

ScaleBar ScaleBarFor(double pixelsPerMile, double mostPixels)
{
    double miles = kLengths.back();
    for (const double length : kLengths)
    {
        if (length * pixelsPerMile <= mostPixels)
        {
            miles = length;
            break;
        }
    }
    double leading = miles;
    while (leading >= 10)
        leading /= 10;
    while (leading < 0.95)
        leading *= 10;
    const bool two = std::lround(leading) == 2;
    return {miles, miles * pixelsPerMile, two ? 4 : 5};
}

std::string LengthText(double miles)
{
    std::string text;
    if (miles < 1)
    {
        text = "0.";
        text += std::to_string(std::lround(miles * 10));
    }
    else
    {
        text = Grouped(std::llround(miles));
    }
    return text + " NM";
}

std::string ElevationText(double feet)
{
    return Grouped(std::llround(feet)) + " ft";
}

std::string ScaleText(double denominator)
{
    double unit = 1;
    while (denominator / unit >= 1000)
        unit *= 10;
    return "1 : " + Grouped(std::llround(std::round(denominator / unit) * unit));
}

} // namespace vorn::chart
