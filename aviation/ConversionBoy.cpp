#include "aviation/ConversionBoy.h"

#include "config/AppRegMgr.h"
#include "frame/core/StringViews.h"

#include <type_traits>

static_assert(sizeof(ConversionBoy) == 7 * sizeof(int) && std::is_trivially_copyable_v<ConversionBoy>);

ConversionBoy::ConversionBoy()
{
    ReadUnits();
}

void ConversionBoy::ReadUnits()
{
    const vorn::UnitChoices defaults;
    for (const vorn::UnitSetting& setting : vorn::kUnitSettings)
    {
        const int unit =
            AppRegMgr::Instance()->ReadVornInt(vorn::kUnitSection, setting.key, defaults.*(setting.field), 0);
        m_choices.*(setting.field) = static_cast<UNIT>(unit);
    }
}

UNIT ConversionBoy::Unit(UNITTYPE t)
{
    return vorn::ChosenUnit(m_choices, t);
}

CString ConversionBoy::UnitStr(UNITTYPE t)
{
    return CString(vorn::UnitDisplayName(Unit(t)));
}

double ConversionBoy::Value(double value, UNITTYPE t, int precision, UNIT from, UNIT to, double density)
{
    return InternalValue(value, t, precision, from, to, density);
}

CString ConversionBoy::Str(double value, UNITTYPE t, int precision, UNIT from, UNIT to, double density)
{
    const double converted = InternalValue(value, t, precision, from, to, density);
    return vorn::ToCString(vorn::DecimalText(converted, precision).append(" ").append(vorn::UnitDisplayName(to)));
}

void ConversionBoy::Str(double value, UNITTYPE t, CString& number, CString& unit, int precision, UNIT from, UNIT to,
                        double density)
{
    const double converted = InternalValue(value, t, precision, from, to, density);
    number = vorn::ToCString(vorn::DecimalText(converted, precision));
    unit = vorn::UnitDisplayName(to);
}

double ConversionBoy::InternalValue(double value, UNITTYPE t, int& precision, UNIT from, UNIT& to, double density)
{
    return vorn::InternalValue(m_choices, value, t, precision, from, to, density);
}
