#include "apps/vorntool/core/ToolHelp.h"

#include "apps/vorntool/core/ToolArguments.h"

#include <algorithm>
#include <vector>

namespace vorn::tool
{

namespace
{

struct Row
{
    std::string left;
    std::string right;
};

// Two columns, indented by two, the second one lined up.
std::string Columns(const std::vector<Row>& rows)
{
    std::size_t width = 0;
    for (const Row& row : rows)
    {
        width = std::max(width, row.left.size());
    }
    std::string text;
    for (const Row& row : rows)
    {
        text.append("  ").append(row.left).append(width - row.left.size() + 2, ' ').append(row.right).append("\n");
    }
    return text;
}

std::string Words(const Command& command)
{
    std::string words = command.group;
    for (const char* part : {command.name, command.arguments})
    {
        if (*part != '\0')
        {
            words.append(" ").append(part);
        }
    }
    return words;
}

void AddCommands(std::vector<Row>& rows, const CommandGroup& group)
{
    for (const Command& command : group.commands)
    {
        rows.push_back({Words(command), command.summary});
    }
}

std::string OptionText(const Option& option)
{
    const std::string text = std::string("--") + option.name;
    return option.value == nullptr ? text : text + " " + option.value;
}

std::string OptionsOf(const Command& command)
{
    std::vector<Row> rows;
    for (const auto& options : {command.options, CommonOptions()})
    {
        for (const Option& option : options)
        {
            rows.push_back({OptionText(option), option.help});
        }
    }
    return Columns(rows);
}

} // namespace

std::string HelpOn(const Tool& tool)
{
    std::vector<Row> rows;
    for (const CommandGroup& group : tool.groups)
    {
        AddCommands(rows, group);
    }
    return std::string(tool.summary) + "\n\nUsage: " + kToolName + " COMMAND [ARGUMENT...] [OPTION...]\n\nCommands:\n" +
           Columns(rows) + "\nOptions:\n" +
           Columns({{"--help", "print this help, or with a command the help on it"},
                    {"--version", "print the tool's version"},
                    {"--json", "with a command: print its result as JSON"}}) +
           "\nExit status: 0 done, 1 not found or refused, 2 wrong use.\n";
}

std::string HelpOn(const CommandGroup& group)
{
    std::vector<Row> rows;
    AddCommands(rows, group);
    return std::string(group.summary) + "\n\nCommands:\n" + Columns(rows) + "\n'" + kToolName + " " + group.name +
           " COMMAND --help' says more on each.\n";
}

std::string HelpOn(const Command& command)
{
    std::string text =
        "Usage: " + std::string(kToolName) + " " + Words(command) + " [OPTION...]\n\n" + command.summary + ".\n";
    if (*command.details != '\0')
    {
        text.append("\n").append(command.details).append("\n");
    }
    return text + "\nOptions:\n" + OptionsOf(command) + "\nExit status: 0 done, 1 not found or refused, 2 wrong use.\n";
}

} // namespace vorn::tool
