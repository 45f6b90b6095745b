#include "aviation/core/NumberText.h"

#include <charconv>
#include <cstdio>

namespace vorn
{

namespace
{

constexpr bool IsAbsurd(int number)
{
    // Widths stand a few characters above their decimals.
    constexpr int slack = 8;
    return number > kMostDecimals + slack || number < -kMostDecimals - slack;
}

} // namespace

std::string FixedText(double value, int decimals)
{
    return PaddedFixedText(value, 0, decimals);
}

std::string PaddedFixedText(double value, int width, int decimals)
{
    if (IsAbsurd(width) || IsAbsurd(decimals))
        return {};
    char buffer[64];
    const int length = std::snprintf(buffer, sizeof buffer, "%0*.*f", width, decimals, value);
    if (length < 0)
        return {};
    const auto size = static_cast<std::size_t>(length);
    if (size < sizeof buffer)
        return std::string(buffer, size);
    std::string text(size, '\0');
    std::snprintf(text.data(), size + 1, "%0*.*f", width, decimals, value);
    return text;
}

void AppendPadded(CompactText& text, std::int64_t value, int width)
{
    char buffer[24];
    const char* const end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    const bool negative = value < 0;
    if (negative)
        text.Append('-');
    for (auto length = end - buffer; length < width; ++length)
        text.Append('0');
    text.Append(std::string_view(buffer + negative, static_cast<std::size_t>(end - buffer - negative)));
}

} // namespace vorn
