#include "tests/windows/VornSample/InstalledSample.h"

#include <array>
#include <utility>

namespace vorn::test
{

namespace fs = std::filesystem;

namespace
{

constexpr std::array kPrograms = {
    "VornSample.exe",     "VornBriefing.exe", "VornUpdate.exe",      "HostFramework.dll",
    "VornCommon.dll",     "VornChart.dll",    "TarnUtil.dll",        "TarnComm.dll",
    "libgcc_s_dw2-1.dll", "libstdc++-6.dll",  "libwinpthread-1.dll",
};

} // namespace

InstalledSample::InstalledSample(fs::path folder) : m_folder(std::move(folder))
{
    fs::create_directories(m_folder / "data");
    // Nobody writes into programs, so another name of the same file will do where the system gives one.
    for (const char* const name : kPrograms)
        m_complete = (CreateHardLinkA(File(name).c_str(), PathBeside(name).c_str(), nullptr) != FALSE ||
                      CopyFileA(PathBeside(name).c_str(), File(name).c_str(), TRUE) != FALSE) &&
                     m_complete;
    for (const char* const table : {"navaids", "runways", "shores"})
    {
        for (const char* const kind : {".dbf", ".dbt"})
        {
            const std::string name = std::string("data\\") + table + kind;
            m_complete = CopyFileA(PathBeside(name).c_str(), File(name).c_str(), TRUE) != FALSE && m_complete;
        }
    }
}

const fs::path& InstalledSample::Folder() const
{
    return m_folder;
}

std::string InstalledSample::File(const std::string& name) const
{
    return (m_folder / name).make_preferred().string();
}

bool InstalledSample::IsComplete() const
{
    return m_complete;
}

} // namespace vorn::test
