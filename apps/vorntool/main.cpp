#include "apps/vorntool/Commands.h"
#include "apps/vorntool/StandardStreams.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/RunTool.h"

#include <memory>

using namespace vorn::tool;

namespace
{

struct LocalFreer
{
    void operator()(LPWSTR* block) const
    {
        LocalFree(block);
    }
};

// The arguments as they were given: the narrow ones have lost characters, and the runtime expands wildcards in them.
std::vector<std::string> Arguments()
{
    int count = 0;
    const std::unique_ptr<LPWSTR, LocalFreer> all(CommandLineToArgvW(GetCommandLineW(), &count));
    std::vector<std::string> words;
    for (int i = 1; i < count; ++i)
    {
        words.push_back(Utf8FromWide(all.get()[i]));
    }
    return words;
}

} // namespace

int main()
{
    Output output;
    const ExitStatus status = RunTool(VornTool(), Arguments(), output);
    if (!WriteToStandardStreams(output))
    {
        WriteToStandardStreams({"", std::string(kToolName) + ": the output could not be written\n"});
        return static_cast<int>(ExitStatus::Refused);
    }
    return static_cast<int>(status);
}
