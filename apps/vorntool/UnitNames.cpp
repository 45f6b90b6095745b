#include "apps/vorntool/UnitNames.h"

#include "apps/vorntool/TextConversion.h"

namespace vorn::tool
{

namespace
{

constexpr unsigned kTableCodePage = 1252;

// What people write besides the family's own names.
struct OtherName
{
    const char* name;
    UNIT unit;
};

constexpr OtherName kOtherNames[] = {{"mi", UNIT_SM},   {"kt", UNIT_KTS}, {"km/h", UNIT_KPH},
                                     {"m/s", UNIT_MPS}, {"lb", UNIT_LBS}, {"mbar", UNIT_HPA}};

// One column of the table: 0 full name, 1 display name, 2 plural.
std::string Name(int unit, int column)
{
    const bool known = unit >= 0 && unit < gUnitCount;
    return known ? Utf8FromLibrary(gUnitInfo[unit][column], kTableCodePage) : std::string();
}

std::string WithoutDegreeSign(const std::string& name)
{
    const std::string degree = "\xC2\xB0";
    return name.starts_with(degree) ? name.substr(degree.size()) : name;
}

bool SameWord(const std::string& a, const std::string& b)
{
    return CompareStringW(LOCALE_INVARIANT, NORM_IGNORECASE, WideFromUtf8(a).c_str(), -1, WideFromUtf8(b).c_str(),
                          -1) == CSTR_EQUAL;
}

} // namespace

UNIT UnitNamed(const std::string& word)
{
    for (int unit = 0; unit < gUnitCount; ++unit)
    {
        const std::string display = Name(unit, 1);
        for (const std::string& name : {display, WithoutDegreeSign(display), Name(unit, 0), Name(unit, 2)})
        {
            if (SameWord(word, name))
            {
                return static_cast<UNIT>(unit);
            }
        }
    }
    for (const OtherName& other : kOtherNames)
    {
        if (SameWord(word, other.name))
        {
            return other.unit;
        }
    }
    return UNIT_AUTO;
}

std::string DisplayNameOf(UNIT unit)
{
    return Name(unit, 1);
}

std::string PluralNameOf(UNIT unit)
{
    return Name(unit, 2);
}

} // namespace vorn::tool
