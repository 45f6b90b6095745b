#include "apps/vorntool/Commands.h"
#include "apps/vorntool/DateNamed.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/Columns.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/Moments.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <cstdio>
#include <memory>

namespace vorn::tool
{

namespace
{

std::string StateOf(Date& date)
{
    if (!date.isValid())
    {
        return "unset";
    }
    return date.isLate() ? "late" : date.isExpired() ? "expired" : "valid";
}

// "#rrggbb", as the web writes colours.
std::string ColourText(unsigned long colour)
{
    char text[16];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", static_cast<unsigned>(GetRValue(colour)),
                  static_cast<unsigned>(GetGValue(colour)), static_cast<unsigned>(GetBValue(colour)));
    return text;
}

std::string Text(const CString& text)
{
    return Utf8FromLibrary(text.GetString());
}

std::string TextOf(Date& date)
{
    const std::int64_t moment = date.getTime().GetTime();
    const bool daylight = Date::isDST(date.getTime());
    return LinedUp({{"Universal Time", MomentText(moment)},
                    {"Seconds since 1970", std::to_string(moment)},
                    {"Julian day", NumberText(date.getJDate(), 2)},
                    {"Local day", Text(date.GetDMdY()) + (daylight ? " (daylight saving)" : "")},
                    {"State", StateOf(date)},
                    {"Effective", Text(date.GetNavEffDate())},
                    {"Expiry", Text(date.GetNavExpDate())},
                    {"Expiry colour", ColourText(date.GetNavTextColor())},
                    {"Charts effective", Text(date.GetTermEffDate())},
                    {"Charts expiry", Text(date.GetTermExpDate())},
                    {"Charts colour", ColourText(date.GetTCTextColor())}});
}

void WriteTexts(JsonWriter& json, const char* name, const CString& effective, const CString& expiry,
                unsigned long colour)
{
    json.Name(name).BeginObject().Name("effective").Text(Text(effective)).Name("expiry").Text(Text(expiry));
    json.Name("colour").Text(ColourText(colour)).EndObject();
}

std::string JsonOf(Date& date)
{
    JsonWriter json;
    json.BeginObject().Name("moment").Text(MomentText(date.getTime().GetTime()));
    json.Name("seconds").Whole(date.getTime().GetTime()).Name("julian").Number(date.getJDate());
    json.Name("localDay").Text(Text(date.GetDMdY())).Name("daylightSaving").Flag(Date::isDST(date.getTime()));
    json.Name("state").Text(StateOf(date)).Name("days").Number(date.GetDaysDiff());
    WriteTexts(json, "navigation", date.GetNavEffDate(), date.GetNavExpDate(), date.GetNavTextColor());
    WriteTexts(json, "charts", date.GetTermEffDate(), date.GetTermExpDate(), date.GetTCTextColor());
    return json.EndObject().Line();
}

struct ExceptionDeleter
{
    void operator()(CException* exception) const
    {
        exception->Delete();
    }
};

// Nothing where the runtime cannot break the moment down in the local zone.
std::optional<std::string> Described(Date& date, bool asJson)
{
    try
    {
        return asJson ? JsonOf(date) : TextOf(date);
    }
    catch (COleException* exception)
    {
        const std::unique_ptr<CException, ExceptionDeleter> caught(exception);
        return std::nullopt;
    }
}

ExitStatus ShowDate(const Command& self, const Invocation& call, Output& output)
{
    const std::string& word = call.values[0];
    std::optional<Date> date = DateNamed(word);
    if (!date)
    {
        ReportError(output, self, Quoted(word) + " is no moment; 'vorntool date --help' says what is one");
        return ExitStatus::WrongUse;
    }
    const std::optional<std::string> described =
        HasTexts(*date) ? Described(*date, call.Has("json")) : std::optional<std::string>();
    if (!described)
    {
        ReportError(output, self, Quoted(word) + " is no moment from 1970 to 3000");
        return ExitStatus::Refused;
    }
    output.text = *described;
    return ExitStatus::Done;
}

const std::string kDetails = std::string(kMomentWords) +
                             "\n\n"
                             "Shown are the moment in both calendars, whether data that is good until then is\n"
                             "valid, late (expired by less than six days) or expired, and the texts and colours\n"
                             "of navigation data and of terminal charts.";

} // namespace

const CommandGroup& DateCommands()
{
    static const Command commands[] = {
        {"date",
         "",
         "MOMENT",
         "Show a moment as the applications keep and show the currency of data",
         kDetails.c_str(),
         1,
         1,
         {},
         ShowDate},
    };
    static const CommandGroup group = {"date", "Moments and the currency of data.", commands};
    return group;
}

} // namespace vorn::tool
