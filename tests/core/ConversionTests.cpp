#include "aviation/core/UnitConversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

using namespace vorn;

namespace
{

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr UNIT kNoUnit = static_cast<UNIT>(99);

struct Shown
{
    double value;
    int precision;
    UNIT unit;
};

struct Request
{
    int precision = -1;
    UNIT from = UNIT_AUTO;
    UNIT to = UNIT_AUTO;
    double density = -1.0;
};

Shown Show(const UnitChoices& choices, double value, UNITTYPE kind, const Request& request = {})
{
    Shown shown = {0, request.precision, request.to};
    shown.value = InternalValue(choices, value, kind, shown.precision, request.from, shown.unit, request.density);
    return shown;
}

void ExpectShown(const Shown& shown, double value, int precision, UNIT unit)
{
    EXPECT_DOUBLE_EQ(shown.value, value);
    EXPECT_EQ(shown.precision, precision);
    EXPECT_EQ(shown.unit, unit);
}

UnitChoices WithDistance(UNIT unit)
{
    UnitChoices choices;
    choices.distance = unit;
    return choices;
}

UnitChoices WithFuel(UNIT unit)
{
    UnitChoices choices;
    choices.fuel = unit;
    return choices;
}

double Below(double value)
{
    return std::nextafter(value, -kInfinity);
}

} // namespace

TEST(UnitSettings, NameKeysFieldsAndDefaultsInOrder)
{
    const UnitChoices defaults;
    const struct
    {
        const char* key;
        int unit;
        int kind;
    } expected[] = {{"Distance", 0, 0}, {"Speed", 5, 1},     {"Fuel", -1, 6},    {"Mass", 11, 3},
                    {"Temp", 13, 4},    {"ShortDist", 3, 7}, {"Pressure", 17, 5}};
    const UNIT* field = &defaults.distance;
    for (std::size_t i = 0; i < std::size(kUnitSettings); ++i)
    {
        EXPECT_STREQ(kUnitSettings[i].key, expected[i].key);
        EXPECT_EQ(kUnitSettings[i].kind, expected[i].kind) << kUnitSettings[i].key;
        EXPECT_EQ(defaults.*(kUnitSettings[i].field), expected[i].unit) << kUnitSettings[i].key;
        EXPECT_EQ(&(defaults.*(kUnitSettings[i].field)), field + i) << kUnitSettings[i].key;
    }
}

TEST(ChosenUnit, GivesTheFieldOfTheKind)
{
    const UnitChoices choices = {UNIT_KM, UNIT_MPH, UNIT_L, UNIT_KG, UNIT_C, UNIT_M, UNIT_HPA};
    EXPECT_EQ(ChosenUnit(choices, UNITTYPE_DISTANCE), UNIT_KM);
    EXPECT_EQ(ChosenUnit(choices, UNITTYPE_SPEED), UNIT_MPH);
    EXPECT_EQ(ChosenUnit(choices, UNITTYPE_TEMPERATURE), UNIT_C);
    EXPECT_EQ(ChosenUnit(choices, UNITTYPE_PRESSURE), UNIT_HPA);
    EXPECT_EQ(ChosenUnit(choices, UNITTYPE_FUEL), UNIT_L);
    EXPECT_EQ(ChosenUnit(choices, UNITTYPE_SHORTDISTANCE), UNIT_M);
}

TEST(ChosenUnit, MassAndUnknownKindsGiveZero)
{
    const UnitChoices choices = {UNIT_KM, UNIT_MPH, UNIT_L, UNIT_KG, UNIT_C, UNIT_M, UNIT_HPA};
    for (const int kind : {2, 3, 8, 9, 1000, -1, std::numeric_limits<int>::min()})
    {
        EXPECT_EQ(ChosenUnit(choices, static_cast<UNITTYPE>(kind)), UNIT_NM) << kind;
    }
}

