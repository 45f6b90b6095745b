#include "apps/vorntool/Commands.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/HelpTexts.h"

#include <VornCommon.h>

#include <algorithm>

namespace vorn::tool
{

namespace
{

// Nothing for an id without a text.
std::optional<HelpEntry> LoadHelp(int id)
{
    CString text;
    if (id < kFirstHelpId || id > kLastHelpId || !AfxLoadString(static_cast<UINT>(id), text))
    {
        return std::nullopt;
    }
    return HelpEntryOf(id, Utf8FromLibrary(text.GetString()));
}

// Every text that has all the words; all texts without words.
std::vector<HelpEntry> HelpWith(std::span<const std::string> words)
{
    std::vector<HelpEntry> found;
    for (int id = kFirstHelpId; id <= kLastHelpId; ++id)
    {
        if (const std::optional<HelpEntry> entry = LoadHelp(id); entry && Matches(*entry, words))
        {
            found.push_back(*entry);
        }
    }
    return found;
}

std::string JsonOf(const std::vector<HelpEntry>& entries)
{
    JsonWriter json;
    json.BeginArray();
    for (const HelpEntry& entry : entries)
    {
        WriteHelp(json, entry);
    }
    return json.EndArray().Line();
}

std::string TextOf(const std::vector<HelpEntry>& entries)
{
    std::string text;
    for (const HelpEntry& entry : entries)
    {
        text += HelpLine(entry);
    }
    return text;
}

ExitStatus List(const Command&, const Invocation& call, Output& output)
{
    const std::vector<HelpEntry> all = HelpWith({});
    output.text = call.Has("json") ? JsonOf(all) : TextOf(all);
    return ExitStatus::Done;
}

ExitStatus Show(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<int> id = ParseHelpId(call.values[0]);
    if (!id)
    {
        ReportError(output, self, Quoted(call.values[0]) + " is no number of a help text");
        return ExitStatus::WrongUse;
    }
    const std::optional<HelpEntry> entry = LoadHelp(*id);
    if (!entry)
    {
        ReportError(output, self, "there is no help text " + std::to_string(*id));
        return ExitStatus::Refused;
    }
    if (!call.Has("json"))
    {
        output.text = HelpPage(*entry);
        return ExitStatus::Done;
    }
    JsonWriter json;
    WriteHelp(json, *entry);
    output.text = json.Line();
    return ExitStatus::Done;
}

std::string Listed(const std::vector<std::string>& words)
{
    std::string listed;
    for (const std::string& word : words)
    {
        listed += (listed.empty() ? "" : " ") + Quoted(word);
    }
    return listed;
}

ExitStatus Search(const Command& self, const Invocation& call, Output& output)
{
    const auto blank = std::find_if(call.values.begin(), call.values.end(), IsBlankWord);
    if (blank != call.values.end())
    {
        ReportError(output, self, Quoted(*blank) + " is no word to look for");
        return ExitStatus::WrongUse;
    }
    const std::vector<HelpEntry> found = HelpWith(call.values);
    if (found.empty())
    {
        ReportError(output, self, "no help text has " + Listed(call.values));
        output.text = call.Has("json") ? JsonOf(found) : "";
        return ExitStatus::Refused;
    }
    output.text = call.Has("json") ? JsonOf(found) : TextOf(found);
    return ExitStatus::Done;
}

constexpr Command kCommands[] = {
    {"help",
     "list",
     "",
     "List the help texts of the applications' controls",
     "One text a line: its number, and what stands beside the control.",
     0,
     0,
     {},
     List},
    {"help",
     "show",
     "ID",
     "Show a help text whole",
     "What stands beside the control and, behind an empty line, what the info box adds.",
     1,
     1,
     {},
     Show},
    {"help",
     "search",
     "WORDS...",
     "Find help texts by their words",
     "Lists the texts that have every word, in tip or info box, whatever the case. A word\n"
     "may be a part of one, or several in quotes. Without any hit the exit status is 1.",
     1,
     kAnyNumber,
     {},
     Search},
};

} // namespace

const CommandGroup& HelpCommands()
{
    static const CommandGroup group = {"help", "Help texts of the applications' controls.", kCommands};
    return group;
}

} // namespace vorn::tool
