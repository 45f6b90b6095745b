#pragma once

#include "tests/windows/VornSample/ProgramRun.h"

#include <filesystem>
#include <string>

namespace vorn::test
{

/// The sample as an installation puts it into a folder of its own: programs, libraries and tables. What it changes
/// there is nobody else's.
class InstalledSample
{
public:
    explicit InstalledSample(std::filesystem::path folder);

    const std::filesystem::path& Folder() const;

    /// The full path of one of its files.
    std::string File(const std::string& name) const;

    bool IsComplete() const;

private:
    std::filesystem::path m_folder;
    bool m_complete = true;
};

} // namespace vorn::test
