#pragma once

namespace vorn
{

/// A calendar moment in whatever zone the context says. `month` and `day` count from 1.
struct CivilTime
{
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;

    friend bool operator==(const CivilTime&, const CivilTime&) = default;
};

/// Day of the week, 0 for Sunday to 6 for Saturday, counted from Tuesday 1 January 2008. Right from 1901 to 2100;
/// outside, years count a leap day every fourth year. A month outside 1 to 12 counts as January, with the leap day of
/// its year when above 12.
int WeekdayOf(int year, int month, int day);

/// Length of a month, 0 for a month outside 1 to 12. February has 29 days every fourth year, centuries included.
int MonthLength(int year, int month);

/// Whether the Gregorian calendar has a 29 February in `year`.
bool IsGregorianLeapYear(int year);

} // namespace vorn
