#include "apps/vorntool/core/Moments.h"

#include "apps/vorntool/core/ToolNumbers.h"

#include <chrono>
#include <cstdio>

namespace vorn::tool
{

namespace
{

constexpr std::int64_t kFirst = -62135596800; // 0001-01-01T00:00:00Z
constexpr std::int64_t kLast = 253402300799;  // 9999-12-31T23:59:59Z
constexpr std::int64_t kDay = 86400;

// Takes `digits` digits from the front, and the character before them where one is asked for.
bool Take(std::string_view& text, const char* before, std::size_t digits, unsigned& number)
{
    if (*before != '\0')
    {
        if (text.empty() || std::string_view(before).find(text[0]) == std::string_view::npos)
        {
            return false;
        }
        text.remove_prefix(1);
    }
    number = 0;
    for (std::size_t i = 0; i < digits; ++i, text.remove_prefix(1))
    {
        if (text.empty() || text[0] < '0' || text[0] > '9')
        {
            return false;
        }
        number = number * 10 + static_cast<unsigned>(text[0] - '0');
    }
    return true;
}

std::optional<std::int64_t> TakeDay(std::string_view& text)
{
    unsigned year = 0;
    unsigned month = 0;
    unsigned day = 0;
    if (!Take(text, "", 4, year) || !Take(text, "-", 2, month) || !Take(text, "-", 2, day) || year == 0)
    {
        return std::nullopt;
    }
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(year)), std::chrono::month(month),
                                           std::chrono::day(day)};
    return date.ok() ? std::optional<std::int64_t>(std::chrono::sys_days(date).time_since_epoch().count())
                     : std::nullopt;
}

std::optional<std::int64_t> TakeClock(std::string_view& text)
{
    unsigned hour = 0;
    unsigned minute = 0;
    unsigned second = 0;
    if (text.empty())
    {
        return 0;
    }
    if (!Take(text, "Tt ", 2, hour) || !Take(text, ":", 2, minute) ||
        (text.starts_with(':') && !Take(text, ":", 2, second)))
    {
        return std::nullopt;
    }
    const bool fits = hour < 24 && minute < 60 && second < 60;
    return fits ? std::optional<std::int64_t>((hour * 60 + minute) * 60 + second) : std::nullopt;
}

std::optional<std::int64_t> ParseSeconds(std::string_view text)
{
    const std::optional<std::int64_t> seconds = ParseWhole(text);
    return seconds && *seconds >= kFirst && *seconds <= kLast ? seconds : std::nullopt;
}

} // namespace

std::optional<std::int64_t> ParseMoment(std::string_view text, std::int64_t now)
{
    if (text == "now")
    {
        return now;
    }
    if (text.starts_with('@'))
    {
        return ParseSeconds(text.substr(1));
    }
    if (text.ends_with('Z') || text.ends_with('z'))
    {
        text.remove_suffix(1);
    }
    const std::optional<std::int64_t> day = TakeDay(text);
    const std::optional<std::int64_t> clock = day ? TakeClock(text) : std::nullopt;
    return clock && text.empty() ? std::optional(*day * kDay + *clock) : std::nullopt;
}

MomentFields FieldsOf(std::int64_t moment)
{
    const std::chrono::sys_seconds time{std::chrono::seconds(moment)};
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const auto clock = static_cast<unsigned>((time - day).count());
    return {static_cast<int>(date.year()),
            static_cast<unsigned>(date.month()),
            static_cast<unsigned>(date.day()),
            std::chrono::weekday(day).c_encoding(),
            clock / 3600,
            clock / 60 % 60,
            clock % 60};
}

std::string MomentText(std::int64_t moment)
{
    const MomentFields at = FieldsOf(moment);
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02u:%02u:%02uZ", at.year, at.month, at.day, at.hour, at.minute,
                  at.second);
    return text;
}

} // namespace vorn::tool
