#include "apps/vorntool/Applications.h"
#include "apps/vorntool/Commands.h"
#include "apps/vorntool/SettingsView.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/UnitNames.h"
#include "apps/vorntool/core/Decimals.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/ToolNumbers.h"
#include "apps/vorntool/core/Utf8.h"

#include <cmath>

namespace vorn::tool
{

namespace
{

// The arguments of a conversion, checked.
struct Conversion
{
    double value;
    UNIT from;
    UNIT to;
    int decimals; ///< -1: as many as the result has
};

bool TakeUnit(const std::string& word, UNIT& unit, std::string& reason)
{
    unit = UnitNamed(word);
    reason = unit == UNIT_AUTO ? "unknown unit " + Quoted(word) + "; 'vorntool units convert --help' names them" : "";
    return unit != UNIT_AUTO;
}

bool TakeConversion(const Invocation& call, Conversion& conversion, std::string& reason)
{
    const std::optional<double> value = ParseNumber(call.values[0]);
    reason = value ? "" : Quoted(call.values[0]) + " is no number";
    conversion.value = value.value_or(0);
    return value && TakeUnit(call.values[1], conversion.from, reason) &&
           TakeUnit(call.values[2], conversion.to, reason) && TakeDecimals(call, conversion.decimals, reason);
}

std::string JsonOf(const Conversion& asked, double result)
{
    JsonWriter json;
    json.BeginObject().Name("value").Number(asked.value).Name("from").Text(DisplayNameOf(asked.from));
    json.Name("result").Number(result).Name("to").Text(DisplayNameOf(asked.to));
    return json.EndObject().Line();
}

std::string TextOf(const Conversion& asked, double result)
{
    const std::string number = asked.decimals < 0 ? NumberText(result) : NumberText(result, asked.decimals);
    return number + " " + DisplayNameOf(asked.to) + "\n";
}

ExitStatus Convert(const Command& self, const Invocation& call, Output& output)
{
    Conversion asked = {};
    std::string reason;
    if (!TakeConversion(call, asked, reason))
    {
        ReportError(output, self, reason);
        return ExitStatus::WrongUse;
    }
    double result = asked.value;
    if (!ConvertValue(&result, asked.from, asked.to))
    {
        ReportError(output, self,
                    DisplayNameOf(asked.from) + " and " + DisplayNameOf(asked.to) + " measure different things");
        return ExitStatus::Refused;
    }
    if (!std::isfinite(result))
    {
        ReportError(output, self, "the result is too large");
        return ExitStatus::Refused;
    }
    output.text = call.Has("json") ? JsonOf(asked, result) : TextOf(asked, result);
    return ExitStatus::Done;
}

// One kind of quantity with the unit in force.
struct Choice
{
    const char* kind;
    const UnitSetting* setting;
    UNIT unit;
    std::string source; ///< "registry", "INI file" or "default"
};

constexpr const char* kKindNames[] = {"Distance",    "Speed",    "",     "Mass",
                                      "Temperature", "Pressure", "Fuel", "Short distance"};

// A stored value that is no number leaves the default in force.
bool IsInForce(const char* key)
{
    AppRegMgr* const settings = AppRegMgr::Instance();
    return settings->ReadVornInt(kUnitSection, key, 1, 0) == settings->ReadVornInt(kUnitSection, key, 2, 0);
}

Choice ChoiceOf(const UnitSetting& setting, ConversionBoy& units, const SettingsView& stored)
{
    const UNIT mass = static_cast<UNIT>(AppRegMgr::Instance()->ReadVornInt(kUnitSection, setting.key, UNIT_LBS, 0));
    const auto found = stored.Find(kUnitSection, setting.key);
    return {kKindNames[setting.kind], &setting, setting.kind == UNITTYPE_MASS ? mass : units.Unit(setting.kind),
            found && IsInForce(setting.key) ? NameOf(found->source) : "default"};
}

std::vector<Choice> Choices(const CString& application)
{
    ConversionBoy units;
    const SettingsView stored(application);
    std::vector<Choice> choices;
    for (const UnitSetting& setting : kUnitSettings)
    {
        choices.push_back(ChoiceOf(setting, units, stored));
    }
    return choices;
}

std::string NameInWords(UNIT unit)
{
    if (unit == UNIT_AUTO)
    {
        return "as each place asks for";
    }
    const std::string name = PluralNameOf(unit);
    return name.empty() ? "no unit (" + std::to_string(unit) + ")" : name;
}

std::string JsonOf(const CString& application, const std::vector<Choice>& choices)
{
    JsonWriter json;
    json.BeginObject().Name("app").Text(Utf8FromLibrary(application.GetString())).Name("units").BeginArray();
    for (const Choice& choice : choices)
    {
        json.BeginObject().Name("kind").Text(choice.kind).Name("key").Text(choice.setting->key);
        json.Name("code").Whole(choice.unit).Name("unit").Text(DisplayNameOf(choice.unit));
        json.Name("source").Text(choice.source).EndObject();
    }
    return json.EndArray().EndObject().Line();
}

std::string TextOf(const std::vector<Choice>& choices)
{
    std::string text;
    for (const Choice& choice : choices)
    {
        const std::string cells[] = {choice.kind, DisplayNameOf(choice.unit), NameInWords(choice.unit)};
        const std::size_t widths[] = {16, 6, 26};
        for (std::size_t i = 0; i < std::size(cells); ++i)
        {
            const std::size_t count = CharacterCount(cells[i]);
            text += cells[i] + std::string(count < widths[i] ? widths[i] - count : 1, ' ');
        }
        text += choice.source + "\n";
    }
    return text;
}

ExitStatus Show(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<CString> application = ActAsApplication(self, call, output);
    if (!application)
    {
        return ExitStatus::WrongUse;
    }
    const std::vector<Choice> choices = Choices(*application);
    output.text = call.Has("json") ? JsonOf(*application, choices) : TextOf(choices);
    return ExitStatus::Done;
}

constexpr Option kConvertOptions[] = {kDecimalsOption};
constexpr Option kShowOptions[] = {kAppOption};

constexpr Command kCommands[] = {
    {"units", "convert", "VALUE FROM TO", "Convert a value from one unit to another",
     "Units go by their short names in any case, or by their full ones (\"nautical\n"
     "miles\"); they convert within one group:\n"
     "  length       NM SM KM FT M IN YD CM MM\n"
     "  speed        KTS MPH KPH MPS\n"
     "  fuel         GAL L LBS KG (at 6 pounds to the US gallon)\n"
     "  temperature  F C\n"
     "  pressure     inHg hPa mmHg",
     3, 3, kConvertOptions, Convert},
    {"units", "show", "", "Show the units in force, and where each choice is stored", "", 0, 0, kShowOptions, Show},
};

} // namespace

const CommandGroup& UnitsCommands()
{
    static const CommandGroup group = {"units", "Units: exact conversions, and the units that a user chose.",
                                       kCommands};
    return group;
}

} // namespace vorn::tool
