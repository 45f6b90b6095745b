#include "framework/core/NumberScan.h"

#include <algorithm>
#include <charconv>

namespace vorn
{
namespace
{
constexpr std::string_view kBlanks = " \t";

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// The trimmed text without a plus sign, which std::from_chars does not know. Empty for "+-1".
std::string_view Prepared(std::string_view text)
{
    text = Trimmed(text);
    if (!text.starts_with('+'))
        return text;
    text.remove_prefix(1);
    return text.starts_with('-') ? std::string_view() : text;
}

template <class T>
std::optional<T> ScanAll(std::string_view text)
{
    T value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

bool IsRealCharacter(char c)
{
    return (c >= '0' && c <= '9') || std::string_view("+-.eE").find(c) != std::string_view::npos;
}
} // namespace

std::optional<std::int64_t> ScanWhole(std::string_view text)
{
    return ScanAll<std::int64_t>(Prepared(text));
}

std::optional<std::uint64_t> ScanUnsigned(std::string_view text)
{
    return ScanAll<std::uint64_t>(Prepared(text));
}

std::optional<double> ScanReal(std::string_view text)
{
    const std::string_view number = Prepared(text);
    if (!std::all_of(number.begin(), number.end(), IsRealCharacter))
        return std::nullopt;
    return ScanAll<double>(number);
}

std::string RealText(double value, int digits)
{
    constexpr int kMostDigits = 40;
    char buffer[64];
    const int precision = std::clamp(digits, 1, kMostDigits);
    const auto result = std::to_chars(buffer, buffer + sizeof(buffer), value, std::chars_format::general, precision);
    return {buffer, result.ptr};
}
} // namespace vorn
