#include "frame/core/ArgumentArray.h"

#include "frame/core/CommandLine.h"
#include "frame/core/TextUtilities.h"

#include <algorithm>
#include <memory>

namespace vorn
{

void AppendArgument(int& argc, char**& argv, std::string_view argument, std::size_t room)
{
    auto copy = std::make_unique<char[]>(std::max(argument.size() + 1, room));
    argument.copy(copy.get(), argument.size());
    if (argc % kArgumentStep == 0)
    {
        auto pointers = std::make_unique<char*[]>(static_cast<std::size_t>(argc) + kArgumentStep);
        std::copy_n(argv, argc, pointers.get());
        const std::unique_ptr<char*[]> old(argv);
        argv = pointers.release();
    }
    argv[argc++] = copy.release();
}

void MakeArguments(std::string_view line, const char* program, int& argc, char**& argv)
{
    argc = 0;
    argv = std::make_unique<char*[]>(kArgumentStep).release();
    if (program != nullptr)
        AppendArgument(argc, argv, program, kProgramRoom);
    ForEachArgument(line,
                    [&](std::string_view argument)
                    {
                        AppendArgument(argc, argv, argument);
                    });
}

} // namespace vorn

void CleanupCommandLine(int argc, char** argv)
{
    const std::unique_ptr<char*[]> array(argv);
    for (int i = 0; argv != nullptr && i < argc; ++i)
        std::unique_ptr<char[]>(argv[i]).reset();
}
