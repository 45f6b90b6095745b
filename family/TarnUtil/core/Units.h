#pragma once

#include "family/TarnUtil/core/Export.h"

/// @file
/// The family's units: their codes, names and exact conversions.

/// Codes of the family's units; also the index of a unit in gUnitInfo. -1 asks for the automatic choice.
enum UNIT : int
{
    UNIT_AUTO = -1,
    UNIT_NM = 0,    ///< nautical mile, 1852 m
    UNIT_SM = 1,    ///< statute mile, 5280 international feet
    UNIT_KM = 2,    ///< kilometre
    UNIT_FT = 3,    ///< international foot, 0.3048 m
    UNIT_M = 4,     ///< metre
    UNIT_KTS = 5,   ///< knot, one nautical mile an hour
    UNIT_MPH = 6,   ///< statute mile an hour
    UNIT_KPH = 7,   ///< kilometre an hour
    UNIT_MPS = 8,   ///< metre a second
    UNIT_GAL = 9,   ///< US gallon, 231 cubic inches
    UNIT_L = 10,    ///< litre
    UNIT_LBS = 11,  ///< avoirdupois pound, 0.45359237 kg
    UNIT_KG = 12,   ///< kilogram
    UNIT_F = 13,    ///< degree Fahrenheit
    UNIT_C = 14,    ///< degree Celsius
    UNIT_IN = 15,   ///< inch, 25.4 mm
    UNIT_YD = 16,   ///< yard, 3 feet
    UNIT_INHG = 17, ///< conventional inch of mercury, 3386.388640341 Pa
    UNIT_HPA = 18,  ///< hectopascal
    UNIT_MMHG = 19, ///< conventional millimetre of mercury, 133.322387415 Pa
    UNIT_CM = 20,   ///< centimetre
    UNIT_MM = 21    ///< millimetre
};

/// Kinds of quantity for which a user chooses a unit.
enum UNITTYPE : int
{
    UNITTYPE_DISTANCE = 0,
    UNITTYPE_SPEED = 1,
    UNITTYPE_OTHER = 2, ///< no unit of its own: values pass through unconverted
    UNITTYPE_MASS = 3,
    UNITTYPE_TEMPERATURE = 4,
    UNITTYPE_PRESSURE = 5,
    UNITTYPE_FUEL = 6,
    UNITTYPE_SHORTDISTANCE = 7
};

/// Names of every unit, indexed by UNIT: the full name, the display name and the plural. 8-bit text in code page
/// 1252: the degree sign is the one byte 0xB0.
extern TARNUTIL_API const char* const gUnitInfo[22][3];

/// The number of units in gUnitInfo.
extern TARNUTIL_API const int gUnitCount;

/// Converts @p value in place between two units of one group: all lengths; speeds; volumes and masses of fuel
/// (at 6 lb to the US gallon); temperatures; pressures.
///
/// Equal codes leave the value bit for bit as it is. NaN and infinities stay what they are. The result is the
/// correctly rounded product with an exact whole number followed by a correctly rounded division by another, so
/// 1 NM is 1852 m and 12 inches are 1 foot exactly; only the step through the Fahrenheit scale's zero rounds more.
///
/// @return true on success; false for a null pointer, a code outside the table or two units of different groups,
///         which all leave the value as it is.
TARNUTIL_API bool ConvertValue(double* value, UNIT from, UNIT to);
