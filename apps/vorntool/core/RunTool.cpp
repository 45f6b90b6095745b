#include "apps/vorntool/core/RunTool.h"

#include "apps/vorntool/core/ToolArguments.h"
#include "apps/vorntool/core/ToolHelp.h"

#include <algorithm>
#include <exception>

namespace vorn::tool
{

namespace
{

using WordSpan = std::span<const std::string>;

template <class Named>
const Named* FindByName(std::span<const Named> all, std::string_view name)
{
    const auto found = std::find_if(all.begin(), all.end(),
                                    [name](const Named& each)
                                    {
                                        return name == each.name;
                                    });
    return found == all.end() ? nullptr : &*found;
}

ExitStatus WrongUse(Output& output, const std::string& who, const std::string& reason)
{
    output.errors.append(who).append(": ").append(reason).append("; see '").append(who).append(" --help'\n");
    return ExitStatus::WrongUse;
}

ExitStatus Print(Output& output, const std::string& text)
{
    output.text += text;
    return ExitStatus::Done;
}

ExitStatus RunCommand(const Command& command, WordSpan words, Output& output)
{
    std::string reason;
    const std::optional<Invocation> call = ParseArguments(command, words, reason);
    if (!call)
    {
        return WrongUse(output, CallOf(command), reason);
    }
    return call->Has("help") ? Print(output, HelpOn(command)) : command.run(command, *call, output);
}

ExitStatus RunInGroup(const CommandGroup& group, WordSpan words, Output& output)
{
    if (const Command* const own = FindByName(group.commands, ""))
    {
        return RunCommand(*own, words, output);
    }
    const std::string who = std::string(kToolName) + " " + group.name;
    if (words.empty())
    {
        return WrongUse(output, who, "a command is missing");
    }
    if (AsksForHelp(words[0]))
    {
        return Print(output, HelpOn(group));
    }
    const Command* const command = FindByName(group.commands, words[0]);
    return command != nullptr ? RunCommand(*command, words.subspan(1), output)
                              : WrongUse(output, who, "unknown command " + Quoted(words[0]));
}

// "vorntool help settings get" is "vorntool settings get --help", except where the tool has a group of that name with
// such a command.
ExitStatus RunHelp(const Tool& tool, WordSpan words, Output& output)
{
    const CommandGroup* const group = FindByName(tool.groups, "help");
    if (group != nullptr && !words.empty() && FindByName(group->commands, words[0]) != nullptr)
    {
        return RunInGroup(*group, words, output);
    }
    if (group != nullptr && !words.empty() && words[0] == group->name)
    {
        return Print(output, HelpOn(*group));
    }
    std::vector<std::string> turned(words.begin(), words.end());
    turned.emplace_back("--help");
    return RunTool(tool, turned, output);
}

ExitStatus Dispatch(const Tool& tool, WordSpan words, Output& output)
{
    if (words.empty())
    {
        return WrongUse(output, kToolName, "a command is missing");
    }
    if (AsksForHelp(words[0]))
    {
        return Print(output, HelpOn(tool));
    }
    if (words[0] == "--version")
    {
        return Print(output, std::string(kToolName) + " " + tool.version + "\n");
    }
    if (words[0] == "help")
    {
        return RunHelp(tool, words.subspan(1), output);
    }
    const CommandGroup* const group = FindByName(tool.groups, words[0]);
    return group != nullptr ? RunInGroup(*group, words.subspan(1), output)
                            : WrongUse(output, kToolName, "unknown command " + Quoted(words[0]));
}

} // namespace

ExitStatus RunTool(const Tool& tool, std::span<const std::string> words, Output& output)
{
    try
    {
        return Dispatch(tool, words, output);
    }
    catch (const std::exception& error)
    {
        output.errors.append(kToolName).append(": ").append(error.what()).append("\n");
        return ExitStatus::Refused;
    }
}

} // namespace vorn::tool
