#include "apps/vorntool/Applications.h"
#include "apps/vorntool/Commands.h"
#include "apps/vorntool/DateNamed.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolHost.h"
#include "apps/vorntool/core/Decimals.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/Moments.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <functional>

namespace vorn::tool
{

namespace
{

constexpr unsigned kSignsCodePage = 1252; // of the degree sign

// One word of the command line with what the library makes of it.
struct Formatted
{
    std::string word;
    std::string text; ///< empty where the library has none
};

// The library's text of a word; nothing, and a reason, for a word that is no value of this kind.
using Formatter = std::function<std::optional<std::string>(const std::string& word, std::string& reason)>;

void WriteJson(JsonWriter& json, const Formatted& each)
{
    json.BeginObject().Name("value").Text(each.word).Name("text");
    each.text.empty() ? json.Null() : json.Text(each.text);
    json.EndObject();
}

ExitStatus Print(const Command& self, const Invocation& call, Output& output, const std::vector<Formatted>& all)
{
    ExitStatus status = ExitStatus::Done;
    JsonWriter json;
    json.BeginArray();
    for (const Formatted& each : all)
    {
        WriteJson(json, each);
        if (each.text.empty())
        {
            ReportError(output, self, Quoted(each.word) + " is out of range: it has no text");
            status = ExitStatus::Refused;
        }
        else if (!call.Has("json"))
        {
            output.text += each.text + "\n";
        }
    }
    output.text += call.Has("json") ? json.EndArray().Line() : "";
    return status;
}

ExitStatus FormatAll(const Command& self, const Invocation& call, Output& output, const Formatter& formatter)
{
    std::vector<Formatted> all;
    for (const std::string& word : call.values)
    {
        std::string reason;
        const std::optional<std::string> text = formatter(word, reason);
        if (!text)
        {
            ReportError(output, self, reason);
            return ExitStatus::WrongUse;
        }
        all.push_back({word, *text});
    }
    return Print(self, call, output, all);
}

// A formatter of decimal numbers.
Formatter OfNumber(std::function<CString(double)> library)
{
    return [library](const std::string& word, std::string& reason) -> std::optional<std::string>
    {
        const std::optional<double> value = ParseNumber(word);
        reason = value ? "" : Quoted(word) + " is no number";
        return value ? std::optional(Utf8FromLibrary(library(*value).GetString(), kSignsCodePage)) : std::nullopt;
    };
}

// A formatter of whole feet.
Formatter OfFeet(CString (*library)(int))
{
    return [library](const std::string& word, std::string& reason) -> std::optional<std::string>
    {
        const std::optional<std::int64_t> feet = ParseWhole(word);
        const bool fits = feet && *feet >= INT_MIN && *feet <= INT_MAX;
        reason = fits ? "" : Quoted(word) + " is no whole number of feet that fits 32 bits";
        return fits ? std::optional(Utf8FromLibrary(library(static_cast<int>(*feet)).GetString(), kSignsCodePage))
                    : std::nullopt;
    };
}

// What the call asks for goes before what is stored.
void ChoosePositionForm(ToolHost& host, const Invocation& call, int decimals)
{
    if (call.Has("seconds"))
    {
        host.Choose("General", "Show seconds", 1);
    }
    if (decimals >= 0)
    {
        host.Choose("General", "LatLonPrecSeconds", decimals);
        host.Choose("General", "LatLonPrecMinutes", decimals);
    }
}

ExitStatus FormatPosition(const Command& self, const Invocation& call, Output& output, CString (*library)(double))
{
    int decimals = -1;
    std::string reason;
    if (!TakeDecimals(call, decimals, reason))
    {
        ReportError(output, self, reason);
        return ExitStatus::WrongUse;
    }
    if (!ActAsApplication(self, call, output))
    {
        return ExitStatus::WrongUse;
    }
    ToolHost host;
    ChoosePositionForm(host, call, decimals);
    return FormatAll(self, call, output, OfNumber(library));
}

ExitStatus FormatLatitude(const Command& self, const Invocation& call, Output& output)
{
    return FormatPosition(self, call, output, LatToString);
}

ExitStatus FormatLongitude(const Command& self, const Invocation& call, Output& output)
{
    return FormatPosition(self, call, output, LonToString);
}

ExitStatus FormatCourse(const Command& self, const Invocation& call, Output& output)
{
    const auto library = [eastWest = call.Has("variation")](double value)
    {
        return CourseToString(value, eastWest);
    };
    return FormatAll(self, call, output, OfNumber(library));
}

ExitStatus FormatFeet(const Command& self, const Invocation& call, Output& output, CString (*library)(int))
{
    if (!ActAsApplication(self, call, output))
    {
        return ExitStatus::WrongUse;
    }
    const ToolHost host;
    return FormatAll(self, call, output, OfFeet(library));
}

ExitStatus FormatAltitude(const Command& self, const Invocation& call, Output& output)
{
    return FormatFeet(self, call, output, AltToString);
}

ExitStatus FormatFlightLevel(const Command& self, const Invocation& call, Output& output)
{
    return FormatFeet(self, call, output, FLAltToString);
}

ExitStatus FormatTime(const Command& self, const Invocation& call, Output& output)
{
    const auto library = [words = call.Has("words"), seconds = call.Has("seconds")](double hours)
    {
        return TimeToString(hours, words, seconds);
    };
    return FormatAll(self, call, output, OfNumber(library));
}

CString WithClock(std::int64_t moment, bool longDate)
{
    const MomentFields at = FieldsOf(moment);
    SYSTEMTIME when = {static_cast<WORD>(at.year),    static_cast<WORD>(at.month),
                       static_cast<WORD>(at.weekday), static_cast<WORD>(at.day),
                       static_cast<WORD>(at.hour),    static_cast<WORD>(at.minute),
                       static_cast<WORD>(at.second),  0};
    return TimeToString(&when, longDate);
}

CString DateText(std::int64_t moment, const Invocation& call)
{
    if (call.Has("time"))
    {
        return WithClock(moment, !call.Has("short"));
    }
    CString text;
    const auto library = call.Has("short") ? FormatStdShortDate : FormatStdLongDate;
    library(moment, text, call.Has("locale"));
    return text;
}

ExitStatus FormatDate(const Command& self, const Invocation& call, Output& output)
{
    return FormatAll(self, call, output,
                     [&](const std::string& word, std::string& reason) -> std::optional<std::string>
                     {
                         std::optional<Date> date = DateNamed(word);
                         reason = Quoted(word) + " is no moment; 'vorntool format date --help' says what is one";
                         if (!date)
                         {
                             return std::nullopt;
                         }
                         const CString text = HasTexts(*date) ? DateText(date->getTime().GetTime(), call) : CString();
                         return Utf8FromLibrary(text.GetString());
                     });
}

constexpr Option kPositionOptions[] = {
    {"seconds", nullptr, "degrees, minutes and seconds, whatever the user chose"}, kDecimalsOption, kAppOption};
constexpr Option kCourseOptions[] = {{"variation", nullptr, "a magnetic variation: E or W in front"}};
constexpr Option kFeetOptions[] = {kAppOption};
constexpr Option kTimeOptions[] = {{"seconds", nullptr, "hours, minutes and seconds"},
                                   {"words", nullptr, "in words, without seconds"}};
constexpr Option kDateOptions[] = {{"short", nullptr, "the short form"},
                                   {"locale", nullptr, "in the user's own form"},
                                   {"time", nullptr, "with the time of day, in the user's own form"}};

constexpr const char* kPositionDetails =
    "DEGREES are decimal, negative in the south and west. Whether seconds are shown and\n"
    "how many decimals is the user's choice in the application; the options go before\n"
    "it for this once, and nothing is stored.";

constexpr Command kCommands[] = {
    {"format", "lat", "DEGREES...", "Print latitudes", kPositionDetails, 1, kAnyNumber, kPositionOptions,
     FormatLatitude},
    {"format", "lon", "DEGREES...", "Print longitudes", kPositionDetails, 1, kAnyNumber, kPositionOptions,
     FormatLongitude},
    {"format", "course", "DEGREES...", "Print courses or variations in whole degrees",
     "A variation is negative in the west.", 1, kAnyNumber, kCourseOptions, FormatCourse},
    {"format", "alt", "FEET...", "Print altitudes in the user's unit",
     "-5000 to -4995 are the codes of altitudes in words (\"Unknown\", \"Unlimited\", ...).", 1, kAnyNumber,
     kFeetOptions, FormatAltitude},
    {"format", "fl", "FEET...", "Print altitudes, or flight levels",
     "Whole hundreds of feet at or above the user's transition altitude are flight\n"
     "levels; everything else is printed as 'format alt' does.",
     1, kAnyNumber, kFeetOptions, FormatFlightLevel},
    {"format", "time", "HOURS...", "Print durations or times of day", "", 1, kAnyNumber, kTimeOptions, FormatTime},
    {"format", "date", "MOMENT...", "Print dates of Universal Time", kMomentWords, 1, kAnyNumber, kDateOptions,
     FormatDate},
};

} // namespace

const CommandGroup& FormatCommands()
{
    static const CommandGroup group = {
        "format", "Texts of positions, altitudes and times, as the applications show them.", kCommands};
    return group;
}

} // namespace vorn::tool
