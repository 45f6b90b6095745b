#include "tests/support/ScratchFolder.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

#include <filesystem>

using namespace vorn::test;

namespace
{

// A library of the system that has a version resource, and its product version as the system reads it.
std::string LibraryWithVersion()
{
    char folder[MAX_PATH];
    GetSystemDirectoryA(folder, MAX_PATH);
    return std::string(folder) + "\\comctl32.dll";
}

VS_FIXEDFILEINFO FixedInfo(const std::string& file)
{
    std::vector<char> resource(GetFileVersionInfoSizeA(file.c_str(), nullptr));
    GetFileVersionInfoA(file.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data());
    void* fixed = nullptr;
    UINT size = 0;
    const BOOL found = VerQueryValueA(resource.data(), "\\", &fixed, &size);
    EXPECT_TRUE(found);
    return found ? *static_cast<VS_FIXEDFILEINFO*>(fixed) : VS_FIXEDFILEINFO{};
}

std::string FourNumbers(DWORD high, DWORD low)
{
    return std::to_string(high >> 16) + "." + std::to_string(high & 0xFFFF) + "." + std::to_string(low >> 16) + "." +
           std::to_string(low & 0xFFFF);
}

// Tells the family where a program is installed, and forgets it again.
class InstalledFolder
{
public:
    InstalledFolder(const char* key, const std::string& folder) : m_key(key)
    {
        Write(folder.c_str());
    }

    ~InstalledFolder()
    {
        Write(nullptr);
    }

private:
    void Write(const char* folder) const
    {
        WritePrivateProfileStringA("Paths", m_key, folder, "Vornwald.ini");
    }

    const char* m_key;
};

} // namespace

TEST(VersionTool, OfAFileIsItsProductVersion)
{
    const std::string file = LibraryWithVersion();
    const VS_FIXEDFILEINFO info = FixedInfo(file);
    const std::string product = FourNumbers(info.dwProductVersionMS, info.dwProductVersionLS);
    ExpectDone({"version", file}, file + " " + product + "\n");
    const ToolRun json = RunVornTool({"version", "--json", file});
    EXPECT_NE(json.text.find("\"version\":\"" + product + "\",\"fileVersion\":\"" +
                             FourNumbers(info.dwFileVersionMS, info.dwFileVersionLS) + "\"}]\n"),
              std::string::npos);
}

TEST(VersionTool, OfAProgramOfTheFamilyIsThatOfItsInstallation)
{
    const ScratchFolder folder;
    const std::string installed = folder.Path().string();
    const InstalledFolder setting("AeroluneDir", installed);
    std::filesystem::create_directory(folder.Path() / "Aerolune");
    std::filesystem::copy_file(LibraryWithVersion(), folder.Path() / "Aerolune" / "Aerolune.exe");
    const DWORD version = FixedInfo(LibraryWithVersion()).dwProductVersionMS;
    const std::string text = std::to_string(version >> 16) + "." + std::to_string(version & 0xFFFF);
    ExpectDone({"version", "aerolune"}, "Aerolune " + text + "\n");
    ExpectDone({"version", "Aerolune", "--json"}, "[{\"program\":\"Aerolune\",\"version\":\"" + text + "\"}]\n");
}

TEST(VersionTool, ReportsEachProgramThatHasNone)
{
    const ScratchFolder folder;
    const InstalledFolder setting("VornView3Dir", folder.Path().string());
    const std::string file = LibraryWithVersion();
    const ToolRun run = RunVornTool({"version", "VornView", file, "Sunfish", "no\\such.dll"});
    EXPECT_EQ(run.status, 1u);
    EXPECT_EQ(run.text.substr(0, file.size() + 1), file + " ");
    EXPECT_EQ(run.errors, "vorntool version: VornView is not installed\n"
                          "vorntool version: 'Sunfish' is no program of the family and no file\n"
                          "vorntool version: there is no file 'no\\such.dll'\n");
}

TEST(VersionTool, AFileWithoutVersionHasNone)
{
    const ScratchFolder folder;
    const std::string file = folder.Write("plain.dll", "MZ, but not a library");
    ExpectFailure({"version", file}, 1, "vorntool version: '" + file + "' has no version");
    const ToolRun json = RunVornTool({"version", file, "--json"});
    EXPECT_EQ(json.status, 1u);
    EXPECT_NE(json.text.find("\"version\":null}]\n"), std::string::npos);
}

TEST(VersionTool, WithoutAProgramIsWrongUse)
{
    ExpectFailure({"version"}, 2, "vorntool version: PROGRAM is missing; see 'vorntool version --help'");
}
