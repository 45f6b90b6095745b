#include "apps/vorntool/core/ToolNumbers.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <vector>

namespace vorn::tool
{

namespace
{

// The standard's parser takes no plus sign; a sign after it would be one too many.
std::string_view WithoutPlus(std::string_view text)
{
    const bool plus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return plus ? text.substr(1) : text;
}

template <class Value>
std::optional<Value> Parse(std::string_view text)
{
    text = WithoutPlus(text);
    Value value{};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return whole ? std::optional<Value>(value) : std::nullopt;
}

} // namespace

std::optional<double> ParseNumber(std::string_view text)
{
    const std::optional<double> value = Parse<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<std::int64_t> ParseWhole(std::string_view text)
{
    return Parse<std::int64_t>(text);
}

std::optional<int> ParseSettingNumber(std::string_view text)
{
    const std::optional<std::int64_t> value = ParseWhole(text);
    if (!value || *value < std::numeric_limits<std::int32_t>::min() ||
        *value > std::numeric_limits<std::uint32_t>::max())
    {
        return std::nullopt;
    }
    return static_cast<int>(static_cast<std::uint32_t>(*value));
}

std::string NumberText(double value)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.15g", value);
    return buffer;
}

std::string NumberText(double value, int decimals)
{
    const int length = std::snprintf(nullptr, 0, "%.*f", decimals, value);
    std::vector<char> buffer(static_cast<std::size_t>(length) + 1);
    std::snprintf(buffer.data(), buffer.size(), "%.*f", decimals, value);
    return buffer.data();
}

} // namespace vorn::tool
