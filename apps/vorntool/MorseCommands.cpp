#include "apps/vorntool/Commands.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <VornCommon.h>

#include <climits>
#include <optional>

namespace vorn::tool
{

namespace
{

constexpr Option kUnitOption = {"unit", "N", "tell the width in pixels too, N pixels a unit"};

// A text as it is keyed and drawn.
struct Ident
{
    std::string text;
    std::vector<std::string> letters; ///< the signs of each letter: ".-"
    int units;
    int unit; ///< pixels
    int pixels;
};

std::string SignsOf(char letter)
{
    const MorseCode code = MorseCodeOf(letter);
    std::string signs;
    for (int i = 0; i < code.elements; ++i)
    {
        signs += (code.dashes >> i & 1) != 0 ? '-' : '.';
    }
    return signs;
}

Ident IdentOf(const std::string& text, int unit)
{
    Ident ident = {text, {}, MorseWidth(1, text.c_str()), unit, MorseWidth(unit, text.c_str())};
    for (const char letter : text)
    {
        ident.letters.push_back(SignsOf(letter));
    }
    return ident;
}

// 1 when the option was not given.
std::optional<int> TakePixels(const Invocation& call)
{
    const auto given = ParseWhole(call.ValueOf(kUnitOption.name, "1"));
    return given && *given >= 1 && *given <= INT_MAX ? std::optional(static_cast<int>(*given)) : std::nullopt;
}

std::string JsonOf(const Ident& ident)
{
    JsonWriter json;
    json.BeginObject().Name("text").Text(ident.text).Name("code").BeginArray();
    for (const std::string& letter : ident.letters)
    {
        json.Text(letter);
    }
    json.EndArray().Name("units").Whole(ident.units).Name("unit").Whole(ident.unit);
    return json.Name("pixels").Whole(ident.pixels).EndObject().Line();
}

std::string TextOf(const Ident& ident, bool withPixels)
{
    std::string text;
    for (const std::string& letter : ident.letters)
    {
        text += (text.empty() ? "" : " ") + letter;
    }
    text += "\n" + std::to_string(ident.units) + (ident.units == 1 ? " unit" : " units");
    if (withPixels)
    {
        text += ", " + std::to_string(ident.pixels) + (ident.pixels == 1 ? " pixel" : " pixels");
    }
    return text + "\n";
}

// Why there is no code; empty when there is one.
std::string Refusal(const Ident& ident)
{
    if (ident.units < 0)
    {
        return Quoted(ident.text) + " has a character that is no letter from A to Z";
    }
    return ident.pixels / ident.unit == ident.units ? ""
                                                    : "the code is wider than " + std::to_string(INT_MAX) + " pixels";
}

ExitStatus Show(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<int> unit = TakePixels(call);
    if (!unit)
    {
        ReportError(output, self, "--unit takes a whole number from 1 to " + std::to_string(INT_MAX));
        return ExitStatus::WrongUse;
    }
    const Ident ident = IdentOf(call.values[0], *unit);
    if (const std::string refusal = Refusal(ident); !refusal.empty())
    {
        ReportError(output, self, refusal);
        return ExitStatus::Refused;
    }
    output.text = call.Has("json") ? JsonOf(ident) : TextOf(ident, call.Has(kUnitOption.name));
    return ExitStatus::Done;
}

constexpr Option kOptions[] = {kUnitOption};

constexpr Command kCommands[] = {
    {"morse", "", "TEXT", "Show a text in Morse code, and how wide charts draw it",
     "Only the letters A to Z are coded, in both cases. Drawn beside a radio aid, a dot\n"
     "is 1 unit wide and a dash 4; a unit parts the signs of a letter, 3 units part\n"
     "letters.",
     1, 1, kOptions, Show},
};

} // namespace

const CommandGroup& MorseCommands()
{
    static const CommandGroup group = {"morse", "Idents of radio aids in Morse code.", kCommands};
    return group;
}

} // namespace vorn::tool
