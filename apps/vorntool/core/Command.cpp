#include "apps/vorntool/core/Command.h"

#include "apps/vorntool/core/Utf8.h"

namespace vorn::tool
{

namespace
{
constexpr std::size_t kLongestQuoted = 260; // bytes; more than any path that can be opened

bool IsContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// Cut between characters.
std::string Shortened(std::string text)
{
    if (text.size() > kLongestQuoted)
    {
        std::size_t end = kLongestQuoted;
        while (end > 0 && IsContinuation(text[end]))
        {
            --end;
        }
        text.replace(end, std::string::npos, "...");
    }
    return text;
}
} // namespace

std::string Quoted(std::string_view word)
{
    return "'" + Shortened(OneLine(word)) + "'";
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
