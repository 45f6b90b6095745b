#include "apps/sample/model/TypedNumber.h"

#include <charconv>
#include <cmath>
#include <string>

std::optional<double> TypedNumber(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t+");
    if (first == std::string_view::npos)
        return std::nullopt;
    std::string digits(text.substr(first, text.find_last_not_of(" \t") + 1 - first));
    if (const std::size_t comma = digits.find(','); comma != std::string::npos)
        digits[comma] = '.';
    double value = 0.0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}
