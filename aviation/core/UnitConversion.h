#pragma once

#include "family/TarnUtil/core/Units.h"

#include <string>

/// @file
/// Quantities in the user's units: the choices are an argument here, looked up by ConversionBoy.
namespace vorn
{

/// The user's unit for each kind of quantity, in the order of the settings. Any number is allowed: a code that is no
/// unit, or none of the kind, leaves values unconverted.
struct UnitChoices
{
    UNIT distance = UNIT_NM;
    UNIT speed = UNIT_KTS;
    UNIT fuel = UNIT_AUTO; ///< UNIT_AUTO: none chosen, fuel follows the caller's request
    UNIT mass = UNIT_LBS;
    UNIT temperature = UNIT_F;
    UNIT shortDistance = UNIT_FT;
    UNIT pressure = UNIT_INHG;
};

/// One of the seven choices: the key that stores it in the settings section "Units", and the kind it is for.
struct UnitSetting
{
    const char* key;
    UNITTYPE kind;
    UNIT UnitChoices::*field;
};

inline constexpr const char* kUnitSection = "Units";

inline constexpr UnitSetting kUnitSettings[] = {
    {"Distance", UNITTYPE_DISTANCE, &UnitChoices::distance},
    {"Speed", UNITTYPE_SPEED, &UnitChoices::speed},
    {"Fuel", UNITTYPE_FUEL, &UnitChoices::fuel},
    {"Mass", UNITTYPE_MASS, &UnitChoices::mass},
    {"Temp", UNITTYPE_TEMPERATURE, &UnitChoices::temperature},
    {"ShortDist", UNITTYPE_SHORTDISTANCE, &UnitChoices::shortDistance},
    {"Pressure", UNITTYPE_PRESSURE, &UnitChoices::pressure},
};
static_assert(sizeof(kUnitSettings) / sizeof(kUnitSettings[0]) * sizeof(UNIT) == sizeof(UnitChoices));

/// The unit chosen for @p kind. Mass and kinds without a choice give UNIT_NM: callers that want the mass unit go
/// through InternalValue.
UNIT ChosenUnit(const UnitChoices& choices, UNITTYPE kind);

/// The display name of @p unit in code page 1252; an empty text for a code outside the unit table.
const char* UnitDisplayName(UNIT unit);

/// Brings @p value of kind @p kind from the unit @p from (UNIT_AUTO: the kind's internal unit) to the unit @p to
/// (UNIT_AUTO: the user's unit, which is then filled in). @p precision is the number of decimals to show, filled in
/// when it comes in as -1.
///
/// A distance whose target is UNIT_AUTO steps down to feet or metres below 0.5 and on to inches or centimetres below
/// 1 of those, without decimals; below 0.5 of those, and so for all negative distances, it goes back to the user's
/// unit. A chosen fuel unit replaces even an explicit target; @p density in pounds per US gallon (-1: 6) applies
/// between volumes and masses of fuel, and a density of 0 gives what a division by zero gives.
///
/// Units that do not convert leave the value as it is; so do kinds without a choice, which also leave precision and
/// target.
double InternalValue(const UnitChoices& choices, double value, UNITTYPE kind, int& precision, UNIT from, UNIT& to,
                     double density);

/// @p value with @p precision decimals as the C library rounds it; a negative precision gives six decimals, one above
/// 1,000 gives 1,000.
std::string DecimalText(double value, int precision);

} // namespace vorn