TEST(ChosenUnit, FuelIsAutomaticByDefaultAndHasNoName)
{
    EXPECT_EQ(ChosenUnit({}, UNITTYPE_FUEL), UNIT_AUTO);
    EXPECT_STREQ(UnitDisplayName(ChosenUnit({}, UNITTYPE_FUEL)), "");
    EXPECT_STREQ(UnitDisplayName(ChosenUnit({}, UNITTYPE_MASS)), "NM");
}

TEST(UnitDisplayName, IsEmptyOutsideTheTable)
{
    EXPECT_STREQ(UnitDisplayName(UNIT_NM), "NM");
    EXPECT_STREQ(UnitDisplayName(UNIT_MM), "MM");
    EXPECT_STREQ(UnitDisplayName(UNIT_F), "\260F");
    for (const int unit : {-1, -2, 22, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    {
        EXPECT_STREQ(UnitDisplayName(static_cast<UNIT>(unit)), "") << unit;
    }
}

TEST(InternalValue, DefaultsOfEveryKind)
{
    ExpectShown(Show({}, 12, UNITTYPE_DISTANCE), 12, 1, UNIT_NM);
    ExpectShown(Show({}, 120, UNITTYPE_SPEED), 120, 1, UNIT_KTS);
    ExpectShown(Show({}, 2300, UNITTYPE_MASS), 2300, 0, UNIT_LBS);
    ExpectShown(Show({}, 15, UNITTYPE_TEMPERATURE), 59, 0, UNIT_F);
    ExpectShown(Show({}, 29.92, UNITTYPE_PRESSURE), 29.92, 2, UNIT_INHG);
    ExpectShown(Show({}, 60, UNITTYPE_FUEL), 10, 1, UNIT_GAL);
    ExpectShown(Show({}, 1000, UNITTYPE_SHORTDISTANCE), 1000, 0, UNIT_FT);
}

TEST(InternalValue, TheUsersUnitOfEveryKind)
{
    const UnitChoices choices = {UNIT_KM, UNIT_MPH, UNIT_L, UNIT_KG, UNIT_C, UNIT_M, UNIT_HPA};
    ExpectShown(Show(choices, 100, UNITTYPE_DISTANCE), 185.2, 1, UNIT_KM);
    ExpectShown(Show(choices, 100, UNITTYPE_SPEED), 115.07794480235425, 1, UNIT_MPH);
    ExpectShown(Show(choices, 1000, UNITTYPE_MASS), 453.59237, 0, UNIT_KG);
    ExpectShown(Show(choices, 15, UNITTYPE_TEMPERATURE), 15, 0, UNIT_C);
    ExpectShown(Show(choices, 29.92, UNITTYPE_PRESSURE), 1013.2074811900272, 2, UNIT_HPA);
    ExpectShown(Show(choices, 60, UNITTYPE_FUEL), 37.85411784, 1, UNIT_L);
    ExpectShown(Show(choices, 1000, UNITTYPE_SHORTDISTANCE), 304.8, 0, UNIT_M);
}

TEST(InternalValue, TheCallersSourceTargetAndPrecisionWin)
{
    ExpectShown(Show({}, 1, UNITTYPE_DISTANCE, {.precision = 3, .from = UNIT_KM, .to = UNIT_M}), 1000, 3, UNIT_M);
    ExpectShown(Show({}, 36, UNITTYPE_SPEED, {.precision = 0, .from = UNIT_KPH, .to = UNIT_MPS}), 10, 0, UNIT_MPS);
    ExpectShown(Show({}, 1, UNITTYPE_MASS, {.from = UNIT_KG, .to = UNIT_LBS}), 2.2046226218487757, 0, UNIT_LBS);
    ExpectShown(Show({}, 59, UNITTYPE_TEMPERATURE, {.from = UNIT_F, .to = UNIT_C}), 15, 0, UNIT_C);
    ExpectShown(Show({}, 0.1, UNITTYPE_SHORTDISTANCE, {.precision = -2}), 0.1, -2, UNIT_FT);
}

TEST(InternalValue, UnconvertiblePairsLeaveTheValueButTakeTargetAndPrecision)
{
    ExpectShown(Show({}, 5, UNITTYPE_DISTANCE, {.to = UNIT_KTS}), 5, 1, UNIT_KTS);
    ExpectShown(Show({}, 5, UNITTYPE_SPEED, {.from = kNoUnit}), 5, 1, UNIT_KTS);
    ExpectShown(Show({}, 5, UNITTYPE_PRESSURE, {.to = kNoUnit}), 5, 2, kNoUnit);
    ExpectShown(Show(WithDistance(kNoUnit), 5, UNITTYPE_DISTANCE), 5, 1, kNoUnit);
    ExpectShown(Show(WithDistance(UNIT_AUTO), 5, UNITTYPE_DISTANCE), 5, 1, UNIT_AUTO);
}

TEST(InternalValue, KindsWithoutAChoicePassThroughUntouched)
{
    for (const int kind : {2, 8, 9, 1000, -1, std::numeric_limits<int>::min()})
    {
        ExpectShown(Show({}, 1.5, static_cast<UNITTYPE>(kind)), 1.5, -1, UNIT_AUTO);
        ExpectShown(Show({}, 1.5, static_cast<UNITTYPE>(kind), {.precision = 4, .from = UNIT_NM, .to = UNIT_KM}), 1.5,
                    4, UNIT_KM);
    }
}

TEST(DistanceStepDown, StopsAtExactlyHalfTheUsersUnit)
{
    ExpectShown(Show({}, 0.5, UNITTYPE_DISTANCE), 0.5, 1, UNIT_NM);
    ExpectShown(Show({}, Below(0.5), UNITTYPE_DISTANCE), 3038.0577427821518, 0, UNIT_FT);
    ExpectShown(Show(WithDistance(UNIT_SM), 0.5, UNITTYPE_DISTANCE, {.from = UNIT_SM}), 0.5, 1, UNIT_SM);
    ExpectShown(Show(WithDistance(UNIT_SM), Below(0.5), UNITTYPE_DISTANCE, {.from = UNIT_SM}), 2639.9999999999995, 0,
                UNIT_FT);
    ExpectShown(Show(WithDistance(UNIT_KM), 0.5, UNITTYPE_DISTANCE, {.from = UNIT_KM}), 0.5, 1, UNIT_KM);
    ExpectShown(Show(WithDistance(UNIT_KM), Below(0.5), UNITTYPE_DISTANCE, {.from = UNIT_KM}), 499.99999999999994, 0,
                UNIT_M);
}

TEST(DistanceStepDown, StopsAtExactlyOneOfTheNextUnit)
{
    const Request fromKm = {.from = UNIT_KM};
    const Shown at = Show(WithDistance(UNIT_KM), 0.001, UNITTYPE_DISTANCE, fromKm);
    EXPECT_EQ(at.value, 1.0);
    EXPECT_EQ(at.unit, UNIT_M);
    ExpectShown(Show(WithDistance(UNIT_KM), Below(0.001), UNITTYPE_DISTANCE, fromKm), 99.99999999999997, 0, UNIT_CM);
}

TEST(DistanceStepDown, StopsAtExactlyHalfOfTheSmallestUnit)
{
    const Request fromKm = {.from = UNIT_KM};
    const Shown at = Show(WithDistance(UNIT_KM), 5e-6, UNITTYPE_DISTANCE, fromKm);
    EXPECT_EQ(at.value, 0.5);
    EXPECT_EQ(at.unit, UNIT_CM);
    EXPECT_EQ(at.precision, 0);
    ExpectShown(Show(WithDistance(UNIT_KM), Below(5e-6), UNITTYPE_DISTANCE, fromKm), Below(5e-6), 0, UNIT_KM);
}

// Walks over every double around one foot and half an inch, where the steps of miles lie.
TEST(DistanceStepDown, MilesStepAtOneFootAndHalfAnInchToTheLastBit)
{
    for (const UNIT user : {UNIT_NM, UNIT_SM})
    {
        for (const double inches : {12.0, 0.5})
        {
            double value = inches;
            ConvertValue(&value, UNIT_IN, user);
            const double end = value * (1 + 1e-14);
            for (value *= 1 - 1e-14; value < end; value = std::nextafter(value, 1.0))
            {
                double feet = value;
                ConvertValue(&feet, user, UNIT_FT);
                double asInches = feet;
                ConvertValue(&asInches, UNIT_FT, UNIT_IN);
                const UNIT expected = feet >= 1.0 ? UNIT_FT : asInches >= 0.5 ? UNIT_IN : user;
                const Shown shown = Show(WithDistance(user), value, UNITTYPE_DISTANCE, {.from = user});
                ASSERT_EQ(shown.unit, expected) << user << " " << value;
                ASSERT_EQ(shown.precision, 0);
            }
        }
    }
}

TEST(DistanceStepDown, SmallDistancesInEveryStep)
{
    ExpectShown(Show({}, 0.3, UNITTYPE_DISTANCE), 1822.8346456692914, 0, UNIT_FT);
    ExpectShown(Show({}, 0.0001, UNITTYPE_DISTANCE), 7.291338582677166, 0, UNIT_IN);
    ExpectShown(Show({}, 0, UNITTYPE_DISTANCE), 0, 0, UNIT_NM);
    ExpectShown(Show(WithDistance(UNIT_KM), 0.3, UNITTYPE_DISTANCE), 0.5556, 1, UNIT_KM);
    ExpectShown(Show(WithDistance(UNIT_KM), 0.2, UNITTYPE_DISTANCE), 370.4, 0, UNIT_M);
}

TEST(DistanceStepDown, EveryOtherUnitGoesToMetresAndCentimetres)
{
    ExpectShown(Show(WithDistance(UNIT_FT), 0.4, UNITTYPE_DISTANCE, {.from = UNIT_FT}), 12.192, 0, UNIT_CM);
    ExpectShown(Show(WithDistance(UNIT_M), 0.4, UNITTYPE_DISTANCE, {.from = UNIT_M}), 40, 0, UNIT_CM);
    ExpectShown(Show(WithDistance(UNIT_IN), 0.4, UNITTYPE_DISTANCE, {.from = UNIT_IN}), 1.016, 0, UNIT_CM);
    ExpectShown(Show(WithDistance(UNIT_YD), 0.4, UNITTYPE_DISTANCE, {.from = UNIT_YD}), 36.576, 0, UNIT_CM);
    ExpectShown(Show(WithDistance(UNIT_MM), 0.4, UNITTYPE_DISTANCE, {.from = UNIT_MM}), 0.4, 0, UNIT_MM);
}

TEST(DistanceStepDown, AnExplicitTargetIsNeverChanged)
{
    ExpectShown(Show({}, 0.3, UNITTYPE_DISTANCE, {.to = UNIT_NM}), 0.3, 1, UNIT_NM);
    ExpectShown(Show({}, 0, UNITTYPE_DISTANCE, {.to = UNIT_KM}), 0, 1, UNIT_KM);
    ExpectShown(Show({}, -3, UNITTYPE_DISTANCE, {.precision = 2, .to = UNIT_NM}), -3, 2, UNIT_NM);
}

TEST(DistanceStepDown, ReplacesTheCallersPrecisionByNone)
{
    ExpectShown(Show({}, 0.3, UNITTYPE_DISTANCE, {.precision = 4}), 1822.8346456692914, 0, UNIT_FT);
    ExpectShown(Show({}, 0, UNITTYPE_DISTANCE, {.precision = 4}), 0, 0, UNIT_NM);
    ExpectShown(Show({}, 0.5, UNITTYPE_DISTANCE, {.precision = 4}), 0.5, 4, UNIT_NM);
}

TEST(DistanceStepDown, NegativeDistancesGoDownAndBackWithoutDecimals)
{
    for (const double value : {-0.3, -12.0, -5000.0})
    {
        ExpectShown(Show({}, value, UNITTYPE_DISTANCE), value, 0, UNIT_NM);
        ExpectShown(Show(WithDistance(UNIT_KM), value, UNITTYPE_DISTANCE, {.from = UNIT_KM}), value, 0, UNIT_KM);
    }
    ExpectShown(Show({}, -kInfinity, UNITTYPE_DISTANCE), -kInfinity, 0, UNIT_NM);
}

TEST(DistanceStepDown, NotANumberKeepsOneDecimal)
{
    const Shown shown = Show({}, kNotANumber, UNITTYPE_DISTANCE);
    EXPECT_TRUE(std::isnan(shown.value));
    EXPECT_EQ(shown.precision, 1);
    EXPECT_EQ(shown.unit, UNIT_NM);
}

TEST(DistanceStepDown, OnlyDistancesStepDown)
{
    ExpectShown(Show({}, 0.1, UNITTYPE_SHORTDISTANCE), 0.1, 0, UNIT_FT);
    ExpectShown(Show({}, 0.06, UNITTYPE_FUEL), 0.01, 1, UNIT_GAL);
    ExpectShown(Show({}, 0.1, UNITTYPE_SPEED), 0.1, 1, UNIT_KTS);
}

TEST(Fuel, TheChosenUnitReplacesEvenAnExplicitTarget)
{
    ExpectShown(Show(WithFuel(UNIT_L), 60, UNITTYPE_FUEL, {.to = UNIT_GAL}), 37.85411784, 1, UNIT_L);
    ExpectShown(Show(WithFuel(UNIT_KG), 60, UNITTYPE_FUEL), 27.2155422, 1, UNIT_KG);
}

TEST(Fuel, WithoutAChoiceTheRequestStandsElseGallons)
{
    ExpectShown(Show({}, 60, UNITTYPE_FUEL, {.to = UNIT_KG}), 27.2155422, 1, UNIT_KG);
    ExpectShown(Show({}, 60, UNITTYPE_FUEL), 10, 1, UNIT_GAL);
    ExpectShown(Show({}, 10, UNITTYPE_FUEL, {.from = UNIT_GAL, .to = UNIT_L}), 37.85411784, 1, UNIT_L);
}

TEST(Fuel, DensityScalesFromMassToVolume)
{
    ExpectShown(Show({}, 60, UNITTYPE_FUEL, {.density = 6.0}), 10, 1, UNIT_GAL);
    ExpectShown(Show({}, 60, UNITTYPE_FUEL, {.density = 7.2}), 8.333333333333334, 1, UNIT_GAL);
    ExpectShown(Show({}, 60, UNITTYPE_FUEL, {.from = UNIT_KG, .to = UNIT_L, .density = 6.7}), 74.73496524196416, 1,
                UNIT_L);
}

TEST(Fuel, DensityScalesFromVolumeToMass)
{
    ExpectShown(Show({}, 10, UNITTYPE_FUEL, {.from = UNIT_GAL, .to = UNIT_LBS, .density = 6.7}), 67, 1, UNIT_LBS);
    ExpectShown(Show({}, 10, UNITTYPE_FUEL, {.from = UNIT_L, .to = UNIT_KG, .density = 6.7}), 8.028370630232073, 1,
                UNIT_KG);
}

TEST(Fuel, DensityLeavesMassToMassAndVolumeToVolume)
{
    ExpectShown(Show({}, 60, UNITTYPE_FUEL, {.to = UNIT_KG, .density = 7.2}), 27.2155422, 1, UNIT_KG);
    ExpectShown(Show({}, 10, UNITTYPE_FUEL, {.from = UNIT_GAL, .to = UNIT_L, .density = 7.2}), 37.85411784, 1, UNIT_L);
    ExpectShown(Show({}, 60, UNITTYPE_FUEL, {.to = kNoUnit, .density = 7.2}), 60, 1, kNoUnit);
}

TEST(Fuel, OnlyMinusOneMeansTheReferenceDensity)
{
    ExpectShown(Show({}, 60, UNITTYPE_FUEL, {.density = -1.0}), 10, 1, UNIT_GAL);
    ExpectShown(Show({}, 60, UNITTYPE_FUEL, {.density = -2.0}), -30, 1, UNIT_GAL);
}

TEST(Fuel, ADensityOfZeroDividesByZero)
{
    ExpectShown(Show({}, 60, UNITTYPE_FUEL, {.density = 0.0}), kInfinity, 1, UNIT_GAL);
    ExpectShown(Show({}, 10, UNITTYPE_FUEL, {.from = UNIT_GAL, .to = UNIT_LBS, .density = 0.0}), 0, 1, UNIT_LBS);
    EXPECT_TRUE(std::isnan(Show({}, 60, UNITTYPE_FUEL, {.density = kNotANumber}).value));
}

TEST(DecimalText, RoundsAsTheStandardPrintfDoes)
{
    EXPECT_EQ(DecimalText(0.5, 0), "0");
    EXPECT_EQ(DecimalText(1.5, 0), "2");
    EXPECT_EQ(DecimalText(2.5, 0), "2");
    EXPECT_EQ(DecimalText(0.25, 1), "0.2");
    EXPECT_EQ(DecimalText(-0.3, 0), "-0");
    EXPECT_EQ(DecimalText(1822.8346456692914, 0), "1823");
    EXPECT_EQ(DecimalText(29.92, 2), "29.92");
    EXPECT_EQ(DecimalText(12, 1), "12.0");
}

TEST(DecimalText, NegativePrecisionGivesSixDecimals)
{
    EXPECT_EQ(DecimalText(1.5, -1), "1.500000");
    EXPECT_EQ(DecimalText(1.5, -7), "1.500000");
    EXPECT_EQ(DecimalText(1.5, std::numeric_limits<int>::min()), "1.500000");
}

TEST(DecimalText, HugePrecisionIsTakenAsAThousand)
{
    const std::string thousand = "1.5" + std::string(999, '0');
    EXPECT_EQ(DecimalText(1.5, 1000), thousand);
    EXPECT_EQ(DecimalText(1.5, 1001), thousand);
    EXPECT_EQ(DecimalText(1.5, std::numeric_limits<int>::max()), thousand);
}

TEST(DecimalText, HugeValuesComeOutWhole)
{
    const std::string text = DecimalText(1e300, 1);
    EXPECT_EQ(text.size(), 303u);
    EXPECT_EQ(text.substr(0, 20), "10000000000000000525");
    EXPECT_EQ(text.substr(301), ".0");
    EXPECT_EQ(DecimalText(-std::numeric_limits<double>::max(), 1000).size(), 1u + 309u + 1u + 1000u);
}

TEST(DecimalText, EveryLengthAroundTheShortBufferComesOutWhole)
{
    for (int decimals = 55; decimals < 70; ++decimals)
    {
        EXPECT_EQ(DecimalText(2, decimals), "2." + std::string(static_cast<std::size_t>(decimals), '0'));
    }
}

TEST(DecimalText, InfinityAndNotANumberAreWords)
{
    EXPECT_EQ(DecimalText(kInfinity, 1), "inf");
    EXPECT_EQ(DecimalText(-kInfinity, 1), "-inf");
    EXPECT_EQ(DecimalText(kNotANumber, 1), "nan");
}
