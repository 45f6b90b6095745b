#include "apps/chart/core/LabelText.h"

#include <algorithm>

namespace vorn::chart
{

namespace
{

constexpr double kFullBelow = 1'200'000;
constexpr double kFrequencyBelow = 2'600'000;
constexpr double kIdentsBelow = 6'000'000;
constexpr double kRadialsBelow = 15'000'000;
constexpr int kLargeField = 8000; // feet of runway

bool OnlyLetters(const std::string& text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char letter)
                       {
                           return letter >= 'A' && letter <= 'Z';
                       });
}

/// "432 L 119": elevation, L for lights, the longest runway in hundreds of feet.
std::string FieldFacts(const Aerodrome& aerodrome)
{
    std::string text = aerodrome.elevation ? std::to_string(*aerodrome.elevation) : std::string("-");
    text += aerodrome.Longest().lighted ? " L " : " - ";
    text += std::to_string(aerodrome.Longest().length / 100);
    return text;
}

} // namespace

Detail DetailAt(double denominator)
{
    if (denominator <= kFullBelow)
        return Detail::Full;
    if (denominator <= kFrequencyBelow)
        return Detail::Frequency;
    if (denominator <= kIdentsBelow)
        return Detail::Idents;
    return denominator <= kRadialsBelow ? Detail::Radials : Detail::Marks;
}

LabelText LabelOf(const Aid& aid, Detail detail)
{
    switch (detail)
    {
    case Detail::Marks:
        return {};
    case Detail::Radials:
    case Detail::Idents:
        return {{aid.ident, TextStyle::Ident, {}}};
    case Detail::Frequency:
        return {{aid.ident, TextStyle::Ident, {}}, {FrequencyText(aid), TextStyle::Small, {}}};
    case Detail::Full:
        break;
    }
    const std::string morse = OnlyLetters(aid.ident) ? aid.ident : std::string();
    return {{aid.name, TextStyle::Plain, {}},
            {FrequencyText(aid), TextStyle::Small, {}},
            {aid.ident, TextStyle::Ident, morse}};
}

LabelText LabelOf(const Aerodrome& aerodrome, Detail detail)
{
    switch (detail)
    {
    case Detail::Marks:
    case Detail::Radials:
        return {};
    case Detail::Idents:
    case Detail::Frequency:
        return {{aerodrome.ident, TextStyle::Small, {}}};
    case Detail::Full:
        break;
    }
    return {{aerodrome.name, TextStyle::Plain, {}},
            {aerodrome.ident, TextStyle::Small, {}},
            {FieldFacts(aerodrome), TextStyle::Small, {}}};
}

bool IsShown(const Aid& aid, Detail detail)
{
    return detail >= Detail::Idents || HasRadials(aid.kind);
}

bool IsShown(const Aerodrome& aerodrome, Detail detail)
{
    return detail >= Detail::Frequency || (detail == Detail::Idents && aerodrome.Longest().length >= kLargeField);
}

int PriorityOf(const Aid& aid)
{
    return HasRadials(aid.kind) ? 300 : 100;
}

int PriorityOf(const Aerodrome& aerodrome)
{
    return 120 + std::min(100, aerodrome.Longest().length / 150);
}

} // namespace vorn::chart
