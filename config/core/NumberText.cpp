#include "config/core/NumberText.h"

#include "frame/core/Trim.h"

#include <algorithm>
#include <limits>

namespace vorn
{
namespace
{
constexpr std::int64_t kCeiling = std::int64_t{1} << 33; // beyond every 32-bit value, with or without sign

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Digits at the start of `text`, held at kCeiling once they pass it.
std::int64_t DigitsValue(std::string_view text)
{
    std::int64_t value = 0;
    for (const char c : text)
    {
        if (!IsDigit(c))
        {
            break;
        }
        value = std::min(value * 10 + (c - '0'), kCeiling);
    }
    return value;
}

int Saturated(std::int64_t value)
{
    constexpr std::int64_t lowest = std::numeric_limits<int>::min();
    constexpr std::int64_t highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, lowest, highest));
}
} // namespace

int LeadingNumber(std::string_view text)
{
    const auto first = std::find_if_not(text.begin(), text.end(), IsSpace);
    text.remove_prefix(static_cast<std::size_t>(first - text.begin()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
    {
        text.remove_prefix(1);
    }
    const std::int64_t value = DigitsValue(text);
    return Saturated(negative ? -value : value);
}

int StoredNumber(std::string_view text, int otherwise)
{
    return !text.empty() && IsDigit(text.front()) ? Saturated(DigitsValue(text)) : otherwise;
}

std::optional<std::uint32_t> DigitsOnly(std::string_view text)
{
    const std::int64_t value = DigitsValue(text);
    if (!std::all_of(text.begin(), text.end(), IsDigit) || value > std::numeric_limits<std::uint32_t>::max())
    {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(value);
}
} // namespace vorn
