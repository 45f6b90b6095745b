#include "aviation/core/Currency.h"

#include "aviation/core/NumberText.h"
#include "aviation/core/SaturatingTime.h"

#include <cmath>

namespace vorn
{

namespace
{

constexpr std::size_t kMomentCapacity = 128;
constexpr double kSecondsPerDay = 86400.0;

std::string Around(std::string_view moment, std::string_view before, double days, std::string_view after)
{
    std::string text(moment);
    text += before;
    text += FixedText(std::fabs(days), 1);
    text += after;
    return text;
}

} // namespace

bool IsExpiredAt(std::int64_t expiry, std::int64_t now)
{
    return now > expiry;
}

bool IsLateAt(std::int64_t expiry, std::int64_t now)
{
    return expiry < now && now < AddSaturated(expiry, kLateSeconds);
}

double DaysUntil(std::int64_t moment, std::int64_t now)
{
    return static_cast<double>(SubtractSaturated(moment, now)) / kSecondsPerDay;
}

COLORREF NavTextColor(bool expired)
{
    return expired ? kExpiredColor : 0;
}

COLORREF TerminalTextColor(bool late, bool expired)
{
    return late ? kLateColor : NavTextColor(expired);
}

std::string MomentText(const std::tm& moment, const char* picture)
{
    char buffer[kMomentCapacity];
    return std::string(buffer, std::strftime(buffer, sizeof buffer, picture, &moment));
}

std::string NavExpiryText(std::string_view moment, double days, bool expired)
{
    return Around(moment, "  (", days, expired ? " days ago)" : " days)");
}

std::string TerminalExpiryText(std::string_view moment, double days, bool late, bool expired)
{
    if (late)
        return Around(moment, " Late: ", days, " days");
    if (expired)
        return Around(moment, " LATE: ", days, " days");
    return Around(moment, " (", days, " days)");
}

} // namespace vorn
