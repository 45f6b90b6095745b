#pragma once

#include <string>

namespace vorn::chart
{

/// A bar of a round length in nautical miles beside the chart.
struct ScaleBar
{
    double miles = 0;  ///< 1, 2 or 5 times a power of ten
    double pixels = 0; ///< its length, at most what was asked for
    int parts = 0;     ///< even parts to divide it into
};

/// The longest one of at most `mostPixels`, from a tenth of a mile to 5,000 miles.
ScaleBar ScaleBarFor(double pixelsPerMile, double mostPixels);

/// "100 NM", "0.5 NM".
std::string LengthText(double miles);

/// "6,000 ft".
std::string ElevationText(double feet);

/// "1 : 2,000,000", rounded to three digits.
std::string ScaleText(double denominator);

} // namespace vorn::chart
