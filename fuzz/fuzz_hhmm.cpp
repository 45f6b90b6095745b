#include "aviation/core/Duration.h"
#include "aviation/core/Position.h"
#include "aviation/core/TimeParse.h"

#include <cstdlib>
#include <cstring>

namespace
{

bool IsInRange(std::string_view two, int limit)
{
    const bool digits = two[0] >= '0' && two[0] <= '9' && two[1] >= '0' && two[1] <= '9';
    return !digits || (two[0] - '0') * 10 + (two[1] - '0') <= limit;
}

} // namespace

/// Any text as a typed time, and its first bytes as a number to print.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto time = vorn::ParseHourMinute(text);
    if (time && (time->hour < 0 || time->hour > 23 || time->minute < 0 || time->minute > 59))
    {
        std::abort();
    }
    const std::string valid = vorn::ValidatedTime(text);
    if (valid.size() != 4 || !IsInRange(std::string_view(valid).substr(0, 2), 23) ||
        !IsInRange(std::string_view(valid).substr(2), 59) || vorn::ValidatedTime(valid) != valid)
    {
        std::abort();
    }
    double number = 0;
    if (size >= sizeof number + 2)
    {
        std::memcpy(&number, data, sizeof number);
        const int decimals = static_cast<signed char>(data[sizeof number]) * 3;
        const bool flag = (data[sizeof number + 1] & 1) != 0;
        vorn::PositionText(number, vorn::Axis::Longitude, {flag, decimals});
        vorn::DurationText(number, {flag, !flag});
        std::int64_t moment = 0;
        std::memcpy(&moment, data, sizeof moment);
        vorn::WithinNextDay(moment, INT64_MIN);
        vorn::WithinNextDay(moment, INT64_MAX);
        const std::int64_t soon = vorn::WithinNextDay(moment % (INT64_MAX / 4), 1'700'000'000);
        if (soon < 1'700'000'000 || soon > 1'700'000'000 + 86400)
        {
            std::abort();
        }
    }
    return 0;
}
