#include "aviation/ConversionBoy.h"
#include "config/AppRegMgr.h"
#include "tests/support/ScratchKey.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <limits>
#include <string>
#include <type_traits>

namespace
{

// The test program is its own host: its settings stand under its own name.
constexpr const char* kSection = "Units";

class UnitsOfTheUser : public testing::Test
{
protected:
    static void Forget()
    {
        AppRegMgr::Instance()->WriteVornString(kSection, nullptr, nullptr, 0);
    }

    static void Choose(const char* key, int unit)
    {
        ASSERT_TRUE(AppRegMgr::Instance()->WriteVornInt(kSection, key, unit, 0));
    }

private:
    const vorn::test::ScratchKey m_settings{HKEY_CURRENT_USER, "Software\\Vornwald\\windows_units_tests"};
};

// Shows what the interface keeps for derived classes.
class OpenConversionBoy : public ConversionBoy
{
public:
    using ConversionBoy::InternalValue;
};

} // namespace

static_assert(sizeof(ConversionBoy) == 28);
static_assert(!std::is_polymorphic_v<ConversionBoy>);
static_assert(std::is_copy_assignable_v<ConversionBoy> && std::is_move_assignable_v<ConversionBoy>);

TEST_F(UnitsOfTheUser, DefaultsHoldWithoutSettings)
{
    ConversionBoy units;
    EXPECT_EQ(units.Unit(UNITTYPE_DISTANCE), 0);
    EXPECT_EQ(units.Unit(UNITTYPE_SPEED), 5);
    EXPECT_EQ(units.Unit(UNITTYPE_TEMPERATURE), 13);
    EXPECT_EQ(units.Unit(UNITTYPE_PRESSURE), 17);
    EXPECT_EQ(units.Unit(UNITTYPE_FUEL), -1);
    EXPECT_EQ(units.Unit(UNITTYPE_SHORTDISTANCE), 3);
    EXPECT_STREQ(units.Str(12, UNITTYPE_DISTANCE), "12.0 NM");
    EXPECT_STREQ(units.Str(120, UNITTYPE_SPEED), "120.0 KTS");
    EXPECT_STREQ(units.Str(15, UNITTYPE_TEMPERATURE), "59 \260F");
    EXPECT_STREQ(units.Str(29.92, UNITTYPE_PRESSURE), "29.92 inHg");
    EXPECT_STREQ(units.Str(60, UNITTYPE_FUEL), "10.0 GAL");
    EXPECT_STREQ(units.Str(2300, UNITTYPE_MASS), "2300 LBS");
    EXPECT_STREQ(units.Str(1500, UNITTYPE_SHORTDISTANCE), "1500 FT");
}

TEST_F(UnitsOfTheUser, EverySettingReachesItsOwnKind)
{
    const struct
    {
        const char* key;
        UNITTYPE kind;
        UNIT unit;
        double value;
        const char* text;
    } rows[] = {{"Distance", UNITTYPE_DISTANCE, UNIT_KM, 100, "185.2 KM"},
                {"Speed", UNITTYPE_SPEED, UNIT_KPH, 100, "185.2 KPH"},
                {"Fuel", UNITTYPE_FUEL, UNIT_L, 60, "37.9 L"},
                {"Temp", UNITTYPE_TEMPERATURE, UNIT_C, -3, "-3 \260C"},
                {"ShortDist", UNITTYPE_SHORTDISTANCE, UNIT_M, 1000, "305 M"},
                {"Pressure", UNITTYPE_PRESSURE, UNIT_HPA, 29.92, "1013.21 hPa"}};
    for (const auto& row : rows)
    {
        Forget();
        Choose(row.key, row.unit);
        ConversionBoy units;
        EXPECT_EQ(units.Unit(row.kind), row.unit) << row.key;
        EXPECT_STREQ(units.Str(row.value, row.kind), row.text);
    }
}

TEST_F(UnitsOfTheUser, TheMassSettingShowsInValuesOnly)
{
    Choose("Mass", UNIT_KG);
    ConversionBoy units;
    EXPECT_EQ(units.Unit(UNITTYPE_MASS), 0);
    EXPECT_STREQ(units.UnitStr(UNITTYPE_MASS), "NM");
    EXPECT_STREQ(units.Str(1000, UNITTYPE_MASS), "454 KG");
}

TEST_F(UnitsOfTheUser, AreReadOnceAndAgainOnDemand)
{
    ConversionBoy units;
    Choose("Distance", UNIT_KM);
    EXPECT_EQ(units.Unit(UNITTYPE_DISTANCE), UNIT_NM);
    units.ReadUnits();
    EXPECT_EQ(units.Unit(UNITTYPE_DISTANCE), UNIT_KM);
}

TEST_F(UnitsOfTheUser, AStoredMinusOneIsANumberButItsTextIsNot)
{
    Choose("Fuel", UNIT_L);
    Choose("Fuel", -1);
    EXPECT_EQ(ConversionBoy().Unit(UNITTYPE_FUEL), UNIT_AUTO);
    AppRegMgr::Instance()->WriteVornString(kSection, "Speed", "-1", 0);
    EXPECT_EQ(ConversionBoy().Unit(UNITTYPE_SPEED), UNIT_KTS);
    AppRegMgr::Instance()->WriteVornString(kSection, "Speed", "6", 0);
    EXPECT_EQ(ConversionBoy().Unit(UNITTYPE_SPEED), UNIT_MPH);
}

