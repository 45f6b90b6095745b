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

/// Cut toward zero. The library's own ways take many times longer where the processor has no instruction for them.
double Cut(double value)
{
    constexpr double limit = 2147483648.0;
    return std::fabs(value) < limit ? static_cast<double>(static_cast<std::int32_t>(value)) : std::trunc(value);
}

double Floor(double value)
{
    const double cut = Cut(value);
    return cut > value ? cut - 1 : cut;
}

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
    const double alpha = Floor((dayNumber - 1867216.25) / 36524.25);
    return dayNumber + 1 + alpha - Floor(alpha * 0.25);
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
    return Cut(kDaysInYear * static_cast<double>(year + 4716)) + Cut(kDaysInMonth * static_cast<double>(month + 1)) +
           moment.day + static_cast<double>(correction) - 1524.5 + static_cast<double>(seconds) / kSecondsInDay;
}

CivilTime DateOfJulian(double julian)
{
    if (!IsUsable(julian))
        return {};
    const double dayNumber = Floor(julian + 0.5);
    const double fraction = julian + 0.5 - dayNumber;
    const double b = WithoutCenturyRule(dayNumber) + 1524;
    const double c = Floor((b - 122.1) / kDaysInYear);
    const double d = Floor(kDaysInYear * c);
    const double e = Floor((b - d) / kDaysInMonth);
    CivilTime date;
    date.day = static_cast<int>(b - d - Floor(kDaysInMonth * e) + fraction);
    date.month = static_cast<int>(e < 14 ? e - 1 : e - 13);
    date.year = static_cast<int>(date.month < 3 ? c - 4715 : c - 4716);
    return date;
}

CivilTime ClockOfJulian(double julian)
{
    if (!IsUsable(julian))
        return {};
    const double fraction = (julian + 0.5) - Floor(julian + 0.5);
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
