#include "family/TarnUtil/core/Units.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <numeric>

namespace
{

constexpr int kUnitCount = 22;

enum class Group
{
    Length,      // base: metre
    Speed,       // base: metre a second
    Fuel,        // base: pound, volumes at 6 lb to the US gallon
    Temperature, // scales with their own zeros
    Pressure     // base: pascal
};

// One unit is numerator / denominator base units of its group, both whole numbers, so that every factor is exact.
struct UnitFactor
{
    Group group;
    std::uint64_t numerator;
    std::uint64_t denominator;
};

constexpr UnitFactor kFactors[] = {
    {Group::Length, 1852, 1},                     // NM
    {Group::Length, 1609344, 1000},               // SM
    {Group::Length, 1000, 1},                     // KM
    {Group::Length, 3048, 10000},                 // FT
    {Group::Length, 1, 1},                        // M
    {Group::Speed, 1852, 3600},                   // KTS
    {Group::Speed, 44704, 100000},                // MPH
    {Group::Speed, 10, 36},                       // KPH
    {Group::Speed, 1, 1},                         // MPS
    {Group::Fuel, 6, 1},                          // GAL
    {Group::Fuel, 6000000000, 3785411784},        // L
    {Group::Fuel, 1, 1},                          // LBS
    {Group::Fuel, 100000000, 45359237},           // KG
    {Group::Temperature, 1, 1},                   // F
    {Group::Temperature, 1, 1},                   // C
    {Group::Length, 254, 10000},                  // IN
    {Group::Length, 9144, 10000},                 // YD
    {Group::Pressure, 3386388640341, 1000000000}, // inHg
    {Group::Pressure, 100, 1},                    // hPa
    {Group::Pressure, 133322387415, 1000000000},  // mmHg
    {Group::Length, 1, 100},                      // CM
    {Group::Length, 1, 1000},                     // MM
};
static_assert(std::size(kFactors) == kUnitCount);

// The factor from one unit to another in lowest terms. Both parts are whole numbers that a double holds exactly.
struct Ratio
{
    double numerator;
    double denominator;
};

constexpr std::uint64_t kExactLimit = std::uint64_t{1} << 53;

constexpr Ratio RatioBetween(const UnitFactor& from, const UnitFactor& to)
{
    const std::uint64_t a = std::gcd(from.numerator, to.numerator);
    const std::uint64_t b = std::gcd(to.denominator, from.denominator);
    const std::uint64_t c = std::gcd(from.numerator / a, from.denominator / b);
    const std::uint64_t d = std::gcd(to.denominator / b, to.numerator / a);
    const std::uint64_t numerator = (from.numerator / a / c) * (to.denominator / b / d);
    const std::uint64_t denominator = (from.denominator / b / c) * (to.numerator / a / d);
    const std::uint64_t common = std::gcd(numerator, denominator);
    return {static_cast<double>(numerator / common), static_cast<double>(denominator / common)};
}

using RatioTable = std::array<std::array<Ratio, kUnitCount>, kUnitCount>;

constexpr RatioTable MakeRatios()
{
    RatioTable table{};
    for (std::size_t from = 0; from < kUnitCount; ++from)
    {
        for (std::size_t to = 0; to < kUnitCount; ++to)
        {
            if (kFactors[from].group == kFactors[to].group)
            {
                table[from][to] = RatioBetween(kFactors[from], kFactors[to]);
            }
        }
    }
    return table;
}

constexpr RatioTable kRatios = MakeRatios();

constexpr bool AllExact(const RatioTable& table)
{
    for (const auto& row : table)
    {
        for (const Ratio& ratio : row)
        {
            if (ratio.numerator >= static_cast<double>(kExactLimit) ||
                ratio.denominator >= static_cast<double>(kExactLimit))
            {
                return false;
            }
        }
    }
    return true;
}
static_assert(AllExact(kRatios));

bool IsUnit(UNIT unit)
{
    return unit >= 0 && unit < kUnitCount;
}

double ConvertScale(double value, const Ratio& ratio)
{
    const double product = value * ratio.numerator;
    // The product of a value near the end of the range may overflow where the result does not.
    return std::isinf(product) ? value / ratio.denominator * ratio.numerator : product / ratio.denominator;
}

double ConvertTemperature(double value, UNIT to)
{
    return to == UNIT_F ? ConvertScale(value, {9.0, 5.0}) + 32.0 : ConvertScale(value - 32.0, {5.0, 9.0});
}

} // namespace

// \260 is the degree sign in code page 1252.
const char* const gUnitInfo[kUnitCount][3] = {
    {"Nautical Mile", "NM", "Nautical Miles"},
    {"Statute Mile", "SM", "Statute Miles"},
    {"Kilometer", "KM", "Kilometers"},
    {"Foot", "FT", "Feet"},
    {"Meter", "M", "Meters"},
    {"Knot", "KTS", "Knots"},
    {"Mile per Hour", "MPH", "Miles per Hour"},
    {"Kilometer per Hour", "KPH", "Kilometers per Hour"},
    {"Meter per Second", "MPS", "Meters per Second"},
    {"Gallon", "GAL", "Gallons"},
    {"Liter", "L", "Liters"},
    {"Pound", "LBS", "Pounds"},
    {"Kilogram", "KG", "Kilograms"},
    {"Degree Fahrenheit", "\260F", "Degrees Fahrenheit"},
    {"Degree Celsius", "\260C", "Degrees Celsius"},
    {"Inch", "IN", "Inches"},
    {"Yard", "YD", "Yards"},
    {"Inch of Mercury", "inHg", "Inches of Mercury"},
    {"Hectopascal", "hPa", "Hectopascals"},
    {"Millimeter of Mercury", "mmHg", "Millimeters of Mercury"},
    {"Centimeter", "CM", "Centimeters"},
    {"Millimeter", "MM", "Millimeters"},
};

const int gUnitCount = kUnitCount;

bool ConvertValue(double* value, UNIT from, UNIT to)
{
    if (value == nullptr || !IsUnit(from) || !IsUnit(to))
    {
        return false;
    }
    if (from == to)
    {
        return true;
    }
    const auto source = static_cast<std::size_t>(from);
    const auto target = static_cast<std::size_t>(to);
    if (kFactors[source].group != kFactors[target].group)
    {
        return false;
    }
    *value = kFactors[source].group == Group::Temperature ? ConvertTemperature(*value, to)
                                                          : ConvertScale(*value, kRatios[source][target]);
    return true;
}
