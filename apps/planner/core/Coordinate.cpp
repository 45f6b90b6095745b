#include "apps/planner/core/PlanSums.h"

#include <charconv>
#include <cmath>

namespace vorn::planner
{

namespace
{

/// A typed coordinate, taken apart.
struct Parts
{
    std::vector<double> numbers;
    char letter = 0;
    bool isNegative = false;
};

bool IsDigit(char c)
{
    return (c >= '0' && c <= '9') || c == '.';
}

bool IsMark(char c)
{
    return c == ' ' || c == '\'' || c == '"' || c == ':' || c == '\xB0';
}

bool TakeLetter(char c, bool isLatitude, Parts& parts)
{
    const char upper = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    const bool fits = isLatitude ? upper == 'N' || upper == 'S' : upper == 'E' || upper == 'W';
    if (!fits || parts.letter != 0)
        return false;
    parts.letter = upper;
    return true;
}

bool TakeApart(const std::string& text, bool isLatitude, Parts& parts)
{
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end)
    {
        if (IsDigit(*at))
        {
            double number = 0;
            const auto taken = std::from_chars(at, end, number, std::chars_format::fixed);
            if (taken.ec != std::errc() || taken.ptr == at)
                return false;
            parts.numbers.push_back(number);
            at = taken.ptr;
            continue;
        }
        if (*at == '-' && parts.numbers.empty() && !parts.isNegative)
            parts.isNegative = true;
        else if (!IsMark(*at) && !TakeLetter(*at, isLatitude, parts))
            return false;
        ++at;
    }
    return !(parts.isNegative && parts.letter != 0);
}

/// Only the last number may have a fraction, and minutes and seconds stay below 60.
bool IsWellFormed(const std::vector<double>& numbers)
{
    if (numbers.empty() || numbers.size() > 3)
        return false;
    for (std::size_t i = 0; i < numbers.size(); ++i)
    {
        if (i > 0 && numbers[i] >= 60)
            return false;
        if (i + 1 < numbers.size() && numbers[i] != std::floor(numbers[i]))
            return false;
    }
    return true;
}

} // namespace

bool ParseCoordinate(const std::string& text, bool isLatitude, double& degrees)
{
    Parts parts;
    if (!TakeApart(text, isLatitude, parts) || !IsWellFormed(parts.numbers))
        return false;
    double value = 0;
    double unit = 1;
    for (const double number : parts.numbers)
    {
        value += number * unit;
        unit /= 60;
    }
    if (value > (isLatitude ? 90 : 180))
        return false;
    degrees = parts.isNegative || parts.letter == 'S' || parts.letter == 'W' ? -value : value;
    return true;
}

} // namespace vorn::planner
