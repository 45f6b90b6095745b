#include "bench/PairedTimer.h"
#include "bench/windows/OldFile.h"
#include "frame/ProgramVersion.h"
#include "frame/VornCommonApp.h"

#include <windows.h>

#include <fstream>
#include <string>
#include <unordered_map>
#include <vector>

namespace
{
using vorn::bench::Compare;

void Glyph(benchmark::State& state)
{
    VornCommonApp app;
    const CString token = "kts";
    std::unordered_map<std::string, char> map{{"NM", '\xC0'}, {"SM", '\xC1'}, {"KTS", '\xC5'}, {"MPH", '\xC6'}};
    const std::string raised = "KTS";
    Compare(
        state, 10000,
        [&]
        {
            benchmark::DoNotOptimize(app.GetVornGlyph(token));
        },
        [&]
        {
            benchmark::DoNotOptimize(map[raised]);
        });
}
BENCHMARK(Glyph)->Name("Application/GetVornGlyph to a look-up in std::unordered_map")->UseManualTime();

/// The family's INI file, naming a folder in which a library of the system stands as the flight planner.
class Installed
{
public:
    Installed()
    {
        char path[MAX_PATH];
        GetTempPathA(MAX_PATH, path);
        m_root = path;
        CreateDirectoryA((m_root + "Aerolune").c_str(), nullptr);
        GetWindowsDirectoryA(path, MAX_PATH);
        m_ini = std::string(path) + "\\Vornwald.ini";
        std::ofstream(m_ini) << "[Paths]\nVornBenchDir=" << m_root << '\n';
        vorn::bench::MakeOld(m_ini);
        CopyFileA((std::string(path) + "\\system32\\comctl32.dll").c_str(), Program().c_str(), FALSE);
    }
    ~Installed()
    {
        DeleteFileA(Program().c_str());
        RemoveDirectoryA((m_root + "Aerolune").c_str());
        DeleteFileA(m_ini.c_str());
    }
    Installed(const Installed&) = delete;
    Installed& operator=(const Installed&) = delete;

    std::string Program() const
    {
        return m_root + "Aerolune\\Aerolune.exe";
    }

private:
    std::string m_root;
    std::string m_ini;
};

void Version(benchmark::State& state)
{
    const Installed installed;
    const std::string program = installed.Program();
    int major = 0;
    int minor = 0;
    Compare(
        state, 10,
        [&]
        {
            GetProgramVersion("Aerolune", "VornBenchDir", major, minor);
        },
        [&]
        {
            DWORD unused = 0;
            std::vector<char> resource(GetFileVersionInfoSizeA(program.c_str(), &unused));
            GetFileVersionInfoA(program.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data());
            benchmark::DoNotOptimize(resource.data());
        });
    if (major == 0)
    {
        state.SkipWithError("no version was read");
    }
}
BENCHMARK(Version)->Name("Application/GetProgramVersion to bare version calls (at most 1.2)")->UseManualTime();
} // namespace
