#pragma once

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// @file
/// What a command of the tool is: a row of a table that says how it is called, what it tells about itself and what it
/// does. All text is UTF-8.
namespace vorn::tool
{

/// What a script sees when the tool ends.
enum class ExitStatus : int
{
    Done = 0,
    Refused = 1, ///< what was asked for is not there, or cannot be done
    WrongUse = 2 ///< the command line itself is wrong
};

/// An option "--name", with the word for its value in help texts; null for an option that takes none.
struct Option
{
    const char* name;
    const char* value;
    const char* help;
};

/// What a command prints, each to be written to the stream of its name.
struct Output
{
    std::string text;
    std::string errors;
};

/// The arguments of one call, sorted out.
struct Invocation
{
    std::vector<std::string> values;
    std::map<std::string, std::string, std::less<>> options;

    bool Has(std::string_view option) const
    {
        return options.contains(option);
    }

    /// The value given to an option, or @p otherwise when the option was not given.
    std::string ValueOf(std::string_view option, std::string_view otherwise) const
    {
        const auto found = options.find(option);
        return found == options.end() ? std::string(otherwise) : found->second;
    }
};

/// A word of the user's in single quotes, for messages: on one line, and without its end when it is very long.
std::string Quoted(std::string_view word);

struct Command;

/// Reports why a command did not do its work: one line, "vorntool group command: reason".
void ReportError(Output& output, const Command& command, std::string_view reason);

/// One command of a group.
struct Command
{
    const char* group;
    const char* name;      ///< empty when the group's name alone is the command
    const char* arguments; ///< words as the help shows them: "SECTION KEY", "SECTION [KEY]", "PROGRAM..."
    const char* summary;   ///< one line
    const char* details;   ///< paragraphs for the command's own help, or empty
    std::size_t fewest;    ///< values that must be given
    std::size_t most;      ///< values that may be given
    std::span<const Option> options;
    ExitStatus (*run)(const Command& self, const Invocation& call, Output& output);
};

inline constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

/// Commands about one subject.
struct CommandGroup
{
    const char* name;
    const char* summary;
    std::span<const Command> commands;
};

/// The whole tool.
struct Tool
{
    const char* summary;
    const char* version;
    std::span<const CommandGroup> groups;
};

/// The name of the tool as it is called.
inline constexpr const char* kToolName = "vorntool";

/// The words that call a command: "vorntool settings get".
std::string CallOf(const Command& command);

} // namespace vorn::tool