TEST_F(UnitsOfTheUser, NonsenseSettingsLeaveValuesAndNames)
{
    Choose("Speed", 1000);
    Choose("Temp", UNIT_NM);
    ConversionBoy units;
    EXPECT_STREQ(units.UnitStr(UNITTYPE_SPEED), "");
    EXPECT_STREQ(units.Str(100, UNITTYPE_SPEED), "100.0 ");
    EXPECT_STREQ(units.Str(15, UNITTYPE_TEMPERATURE), "15 NM");
}

TEST_F(UnitsOfTheUser, CopiesTakeAllSevenChoices)
{
    for (const char* key : {"Distance", "Speed", "Fuel", "Mass", "Temp", "ShortDist", "Pressure"})
    {
        Choose(key, UNIT_HPA);
    }
    ConversionBoy chosen;
    Forget();
    ConversionBoy copy;
    copy = chosen;
    for (const int kind : {0, 1, 4, 5, 6, 7})
    {
        EXPECT_EQ(copy.Unit(static_cast<UNITTYPE>(kind)), UNIT_HPA) << kind;
    }
    EXPECT_STREQ(copy.Str(1, UNITTYPE_MASS), "1 hPa");
}

TEST_F(UnitsOfTheUser, TextsStepDownWithSmallDistances)
{
    ConversionBoy units;
    EXPECT_STREQ(units.Str(0.5, UNITTYPE_DISTANCE), "0.5 NM");
    EXPECT_STREQ(units.Str(0.3, UNITTYPE_DISTANCE), "1823 FT");
    EXPECT_STREQ(units.Str(0.0001, UNITTYPE_DISTANCE), "7 IN");
    EXPECT_STREQ(units.Str(0, UNITTYPE_DISTANCE), "0 NM");
    EXPECT_STREQ(units.Str(-0.3, UNITTYPE_DISTANCE), "-0 NM");
    EXPECT_STREQ(units.Str(-12.4, UNITTYPE_DISTANCE, 3), "-12 NM");
    EXPECT_STREQ(units.Str(0.3, UNITTYPE_DISTANCE, -1, UNIT_AUTO, UNIT_NM), "0.3 NM");
    EXPECT_DOUBLE_EQ(units.Value(0.3, UNITTYPE_DISTANCE), 1822.8346456692914);
}

TEST_F(UnitsOfTheUser, NumberAndUnitComeApart)
{
    ConversionBoy units;
    CString number = "old";
    CString unit = "old";
    units.Str(0.3, UNITTYPE_DISTANCE, number, unit);
    EXPECT_STREQ(number, "1823");
    EXPECT_STREQ(unit, "FT");
    units.Str(60, UNITTYPE_FUEL, number, unit, 2, UNIT_LBS, UNIT_L, 7.2);
    EXPECT_STREQ(number, "31.55");
    EXPECT_STREQ(unit, "L");
    units.Str(1.5, UNITTYPE_OTHER, number, unit);
    EXPECT_STREQ(number, "1.500000");
    EXPECT_STREQ(unit, "");
}

TEST_F(UnitsOfTheUser, KindsWithoutAChoiceShowSixDecimalsAndNoName)
{
    ConversionBoy units;
    EXPECT_STREQ(units.Str(1.5, UNITTYPE_OTHER), "1.500000 ");
    EXPECT_STREQ(units.Str(1.5, static_cast<UNITTYPE>(8)), "1.500000 ");
    EXPECT_STREQ(units.Str(1.5, UNITTYPE_OTHER, 2, UNIT_NM, UNIT_KM), "1.50 KM");
}

TEST_F(UnitsOfTheUser, HugeValuesAndPrecisionsComeOutWhole)
{
    ConversionBoy units;
    const CString huge = units.Str(1e300, UNITTYPE_DISTANCE);
    EXPECT_EQ(huge.GetLength(), 306);
    EXPECT_STREQ(huge.Right(5), ".0 NM");
    EXPECT_EQ(units.Str(1, UNITTYPE_SPEED, 5000).GetLength(), 2 + 1000 + 4);
    EXPECT_EQ(units.Str(1, UNITTYPE_SPEED, std::numeric_limits<int>::max()).GetLength(), 2 + 1000 + 4);
    EXPECT_STREQ(units.Str(1, UNITTYPE_SPEED, std::numeric_limits<int>::min()), "1.000000 KTS");
}

TEST_F(UnitsOfTheUser, ValueLeavesTheCallersArgumentsAndInternalValueFillsThemIn)
{
    Choose("Speed", UNIT_KPH);
    OpenConversionBoy units;
    int precision = -1;
    UNIT to = UNIT_AUTO;
    EXPECT_DOUBLE_EQ(units.InternalValue(100, UNITTYPE_SPEED, precision, UNIT_AUTO, to, -1.0), 185.2);
    EXPECT_EQ(precision, 1);
    EXPECT_EQ(to, UNIT_KPH);
    EXPECT_DOUBLE_EQ(units.Value(100, UNITTYPE_SPEED, -1, UNIT_MPS, UNIT_AUTO), 360.0);
}
