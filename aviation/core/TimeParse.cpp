#include "aviation/core/TimeParse.h"

#include "aviation/core/SaturatingTime.h"
#include "frame/core/Trim.h"

#include <limits>

namespace vorn
{

namespace
{

constexpr std::size_t kMostDigits = 4;
constexpr std::int64_t kSecondsPerDay = 24 * 3600;

constexpr bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Digits of the text in order, at most four.
struct Digits
{
    int values[kMostDigits] = {};
    std::size_t count = 0;
};

Digits CollectDigits(std::string_view text)
{
    Digits digits;
    for (const char c : text)
    {
        if (digits.count == kMostDigits)
            break;
        if (IsDigit(c))
            digits.values[digits.count++] = c - '0';
    }
    return digits;
}

/// `atoi` of a short text: white space, a sign, digits.
int LeadingNumber(std::string_view text)
{
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+'))
        text.remove_prefix(1);
    int value = 0;
    for (; !text.empty() && IsDigit(text.front()); text.remove_prefix(1))
        value = 10 * value + (text.front() - '0');
    return negative ? -value : value;
}

bool FitsInt32(std::int64_t value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    return value >= Limits::min() && value <= Limits::max();
}

} // namespace

std::optional<HourMinute> ParseHourMinute(std::string_view text)
{
    const Digits digits = CollectDigits(text);
    const int* const d = digits.values;
    HourMinute time;
    if (digits.count == 3)
        time = {d[0], 10 * d[1] + d[2]};
    else if (digits.count == 4)
        time = {10 * d[0] + d[1], 10 * d[2] + d[3]};
    else
        return std::nullopt;
    if (time.hour >= 24 || time.minute >= 60)
        return std::nullopt;
    return time;
}

std::int32_t TypedTimeOnDayOf(std::int32_t base, std::string_view text, const LocalClock& clock)
{
    const std::optional<HourMinute> typed = ParseHourMinute(text);
    const std::optional<CivilTime> day = typed ? clock.BreakDown(base) : std::nullopt;
    if (!day)
        return base;
    const std::optional<std::int64_t> moment =
        clock.Make({day->year, day->month, day->day, typed->hour, typed->minute, day->second});
    return moment && FitsInt32(*moment) ? static_cast<std::int32_t>(*moment) : base;
}

std::string ValidatedTime(std::string_view hhmm)
{
    std::string padded(hhmm.size() < kMostDigits ? kMostDigits - hhmm.size() : 0, '0');
    padded += hhmm.substr(0, kMostDigits);
    const std::string_view hours = std::string_view(padded).substr(0, 2);
    const std::string_view minutes = std::string_view(padded).substr(2);
    const int hour = LeadingNumber(hours);
    const int minute = LeadingNumber(minutes);
    if (hour == 24 && minute == 0)
        return "0000";
    std::string result(hour > 23 ? "23" : hours);
    result += minute > 59 ? "59" : minutes;
    return result;
}

std::int64_t WithinNextDay(std::int64_t t, std::int64_t now)
{
    const bool past = t < now;
    const std::uint64_t distance = past ? static_cast<std::uint64_t>(now) - static_cast<std::uint64_t>(t)
                                        : static_cast<std::uint64_t>(t) - static_cast<std::uint64_t>(now);
    const auto rest = static_cast<std::int64_t>(distance % static_cast<std::uint64_t>(kSecondsPerDay));
    return AddSaturated(now, past ? kSecondsPerDay - rest : rest);
}

} // namespace vorn
