#include "aviation/core/Duration.h"

#include "aviation/core/NumberText.h"

#include <cmath>
#include <cstdint>

namespace vorn
{

namespace
{

struct HourMinuteSecond
{
    std::int64_t hours;
    std::int64_t minutes;
    std::int64_t seconds;
};

HourMinuteSecond TakeApart(double hours, bool seconds)
{
    const double wholeHours = std::trunc(hours);
    const double minutes = (hours - wholeHours) * 60.0;
    const double wholeMinutes = std::trunc(minutes);
    const double wholeSeconds = std::trunc((minutes - wholeMinutes) * 60.0 + 0.5);
    HourMinuteSecond parts{static_cast<std::int64_t>(wholeHours), static_cast<std::int64_t>(wholeMinutes),
                           static_cast<std::int64_t>(wholeSeconds)};
    if (parts.seconds == 60 || (!seconds && parts.seconds > 30))
    {
        parts.seconds = 0;
        ++parts.minutes;
    }
    if (parts.minutes == 60)
    {
        parts.minutes = 0;
        ++parts.hours;
    }
    return parts;
}

CompactText InWords(const HourMinuteSecond& parts)
{
    CompactText text;
    AppendPadded(text, parts.hours, 1);
    text.Append(parts.hours == 1 ? " Hour " : " Hours ");
    AppendPadded(text, parts.minutes, 1);
    text.Append(parts.minutes == 1 ? " Minute" : " Minutes");
    return text;
}

CompactText InDigits(const HourMinuteSecond& parts, bool seconds)
{
    CompactText text;
    AppendPadded(text, parts.hours, 2);
    text.Append(':');
    AppendPadded(text, parts.minutes, 2);
    if (seconds)
    {
        text.Append(':');
        AppendPadded(text, parts.seconds, 2);
    }
    return text;
}

/// The whole hours fit 32 bits; false for a NaN.
bool IsConvertible(double hours)
{
    return hours > -2147483649.0 && hours < 2147483648.0;
}

} // namespace

CompactText DurationText(double hours, DurationFormat format)
{
    if (!IsConvertible(hours))
        return {};
    const HourMinuteSecond parts = TakeApart(hours, format.seconds);
    return format.words ? InWords(parts) : InDigits(parts, format.seconds);
}

} // namespace vorn
