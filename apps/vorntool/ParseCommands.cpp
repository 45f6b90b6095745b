#include "apps/vorntool/Commands.h"
#include "apps/vorntool/DateNamed.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/Moments.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <cstdio>

namespace vorn::tool
{

namespace
{

constexpr int kSmallestBase = 2;
constexpr int kLargestBase = 64;

ExitStatus Fail(const Command& self, Output& output, ExitStatus status, const std::string& reason)
{
    ReportError(output, self, reason);
    return status;
}

// The moment of the option, the present without it; nothing for a word that is none or beyond 32 bits.
std::optional<int> TakeBase(const Invocation& call)
{
    std::optional<Date> date = DateNamed(call.ValueOf("base", "now"));
    if (!date || !HasTexts(*date) || date->getTime().GetTime() > INT_MAX)
    {
        return std::nullopt;
    }
    return static_cast<int>(date->getTime().GetTime());
}

// Unusable text gives the base itself, whatever the base; no clock text does so for two bases in neighbouring minutes.
bool IsUsable(const char* text, int base)
{
    constexpr int minute = 60; // seconds
    const int neighbour = base > minute ? base - minute : base + minute;
    return ParseHHMM(base, text) != base || ParseHHMM(neighbour, text) != neighbour;
}

std::string LocalText(int moment)
{
    return Utf8FromLibrary(CTime(moment).Format("%Y-%m-%d %H:%M:%S").GetString());
}

ExitStatus PrintClamped(const Invocation& call, CString text, Output& output)
{
    ValidateTime(text);
    const std::string clamped = Utf8FromLibrary(text.GetString());
    JsonWriter json;
    json.BeginObject().Name("text").Text(call.values[0]).Name("clamped").Text(clamped).EndObject();
    output.text = call.Has("json") ? json.Line() : clamped + "\n";
    return ExitStatus::Done;
}

ExitStatus PrintTime(const Invocation& call, int base, int moment, Output& output)
{
    JsonWriter json;
    json.BeginObject().Name("text").Text(call.values[0]).Name("base").Text(MomentText(base));
    json.Name("local").Text(LocalText(moment)).Name("moment").Text(MomentText(moment)).EndObject();
    output.text = call.Has("json") ? json.Line() : LocalText(moment) + " local, " + MomentText(moment) + "\n";
    return ExitStatus::Done;
}

ExitStatus ParseTime(const Command& self, const Invocation& call, Output& output)
{
    const std::string& word = call.values[0];
    const std::optional<CString> text = LibraryFromUtf8(word);
    if (text && call.Has("clamp"))
    {
        return PrintClamped(call, *text, output);
    }
    const std::optional<int> base = TakeBase(call);
    if (!base)
    {
        return Fail(self, output, ExitStatus::WrongUse,
                    Quoted(call.ValueOf("base", "now")) + " is no moment from 1970 to 2038");
    }
    if (!text || !IsUsable(*text, *base))
    {
        return Fail(self, output, ExitStatus::Refused, Quoted(word) + " is no time of day");
    }
    return PrintTime(call, *base, ParseHHMM(*base, *text), output);
}

// The digits without zeros in front, as they are written back.
std::string Canonical(const std::string& digits)
{
    const std::size_t first = digits.find_first_not_of('0');
    return first == std::string::npos ? "0" : digits.substr(first);
}

// Only what is written back as it was read is a number of that base: foreign digits and lost carries are not.
std::optional<unsigned long long> NumberOf(const std::string& digits, int base)
{
    const unsigned long long value = FromBaseN(digits.c_str(), base);
    const bool same = !digits.empty() && ToBaseN(value, base) == Canonical(digits).c_str();
    return same ? std::optional(value) : std::nullopt;
}

ExitStatus ParseNumberInBase(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<std::int64_t> base = ParseWhole(call.values[1]);
    if (!base || *base < kSmallestBase || *base > kLargestBase)
    {
        return Fail(self, output, ExitStatus::WrongUse, Quoted(call.values[1]) + " is no base from 2 to 64");
    }
    const std::string& digits = call.values[0];
    const std::optional<unsigned long long> value = NumberOf(digits, static_cast<int>(*base));
    if (!value)
    {
        return Fail(self, output, ExitStatus::Refused,
                    Quoted(digits) + " is no number of 64 bits in base " + std::to_string(*base));
    }
    JsonWriter json;
    json.BeginObject().Name("digits").Text(digits).Name("base").Whole(*base);
    json.Name("value").Text(std::to_string(*value)).EndObject();
    output.text = call.Has("json") ? json.Line() : std::to_string(*value) + "\n";
    return ExitStatus::Done;
}

std::vector<unsigned char> BytesOf(const std::string& digits)
{
    std::vector<unsigned char> bytes(digits.size() + 1);
    const int count = FromBaseN(digits.c_str(), bytes.data(), static_cast<int>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
}

std::string Hexadecimal(const std::vector<unsigned char>& bytes)
{
    std::string text;
    for (const unsigned char byte : bytes)
    {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned>(byte));
        text += digits;
    }
    return text;
}

ExitStatus ParseBytes(const Command& self, const Invocation& call, Output& output)
{
    const std::string& digits = call.values[0];
    std::vector<unsigned char> bytes = BytesOf(digits);
    const CString written = ToBaseN(bytes.data(), static_cast<int>(bytes.size()), kLargestBase);
    if (bytes.empty() || written != digits.c_str())
    {
        return Fail(self, output, ExitStatus::Refused, Quoted(digits) + " stands for no whole bytes");
    }
    JsonWriter json;
    json.BeginObject().Name("digits").Text(digits).Name("bytes").Text(Hexadecimal(bytes)).EndObject();
    output.text = call.Has("json") ? json.Line() : Hexadecimal(bytes) + "\n";
    return ExitStatus::Done;
}

ExitStatus ParseBase(const Command& self, const Invocation& call, Output& output)
{
    const bool hasBase = call.values.size() == 2;
    if (hasBase == call.Has("bytes"))
    {
        return Fail(self, output, ExitStatus::WrongUse,
                    hasBase ? "--bytes goes without a BASE: it is 64" : "BASE is missing");
    }
    return hasBase ? ParseNumberInBase(self, call, output) : ParseBytes(self, call, output);
}

constexpr Option kTimeOptions[] = {{"base", "MOMENT", "on the local day and at the second of MOMENT, not of now"},
                                   {"clamp", nullptr, "print the four digits that an entry field makes of it"}};
constexpr Option kBaseOptions[] = {{"bytes", nullptr, "print the bytes of a text in base 64, in hexadecimal"}};

constexpr Command kCommands[] = {
    {"parse", "hhmm", "TEXT", "Read a time of day as it is typed in the applications",
     "TEXT has the digits HHMM or HMM in local time; other characters are skipped, and\n"
     "digits after the fourth are. With --clamp any text becomes a time from 0000 to\n"
     "2359. What a MOMENT is, 'vorntool date --help' says.",
     1, 1, kTimeOptions, ParseTime},
    {"parse", "base", "DIGITS [BASE]", "Read a number in a base from 2 to 64",
     "The digits are 0-9, a-z, A-Z, \"-\" and \"!\", worth 0 to 63; their case matters.\n"
     "DIGITS that begin with two hyphens go after \"--\".",
     1, 2, kBaseOptions, ParseBase},
};

} // namespace

const CommandGroup& ParseCommands()
{
    static const CommandGroup group = {"parse", "Values as people and files write them.", kCommands};
    return group;
}

} // namespace vorn::tool
