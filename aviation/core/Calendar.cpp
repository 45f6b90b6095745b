#include "aviation/core/Calendar.h"

#include <array>
#include <cstdint>

namespace vorn
{

namespace
{

constexpr int kDaysInWeek = 7;
constexpr int kMonths = 12;
constexpr int kFebruary = 2;
constexpr std::array<int, kMonths> kMonthLengths = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr std::array<int, kMonths> kDaysBeforeMonth = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};

constexpr bool IsMonth(int month)
{
    return month >= 1 && month <= kMonths;
}

/// Leap days between 1 January 2008 and 1 January of `year`, one every fourth year.
constexpr std::int64_t LeapDaysSince2008(std::int64_t year)
{
    return year > 2008 ? (year - 2005) / 4 : (year - 2008) / 4;
}

} // namespace

bool IsGregorianLeapYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int WeekdayOf(int year, int month, int day)
{
    constexpr std::int64_t daysInYear = 365;
    std::int64_t days = daysInYear * (std::int64_t{year} - 2008) + LeapDaysSince2008(year);
    if (IsMonth(month))
        days += kDaysBeforeMonth[static_cast<std::size_t>(month - 1)];
    if (month > kFebruary && IsGregorianLeapYear(year))
        ++days;
    const std::int64_t weekday = (days + day + 1) % kDaysInWeek;
    return static_cast<int>(weekday < 0 ? weekday + kDaysInWeek : weekday);
}

int MonthLength(int year, int month)
{
    if (!IsMonth(month))
        return 0;
    return kMonthLengths[static_cast<std::size_t>(month - 1)] + (month == kFebruary && year % 4 == 0 ? 1 : 0);
}

} // namespace vorn
