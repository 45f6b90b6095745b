#include "frame/core/CommandLine.h"

#include <cstdlib>
#include <string_view>

/// Any text as a command line: arguments come from the line in order, and each character is used once.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    const char* last = line.data();
    std::size_t arguments = 0;
    vorn::ForEachArgument(
        line,
        [&](std::string_view argument)
        {
            const bool inside =
                argument.data() >= last && argument.data() + argument.size() <= line.data() + line.size();
            const bool quoted = argument.data() > line.data() && *(argument.data() - 1) == '"';
            if (!inside || (!quoted && (argument.empty() || argument.find_first_of(" \t") != std::string_view::npos)))
            {
                std::abort();
            }
            last = argument.data() + argument.size();
            ++arguments;
        });
    if (arguments > size)
    {
        std::abort();
    }
    return 0;
}
