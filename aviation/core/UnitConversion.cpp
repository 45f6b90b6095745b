#include "aviation/core/UnitConversion.h"

#include "aviation/core/NumberText.h"

#include <algorithm>

namespace vorn
{

namespace
{

constexpr double kReferenceDensity = 6.0;
constexpr int kMostUnitDecimals = 1000;

// The unit that the applications hold a kind of quantity in, and the decimals they show it with.
struct KindRule
{
    UNITTYPE kind;
    UNIT internalUnit;
    int precision;
};

constexpr KindRule kKindRules[] = {
    {UNITTYPE_DISTANCE, UNIT_NM, 1},      {UNITTYPE_SPEED, UNIT_KTS, 1},     {UNITTYPE_MASS, UNIT_LBS, 0},
    {UNITTYPE_TEMPERATURE, UNIT_C, 0},    {UNITTYPE_PRESSURE, UNIT_INHG, 2}, {UNITTYPE_FUEL, UNIT_LBS, 1},
    {UNITTYPE_SHORTDISTANCE, UNIT_FT, 0},
};

const KindRule* RuleOf(UNITTYPE kind)
{
    const auto* const rule = std::find_if(std::begin(kKindRules), std::end(kKindRules),
                                          [kind](const KindRule& each)
                                          {
                                              return each.kind == kind;
                                          });
    return rule == std::end(kKindRules) ? nullptr : rule;
}

UNIT ChoiceFor(const UnitChoices& choices, UNITTYPE kind)
{
    const auto* const setting = std::find_if(std::begin(kUnitSettings), std::end(kUnitSettings),
                                             [kind](const UnitSetting& each)
                                             {
                                                 return each.kind == kind;
                                             });
    return choices.*(setting->field);
}

// Units that do not convert leave the value: that is the promise, so the result needs no look.
double Converted(double value, UNIT from, UNIT to)
{
    ConvertValue(&value, from, to);
    return value;
}

bool IsVolume(UNIT unit)
{
    return unit == UNIT_GAL || unit == UNIT_L;
}

bool IsMass(UNIT unit)
{
    return unit == UNIT_LBS || unit == UNIT_KG;
}

double SteppedDownDistance(double value, UNIT user, int& precision, UNIT& to)
{
    if (!(value < 0.5))
    {
        return value;
    }
    precision = 0;
    const UNIT next = user == UNIT_NM || user == UNIT_SM ? UNIT_FT : UNIT_M;
    value = Converted(value, user, next);
    to = next;
    if (!(value < 1.0))
    {
        return value;
    }
    const UNIT smallest = next == UNIT_FT ? UNIT_IN : UNIT_CM;
    value = Converted(value, next, smallest);
    to = smallest;
    if (!(value < 0.5))
    {
        return value;
    }
    to = user;
    return Converted(value, smallest, user);
}

UNIT FuelTarget(UNIT chosen, UNIT requested)
{
    if (chosen != UNIT_AUTO)
    {
        return chosen;
    }
    return requested != UNIT_AUTO ? requested : UNIT_GAL;
}

double FuelAtDensity(double value, UNIT from, UNIT to, double density)
{
    const double used = density == -1.0 ? kReferenceDensity : density;
    value = Converted(value, from, to);
    if (IsMass(from) && IsVolume(to))
    {
        return value * (kReferenceDensity / used);
    }
    if (IsVolume(from) && IsMass(to))
    {
        return value * (used / kReferenceDensity);
    }
    return value;
}

} // namespace

UNIT ChosenUnit(const UnitChoices& choices, UNITTYPE kind)
{
    return kind == UNITTYPE_MASS || RuleOf(kind) == nullptr ? UNIT_NM : ChoiceFor(choices, kind);
}

const char* UnitDisplayName(UNIT unit)
{
    return unit >= 0 && unit < gUnitCount ? gUnitInfo[unit][1] : "";
}

double InternalValue(const UnitChoices& choices, double value, UNITTYPE kind, int& precision, UNIT from, UNIT& to,
                     double density)
{
    const KindRule* const rule = RuleOf(kind);
    if (rule == nullptr)
    {
        return value;
    }
    const UNIT source = from == UNIT_AUTO ? rule->internalUnit : from;
    const UNIT chosen = ChoiceFor(choices, kind);
    precision = precision == -1 ? rule->precision : precision;
    if (kind == UNITTYPE_FUEL)
    {
        to = FuelTarget(chosen, to);
        return FuelAtDensity(value, source, to, density);
    }
    const bool automatic = to == UNIT_AUTO;
    to = automatic ? chosen : to;
    value = Converted(value, source, to);
    return kind == UNITTYPE_DISTANCE && automatic ? SteppedDownDistance(value, chosen, precision, to) : value;
}

std::string DecimalText(double value, int precision)
{
    return FixedText(value, std::clamp(precision, -1, kMostUnitDecimals));
}

} // namespace vorn
