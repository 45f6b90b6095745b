#pragma once

#include "aviation/core/Calendar.h"

namespace vorn
{

/// Julian day (Universal Time, the day begins at noon) of a calendar moment, after the classic almanac formula (Meeus,
/// Astronomical Algorithms, chapter 7). Dates before 5 September 1582 count in the Julian calendar; that test takes
/// September as month 9 on purpose, and stays. Whole parts are cut toward zero, so years before -4716 are off. Fields
/// need not be in range.
double JulianOfCivil(const CivilTime& moment);

/// Calendar date of a Julian day, the Gregorian calendar from day 2299161 on; the time fields are 0. All zero when
/// `julian` is not finite or beyond +-1e8.
CivilTime DateOfJulian(double julian);

/// Time of day of a Julian day, cut to whole seconds; the date fields are 0. All zero as above.
CivilTime ClockOfJulian(double julian);

/// Date and time of day together.
CivilTime CivilOfJulian(double julian);

} // namespace vorn
