#include "aviation/core/Position.h"

#include "aviation/core/NumberText.h"
#include "aviation/core/Rounding.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace vorn
{

namespace
{

constexpr double kSixty = 60.0;
constexpr double kFirstTooLarge = 2147483648.0;

/// Up to this many decimals sixty units fit 32 bits.
constexpr int kMostQuickDecimals = 7;
constexpr std::array<std::uint32_t, kMostQuickDecimals + 1> kQuickPowers = {1,      10,      100,       1'000,
                                                                            10'000, 100'000, 1'000'000, 10'000'000};

/// A coordinate taken apart. The last field, minutes or seconds, is apart from the whole fields before it.
struct Parts
{
    std::uint32_t degrees;
    std::uint32_t minutes;
    double last;
};

Parts TakeApart(double magnitude, bool seconds)
{
    const auto degrees = static_cast<std::int32_t>(magnitude);
    const double minutes = (magnitude - degrees) * kSixty;
    if (!seconds)
        return {static_cast<std::uint32_t>(degrees), 0, minutes};
    const auto whole = static_cast<std::int32_t>(minutes);
    return {static_cast<std::uint32_t>(degrees), static_cast<std::uint32_t>(whole), (minutes - whole) * kSixty};
}

/// A last field of sixty makes one more minute or degree.
void Carry(Parts& parts, bool seconds)
{
    if (!seconds)
        ++parts.degrees;
    else if (++parts.minutes == 60)
    {
        parts.minutes = 0;
        ++parts.degrees;
    }
}

/// `number` with at least `digits` digits, written to end before `end`; returns where it begins.
char* WriteBackwards(char* end, std::uint32_t number, int digits)
{
    for (; digits > 0 || number != 0; --digits, number /= 10)
        *--end = static_cast<char>('0' + number % 10);
    return end;
}

char LetterOf(double value, Axis axis)
{
    if (axis == Axis::Latitude)
        return value >= 0 ? 'N' : 'S';
    return value >= 0 ? 'E' : 'W';
}

/// Everything before the last field, ending before `end`.
char* WriteHead(char* end, const Parts& parts, char letter, bool seconds)
{
    *--end = ' ';
    if (seconds)
    {
        *--end = '\'';
        end = WriteBackwards(end, parts.minutes, 2);
        *--end = ' ';
    }
    *--end = kDegreeSign;
    char* const degreesEnd = end;
    end = WriteBackwards(end, parts.degrees, 2);
    if (degreesEnd - end < 3)
        *--end = ' ';
    *--end = letter;
    return end;
}

/// The usual precisions, in integers: after rounding to k / 10^n, printf shows exactly the digits of k.
CompactText QuickText(Parts parts, char letter, PositionFormat format)
{
    const std::uint32_t power = kQuickPowers[static_cast<std::size_t>(format.decimals)];
    auto units = static_cast<std::uint32_t>(static_cast<std::int32_t>(parts.last * power + 0.5));
    if (units == 60 * power)
    {
        units = 0;
        Carry(parts, format.seconds);
    }
    char buffer[40];
    char* const end = buffer + sizeof buffer;
    char* begin = end;
    if (!format.seconds)
        *--begin = '\'';
    if (format.decimals > 0)
    {
        begin = WriteBackwards(begin, units % power, format.decimals);
        *--begin = '.';
    }
    begin = WriteBackwards(begin, units / power, format.decimals > 0 ? 2 : 3);
    begin = WriteHead(begin, parts, letter, format.seconds);
    CompactText text;
    text.Append(std::string_view(begin, static_cast<std::size_t>(end - begin)));
    return text;
}

/// Any number of decimals, through printf.
CompactText PrintedText(Parts parts, char letter, PositionFormat format)
{
    CompactText text;
    if (format.decimals > kMostDecimals || format.decimals < -kMostDecimals)
        return text;
    parts.last = RoundedTo(parts.last, format.decimals);
    if (parts.last == kSixty)
    {
        parts.last = 0;
        Carry(parts, format.seconds);
    }
    char buffer[40];
    char* const end = buffer + sizeof buffer;
    char* const begin = WriteHead(end, parts, letter, format.seconds);
    text.Append(std::string_view(begin, static_cast<std::size_t>(end - begin)));
    text.Append(PaddedFixedText(parts.last, format.decimals + 3, format.decimals));
    if (!format.seconds)
        text.Append('\'');
    return text;
}

} // namespace

CompactText PositionText(double degrees, Axis axis, PositionFormat format)
{
    const double magnitude = std::fabs(degrees);
    if (!(magnitude < kFirstTooLarge))
        return {};
    const Parts parts = TakeApart(magnitude, format.seconds);
    const char letter = LetterOf(degrees, axis);
    if (format.decimals >= 0 && format.decimals <= kMostQuickDecimals)
        return QuickText(parts, letter, format);
    return PrintedText(parts, letter, format);
}

} // namespace vorn
