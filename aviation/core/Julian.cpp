#include "aviation/core/Julian.h"

#include <cmath>
#include <cstdint>

namespace vorn
{

namespace
{

constexpr double kDaysInYear = 365.25;
constexpr double kDaysInMonth = 30.6001;
constexpr double kSecondsInDay = 86400.0;
constexpr double kFirstGregorianDay = 2299161.0;
constexpr double kFarthestDay = 1e8;

bool IsOldStyle(const CivilTime& moment)
{
    if (moment.year != 1582)
        return moment.year < 1582;
    return moment.month < 9 || (moment.month == 9 && moment.day < 5);
}

bool IsUsable(double julian)
{
    return std::fabs(julian) <= kFarthestDay; // false for a NaN
}

/// The day number in a calendar with a leap day every fourth year.
double WithoutCenturyRule(double dayNumber)
{
    if (dayNumber < kFirstGregorianDay)
        return dayNumber;
    const double alpha = std::floor((dayNumber - 1867216.25) / 36524.25);
    return dayNumber + 1 + alpha - std::floor(alpha * 0.25);
}

} // namespace

double JulianOfCivil(const CivilTime& moment)
{
    const bool afterFebruary = moment.month > 2;
    const std::int64_t year = std::int64_t{moment.year} - (afterFebruary ? 0 : 1);
    const std::int64_t month = std::int64_t{moment.month} + (afterFebruary ? 0 : 12);
    const std::int64_t century = year / 100;
    const std::int64_t correction = IsOldStyle(moment) ? 0 : 2 - century + century / 4;
    const std::int64_t seconds = moment.second + 60 * (moment.minute + 60 * std::int64_t{moment.hour});
    return std::trunc(kDaysInYear * static_cast<double>(year + 4716)) +
           std::trunc(kDaysInMonth * static_cast<double>(month + 1)) + moment.day + static_cast<double>(correction) -
           1524.5 + static_cast<double>(seconds) / kSecondsInDay;
}

CivilTime DateOfJulian(double julian)
{
    if (!IsUsable(julian))
        return {};
    const double dayNumber = std::floor(julian + 0.5);
    const double fraction = julian + 0.5 - dayNumber;
    const double b = WithoutCenturyRule(dayNumber) + 1524;
    const double c = std::floor((b - 122.1) / kDaysInYear);
    const double d = std::floor(kDaysInYear * c);
    const double e = std::floor((b - d) / kDaysInMonth);
    CivilTime date;
    date.day = static_cast<int>(b - d - std::floor(kDaysInMonth * e) + fraction);
    date.month = static_cast<int>(e < 14 ? e - 1 : e - 13);
    date.year = static_cast<int>(date.month < 3 ? c - 4715 : c - 4716);
    return date;
}

CivilTime ClockOfJulian(double julian)
{
    if (!IsUsable(julian))
        return {};
    const double fraction = (julian + 0.5) - std::floor(julian + 0.5);
    const int seconds = static_cast<int>(fraction * kSecondsInDay);
    CivilTime clock;
    clock.hour = seconds / 3600;
    clock.minute = seconds / 60 % 60;
    clock.second = seconds % 60;
    return clock;
}

CivilTime CivilOfJulian(double julian)
{
    CivilTime moment = ClockOfJulian(julian);
    const CivilTime date = DateOfJulian(julian);
    moment.year = date.year;
    moment.month = date.month;
    moment.day = date.day;
    return moment;
}

} // namespace vorn
