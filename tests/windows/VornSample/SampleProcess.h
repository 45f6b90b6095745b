#pragma once

#include "tests/windows/VornSample/ProgramRun.h"

namespace vorn::test
{

/// The sample host that stands beside the test program.
class SampleProcess : public ProgramRun
{
public:
    /// Whether the sample begins with its startup dialog.
    enum class Startup
    {
        Skipped,
        Shown,
    };

    SampleProcess(const std::string& arguments, const std::string& outputFile, Startup startup = Startup::Skipped)
        : ProgramRun(PathBeside("VornSample.exe"), (startup == Startup::Skipped ? "--no-startup " : "") + arguments,
                     outputFile)
    {
    }
};

} // namespace vorn::test
