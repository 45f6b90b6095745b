#include "apps/planner/UnitChoices.h"

#include "apps/planner/StoredValue.h"

#include <array>

namespace vorn::planner
{

namespace
{

constexpr std::array<int, 3> kDistanceUnits = {UNIT_NM, UNIT_SM, UNIT_KM};
constexpr std::array<int, 4> kSpeedUnits = {UNIT_KTS, UNIT_MPH, UNIT_KPH, UNIT_MPS};
constexpr std::array<int, 3> kShortDistanceUnits = {UNIT_FT, UNIT_M, UNIT_YD};
constexpr std::array<int, 5> kFuelUnits = {UNIT_AUTO, UNIT_GAL, UNIT_L, UNIT_LBS, UNIT_KG};
constexpr std::array<int, 2> kMassUnits = {UNIT_LBS, UNIT_KG};
constexpr std::array<int, 2> kTemperatureUnits = {UNIT_F, UNIT_C};
constexpr std::array<int, 3> kPressureUnits = {UNIT_INHG, UNIT_HPA, UNIT_MMHG};

const std::array kChoices = {
    UnitChoice{"&Distance", "Distance", UNIT_NM, UNIT_KM, kDistanceUnits},
    UnitChoice{"&Speed", "Speed", UNIT_KTS, UNIT_KPH, kSpeedUnits},
    UnitChoice{"S&hort distance", "ShortDist", UNIT_FT, UNIT_M, kShortDistanceUnits},
    UnitChoice{"&Fuel", "Fuel", UNIT_AUTO, UNIT_L, kFuelUnits},
    UnitChoice{"&Mass", "Mass", UNIT_LBS, UNIT_KG, kMassUnits},
    UnitChoice{"&Temperature", "Temp", UNIT_F, UNIT_C, kTemperatureUnits},
    UnitChoice{"&Pressure", "Pressure", UNIT_INHG, UNIT_HPA, kPressureUnits},
};

} // namespace

std::span<const UnitChoice> UnitChoices()
{
    return kChoices;
}

int UnitInForce(const UnitChoice& choice)
{
    return App().GetSettingInt("Units", choice.key, choice.defaultUnit);
}

bool StoreUnit(const UnitChoice& choice, int unit)
{
    const bool stored = StoreNumber("Units", choice.key, choice.defaultUnit, unit);
    if (stored)
        GetConversionBoy()->ReadUnits();
    return stored;
}

CString UnitName(int unit)
{
    return unit == UNIT_AUTO ? "As each page asks" : gUnitInfo[unit][0];
}

} // namespace vorn::planner
