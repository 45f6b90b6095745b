#include "apps/sample/UnitsMenu.h"

#include "apps/planner/UnitChoices.h"
#include "apps/sample/resource.h"

using vorn::planner::UnitChoice;
using vorn::planner::UnitChoices;
using vorn::planner::UnitInForce;

namespace
{

constexpr UINT kCommandsPerKind = 32;

struct Command
{
    const UnitChoice* choice = nullptr; // null: no such command
    int unit = UNIT_AUTO;
};

Command Decode(UINT command)
{
    const UINT index = (command - ID_UNIT_FIRST) / kCommandsPerKind;
    const UINT item = (command - ID_UNIT_FIRST) % kCommandsPerKind;
    if (command < ID_UNIT_FIRST || index >= UnitChoices().size() || item >= UnitChoices()[index].units.size())
        return {};
    return {&UnitChoices()[index], UnitChoices()[index].units[item]};
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
    for (const UnitChoice& choice : UnitChoices())
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
    for (const UnitChoice& choice : UnitChoices())
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
