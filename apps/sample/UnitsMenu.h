#pragma once

#include <VornCommon.h>

/// The Units menu: one submenu for each kind of quantity, one item for each unit that it can be read in.
/// Command identifiers run from ID_UNIT_FIRST, 32 for each kind.
class UnitsMenu
{
public:
    /// Appends the submenus to `menu`.
    static void Fill(CMenu& menu);

    /// Stores the unit that the command stands for and makes the converter read the choices anew.
    static void Choose(UINT command);

    /// True when the command's unit is the one in force.
    static bool IsChosen(UINT command);

    /// The units in force in a few words, for the status bar.
    static CString InForce();
};
