#include "aviation/RuntimeClock.h"

#include <climits>

namespace vorn
{

namespace
{

constexpr int kFirstYear = 1900;

/// One less, or 1900 less, without leaving the range of an int.
int Less(int value, int by)
{
    return value < INT_MIN + by ? INT_MIN : value - by;
}

} // namespace

std::int64_t Now()
{
    return _time64(nullptr);
}

std::optional<std::tm> UniversalFields(std::int64_t moment)
{
    const __time64_t time = moment;
    std::tm fields{};
    if (_gmtime64_s(&fields, &time) != 0)
        return std::nullopt;
    return fields;
}

std::optional<std::tm> LocalFields(std::int64_t moment)
{
    const __time64_t time = moment;
    std::tm fields{};
    if (_localtime64_s(&fields, &time) != 0)
        return std::nullopt;
    return fields;
}

int CurrentLocalYear()
{
    return LocalFields(Now()).value_or(std::tm{}).tm_year + kFirstYear;
}

std::optional<CivilTime> RuntimeClock::BreakDown(std::int64_t moment) const
{
    const std::optional<std::tm> fields = LocalFields(moment);
    if (!fields)
        return std::nullopt;
    return CivilTime{fields->tm_year + kFirstYear,
                     fields->tm_mon + 1,
                     fields->tm_mday,
                     fields->tm_hour,
                     fields->tm_min,
                     fields->tm_sec};
}

std::optional<std::int64_t> RuntimeClock::Make(const CivilTime& local) const
{
    std::tm fields{};
    fields.tm_year = Less(local.year, kFirstYear);
    fields.tm_mon = Less(local.month, 1);
    fields.tm_mday = local.day;
    fields.tm_hour = local.hour;
    fields.tm_min = local.minute;
    fields.tm_sec = local.second;
    fields.tm_isdst = -1;
    const std::int64_t moment = _mktime64(&fields);
    return moment < 0 ? std::nullopt : std::optional(moment);
}

} // namespace vorn
