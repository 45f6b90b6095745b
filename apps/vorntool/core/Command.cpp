#include "apps/vorntool/core/Command.h"

namespace vorn::tool
{

std::string Quoted(std::string_view word)
{
    return std::string("'").append(word).append("'");
}

void ReportError(Output& output, const Command& command, std::string_view reason)
{
    output.errors.append(CallOf(command)).append(": ").append(reason).append("\n");
}

std::string CallOf(const Command& command)
{
    std::string call = std::string(kToolName) + " " + command.group;
    if (*command.name != '\0')
    {
        call.append(" ").append(command.name);
    }
    return call;
}

} // namespace vorn::tool
