#include "apps/sample/UnitsMenu.h"

#include "apps/sample/resource.h"

#include <array>
#include <span>

namespace
{

constexpr UINT kCommandsPerKind = 32;

constexpr std::array<int, 3> kDistanceUnits = {UNIT_NM, UNIT_SM, UNIT_KM};
constexpr std::array<int, 4> kSpeedUnits = {UNIT_KTS, UNIT_MPH, UNIT_KPH, UNIT_MPS};
constexpr std::array<int, 3> kShortDistanceUnits = {UNIT_FT, UNIT_M, UNIT_YD};
constexpr std::array<int, 5> kFuelUnits = {UNIT_AUTO, UNIT_GAL, UNIT_L, UNIT_LBS, UNIT_KG};
constexpr std::array<int, 2> kMassUnits = {UNIT_LBS, UNIT_KG};
constexpr std::array<int, 2> kTemperatureUnits = {UNIT_F, UNIT_C};
constexpr std::array<int, 3> kPressureUnits = {UNIT_INHG, UNIT_HPA, UNIT_MMHG};

struct UnitChoice
{
    const char* label;
    const char* key; // in section "Units"
    int defaultUnit;
    std::span<const int> units;
};

const std::array kChoices = {
    UnitChoice{"&Distance", "Distance", UNIT_NM, kDistanceUnits},
    UnitChoice{"&Speed", "Speed", UNIT_KTS, kSpeedUnits},
    UnitChoice{"S&hort distance", "ShortDist", UNIT_FT, kShortDistanceUnits},
    UnitChoice{"&Fuel", "Fuel", UNIT_AUTO, kFuelUnits},
    UnitChoice{"&Mass", "Mass", UNIT_LBS, kMassUnits},
    UnitChoice{"&Temperature", "Temp", UNIT_F, kTemperatureUnits},
    UnitChoice{"&Pressure", "Pressure", UNIT_INHG, kPressureUnits},
};

struct Command
{
    const UnitChoice* choice = nullptr; // null: no such command
    int unit = UNIT_AUTO;
};

Command Decode(UINT command)
{
    const UINT index = (command - ID_UNIT_FIRST) / kCommandsPerKind;
    const UINT item = (command - ID_UNIT_FIRST) % kCommandsPerKind;
    if (command < ID_UNIT_FIRST || index >= kChoices.size() || item >= kChoices[index].units.size())
        return {};
    return {&kChoices[index], kChoices[index].units[item]};
}

int UnitInForce(const UnitChoice& choice)
{
    return VornCommonApp::Inst()->GetSettingInt("Units", choice.key, choice.defaultUnit);
}

CString ItemText(int unit)
{
    if (unit == UNIT_AUTO)
        return "&As asked by each page";
    CString text;
    text.Format("%s\t%s", gUnitInfo[unit][0], gUnitInfo[unit][1]);
    return text;
}

} // namespace

void UnitsMenu::Fill(CMenu& menu)
{
    UINT first = ID_UNIT_FIRST;
    for (const UnitChoice& choice : kChoices)
    {
        CMenu items;
        items.CreatePopupMenu();
        UINT command = first;
        for (const int unit : choice.units)
            items.AppendMenu(MF_STRING, command++, ItemText(unit));
        menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(items.Detach()), choice.label);
        first += kCommandsPerKind;
    }
}

void UnitsMenu::Choose(UINT command)
{
    const Command chosen = Decode(command);
    if (chosen.choice == nullptr)
        return;
    VornCommonApp::Inst()->WriteSettingInt("Units", chosen.choice->key, chosen.unit);
    GetConversionBoy()->ReadUnits();
}

bool UnitsMenu::IsChosen(UINT command)
{
    const Command asked = Decode(command);
    return asked.choice != nullptr && UnitInForce(*asked.choice) == asked.unit;
}

CString UnitsMenu::InForce()
{
    CString text;
    for (const UnitChoice& choice : kChoices)
    {
        const int unit = UnitInForce(choice);
        if (unit < 0 || unit >= gUnitCount)
            continue;
        if (!text.IsEmpty())
            text += "  ";
        text += gUnitInfo[unit][1];
    }
    return text;
}
