#pragma once

#include "aviation/core/UnitConversion.h"
#include "frame/core/Export.h"
#include "framework/core/CString.h"

/// Brings quantities from the applications' internal units into those that the user chose, and makes texts of them.
///
/// The user's choices stand in the host's settings, section "Units", as unit codes under the keys "Distance", "Speed",
/// "Fuel", "Mass", "Temp", "ShortDist" and "Pressure". They are read once, by the constructor and by ReadUnits(). The
/// object is a plain record of the seven choices in that order.
///
/// In every operation -1 asks for the automatic choice: of the precision (decimals), of the source (the kind's internal
/// unit: NM, KTS, LBS, degrees Celsius, inHg, LBS of fuel, FT), of the target (the user's unit) and of the fuel's
/// density (6 lb to the US gallon). The rules of each kind, of small distances and of fuel are those of
/// vorn::InternalValue. Nothing fails: what cannot be converted keeps its value.
class VORNCOMMON_API ConversionBoy
{
public:
    /// Reads the user's choices.
    ConversionBoy();

    /// Reads the user's choices again.
    void ReadUnits();

    /// The user's unit for a kind of quantity; UNIT_NM for mass and for kinds without a choice.
    UNIT Unit(UNITTYPE t);

    /// Display name of Unit(t); empty when that is no unit of the table.
    CString UnitStr(UNITTYPE t);

    /// The value in the target unit.
    double Value(double value, UNITTYPE t, int precision = -1, UNIT from = UNIT_AUTO, UNIT to = UNIT_AUTO,
                 double density = -1.0);

    /// The value with its decimals, a blank and the unit's display name: "12.3 NM".
    CString Str(double value, UNITTYPE t, int precision = -1, UNIT from = UNIT_AUTO, UNIT to = UNIT_AUTO,
                double density = -1.0);

    /// The same in two texts.
    void Str(double value, UNITTYPE t, CString& number, CString& unit, int precision = -1, UNIT from = UNIT_AUTO,
             UNIT to = UNIT_AUTO, double density = -1.0);

protected:
    /// The value in the target unit; `precision` and `to` are filled in where they come in as -1.
    double InternalValue(double value, UNITTYPE t, int& precision, UNIT from, UNIT& to, double density);

private:
    vorn::UnitChoices m_choices;
};
