#pragma once

#include "frame/core/CompactText.h"

namespace vorn
{

/// Which letters stand for the sign.
enum class Axis
{
    Latitude,  ///< N and S
    Longitude, ///< E and W
};

/// How a position is written.
struct PositionFormat
{
    bool seconds = false; ///< degrees, minutes and seconds instead of degrees and minutes
    int decimals = 1;     ///< of the last field
};

/// The degree sign of code page 1252.
inline constexpr char kDegreeSign = '\xB0';

/// One coordinate: "N 47° 30.0'" or "N 47° 30' 00.0". The degrees have at least two digits in three places, blanks in
/// front; the last field is `decimals` + 3 wide with zeros in front, so that no decimals give three digits ("007"). A
/// rounded 60 carries. Legal input is any finite number whose whole part fits 32 bits: there is no wrap at 180 or 360,
/// and the letter follows the raw value (-0.0 is north). Negative decimals give printf's six. Empty for anything else.
CompactText PositionText(double degrees, Axis axis, PositionFormat format);

} // namespace vorn
