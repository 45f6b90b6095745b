#include "frame/ProgramVersion.h"
#include "tests/windows/frame_app/VersionedProgram.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace vorn::test;

namespace
{
/// An installation of the family's programs in a folder of the test's own, and the family's INI file.
class InstalledPrograms : public testing::Test
{
protected:
    InstalledPrograms()
    {
        char folder[MAX_PATH];
        GetTempPathA(MAX_PATH, folder);
        m_root = std::string(folder) + "VornTest" + std::to_string(GetCurrentProcessId()) + '\\';
        GetWindowsDirectoryA(folder, MAX_PATH);
        m_ini = std::string(folder) + "\\Vornwald.ini";
        CleanUp();
    }
    ~InstalledPrograms() override
    {
        CleanUp();
    }

    const std::string& Root() const
    {
        return m_root;
    }

    void WritePaths(const std::string& lines) const
    {
        std::ofstream(m_ini, std::ios::binary) << "[Paths]\r\n" << lines << "\r\n";
    }

    /// Installs a program below a folder of the root and names the folder in the INI file's text.
    std::string Install(const char* key, const char* file, std::uint16_t productMajor, std::uint16_t productMinor) const
    {
        const std::string folder = m_root + key;
        WriteProgram(folder + '\\' + file, VersionResource(productMajor, productMinor));
        return std::string(key) + '=' + folder + "\r\n";
    }

    int Version(const char* product, const char* pathKey)
    {
        major = -7;
        minor = -7;
        return GetProgramVersion(product, pathKey, major, minor);
    }

    BOOL Check(const char* product)
    {
        planner = -7;
        viewer = -7;
        return CheckRPCompatibility(product, planner, viewer);
    }

    int major = -7;
    int minor = -7;
    int planner = -7;
    int viewer = -7;

private:
    void CleanUp() const
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_root, ignored);
        std::filesystem::remove_all("C:\\Vornwald", ignored);
        DeleteFileA(m_ini.c_str());
    }

    std::string m_root;
    std::string m_ini;
};

constexpr char kPlanner[] = "Aerolune\\Aerolune.exe";
constexpr char kViewer[] = "VornView3\\VornView3.exe";
constexpr char kMovingMap[] = "Glasspad3\\Glasspad3.exe";
} // namespace

TEST_F(InstalledPrograms, OfNoNameCountAsFoundWithoutVersion)
{
    EXPECT_EQ(Version(nullptr, "AeroluneDir"), 1);
    EXPECT_EQ(Version("", "AeroluneDir"), 1);
    EXPECT_EQ(major, -7);
    EXPECT_EQ(minor, -7);
}

TEST_F(InstalledPrograms, OfAnUnknownNameGiveMinusOne)
{
    EXPECT_EQ(Version("Spreadsheet", "AeroluneDir"), -1);
    EXPECT_EQ(Version("VornView3", nullptr), -1);
    EXPECT_EQ(major, -7);
}

TEST_F(InstalledPrograms, AreFoundByTheirPathKey)
{
    WritePaths(Install("AeroluneDir", kPlanner, 9, 1) + Install("VornView3Dir", kViewer, 3, 4) +
               Install("Glasspad3Dir", kMovingMap, 4, 0));
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 1);
    EXPECT_EQ(major, 9);
    EXPECT_EQ(minor, 1);
    EXPECT_EQ(Version("VORNVIEW", "VornView3Dir"), 1);
    EXPECT_EQ(major, 3);
    EXPECT_EQ(minor, 4);
    EXPECT_EQ(Version("glasspad", "Glasspad3Dir"), 1);
    EXPECT_EQ(major, 4);
    EXPECT_EQ(minor, 0);
}

TEST_F(InstalledPrograms, TakeTheFolderWithOrWithoutBackslash)
{
    WriteProgram(Root() + kPlanner, VersionResource(9, 1));
    WritePaths("AeroluneDir=" + Root());
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 1);
    WritePaths("AeroluneDir=" + Root().substr(0, Root().size() - 1));
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 1);
}

TEST_F(InstalledPrograms, FallBackToTheSetupFolder)
{
    WriteProgram(Root() + kPlanner, VersionResource(9, 2));
    WritePaths("SetupDir=" + Root() + "\r\nEmptyDir=");
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 1);
    EXPECT_EQ(Version("Aerolune", nullptr), 1);
    EXPECT_EQ(Version("Aerolune", ""), 1);
    EXPECT_EQ(Version("Aerolune", "EmptyDir"), 1);
    EXPECT_EQ(minor, 2);
}

TEST_F(InstalledPrograms, FallBackToTheFamilysUsualFolder)
{
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 0);
    WriteProgram(std::string("C:\\Vornwald\\") + kPlanner, VersionResource(9, 3));
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 1);
    EXPECT_EQ(minor, 3);
    WritePaths("SetupDir=");
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 1);
}

TEST_F(InstalledPrograms, AreNotSoughtInTheSetupFolderWhenTheirOwnIsNamed)
{
    WriteProgram(Root() + kPlanner, VersionResource(9, 1));
    WritePaths("SetupDir=" + Root() + "\r\nAeroluneDir=" + Root() + "elsewhere");
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 0);
    EXPECT_EQ(major, -7);
}

TEST_F(InstalledPrograms, GiveUnsignedHalvesOfTheProductVersion)
{
    WritePaths(Install("AeroluneDir", kPlanner, 65535, 40000));
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 1);
    EXPECT_EQ(major, 65535);
    EXPECT_EQ(minor, 40000);
}

TEST_F(InstalledPrograms, WithoutUsableVersionResourceGiveZero)
{
    WritePaths("AeroluneDir=" + Root());
    const auto versionWith = [&](const Bytes& resource)
    {
        WriteProgram(Root() + kPlanner, resource);
        return Version("Aerolune", "AeroluneDir");
    };
    Bytes wrongSignature = VersionResource(9, 1);
    wrongSignature[40] = std::byte{0};
    Bytes cutInKey = VersionResource(9, 1);
    cutInKey.resize(30);
    Bytes cutInSignature = VersionResource(9, 1);
    cutInSignature.resize(42);
    Bytes endlessKey = VersionResource(9, 1);
    std::fill(endlessKey.begin() + 6, endlessKey.end(), std::byte{'A'});
    EXPECT_EQ(versionWith(VersionResource(9, 1)), 1);
    EXPECT_EQ(versionWith({}), 0);
    EXPECT_EQ(versionWith(VersionResourceWithoutFixedPart()), 0);
    EXPECT_EQ(versionWith(wrongSignature), 0);
    EXPECT_EQ(versionWith(cutInKey), 0);
    EXPECT_EQ(versionWith(cutInSignature), 0);
    EXPECT_EQ(versionWith(endlessKey), 0);
    EXPECT_EQ(versionWith(Bytes(3, std::byte{0xFF})), 0);
    EXPECT_EQ(major, -7);
}

TEST_F(InstalledPrograms, WhoseResourceClaimsMoreThanTheFileHoldsAreReadAllTheSame)
{
    WritePaths("AeroluneDir=" + Root());
    WriteProgram(Root() + kPlanner, VersionResource(9, 4));
    for (const std::uint32_t claimed : {0x00000400u, 0x00010000u, 0x1FFFFFFFu, 0x3FFFFFFFu, 0x7FFFFFFFu, 0xFFFFFFFFu})
    {
        ClaimResourceSize(Root() + kPlanner, claimed);
        EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 1) << claimed;
        EXPECT_EQ(minor, 4);
    }
    ClaimResourceSize(Root() + kPlanner, 91);
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 0);
}

TEST_F(InstalledPrograms, ThatAreOpenForWritingGiveZeroUntilTheyAreDone)
{
    WritePaths("AeroluneDir=" + Root());
    WriteProgram(Root() + kPlanner, VersionResource(9, 4));
    {
        const std::ofstream installer(Root() + kPlanner, std::ios::app | std::ios::binary);
        EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 0);
    }
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 1);
}

TEST_F(InstalledPrograms, OfARealProgramAreWhatTheSystemSays)
{
    const std::string library = "VornCommon.dll";
    DWORD unused = 0;
    std::vector<char> resource(GetFileVersionInfoSizeA(library.c_str(), &unused));
    ASSERT_TRUE(GetFileVersionInfoA(library.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data()));
    VS_FIXEDFILEINFO* info = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueA(resource.data(), "\\", reinterpret_cast<void**>(&info), &size));
    WritePaths("AeroluneDir=" + Root());
    std::filesystem::create_directories(Root() + "Aerolune");
    char path[MAX_PATH] = {};
    GetModuleFileNameA(GetModuleHandleA(library.c_str()), path, MAX_PATH);
    ASSERT_TRUE(CopyFileA(path, (Root() + kPlanner).c_str(), FALSE));
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 1);
    EXPECT_EQ(static_cast<DWORD>(major) << 16 | static_cast<DWORD>(minor), info->dwProductVersionMS);
}

TEST_F(InstalledPrograms, ThatAreNoProgramFilesGiveZero)
{
    WritePaths("AeroluneDir=" + Root());
    std::filesystem::create_directories(Root() + "Aerolune");
    std::ofstream(Root() + kPlanner) << "no program";
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 0);
}

TEST_F(InstalledPrograms, InFoldersBeyondTheSystemsLimitGiveZero)
{
    WritePaths("AeroluneDir=C:\\" + std::string(245, 'x'));
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 0);
    WritePaths("AeroluneDir=C:\\" + std::string(5000, 'x'));
    EXPECT_EQ(Version("Aerolune", "AeroluneDir"), 0);
}

TEST_F(InstalledPrograms, AreCompatibleWhenNoneIsThere)
{
    for (const char* product :
         {"Glasspad", "VornView", "Aerolune", "Spreadsheet", "", static_cast<const char*>(nullptr)})
    {
        EXPECT_EQ(Check(product), TRUE);
        EXPECT_EQ(planner, 1);
        EXPECT_EQ(viewer, 1);
    }
}

TEST_F(InstalledPrograms, TooOldAViewerStopsTheMovingMap)
{
    WritePaths(Install("VornView3Dir", kViewer, 3, 2));
    EXPECT_EQ(Check("Glasspad"), FALSE);
    EXPECT_EQ(planner, 1);
    EXPECT_EQ(viewer, 0);
    WritePaths(Install("VornView3Dir", kViewer, 3, 3));
    EXPECT_EQ(Check("Glasspad"), TRUE);
}

TEST_F(InstalledPrograms, SetTheFlagsOfTheProgramAsked)
{
    WritePaths(Install("AeroluneDir", kPlanner, 9, 0) + Install("VornView3Dir", kViewer, 3, 2) +
               Install("Glasspad3Dir", kMovingMap, 3, 1));
    EXPECT_EQ(Check("VornView"), FALSE);
    EXPECT_EQ(planner, 0);
    EXPECT_EQ(viewer, 1);
    EXPECT_EQ(Check("aerolune"), FALSE); // the first flag is the viewer's here
    EXPECT_EQ(planner, 0);
    EXPECT_EQ(viewer, 1);
    EXPECT_EQ(Check("GLASSPAD"), FALSE);
    EXPECT_EQ(planner, 0);
    EXPECT_EQ(viewer, 0);
}

TEST_F(InstalledPrograms, AreComparedByMajorAndMinorEachByItself)
{
    WritePaths(Install("AeroluneDir", kPlanner, 10, 0) + Install("Glasspad3Dir", kMovingMap, 4, 1));
    EXPECT_EQ(Check("VornView"), FALSE);
    EXPECT_EQ(planner, 0);
    EXPECT_EQ(viewer, 1);
    WritePaths(Install("VornView3Dir", kViewer, 4, 0));
    EXPECT_EQ(Check("Aerolune"), FALSE);
    EXPECT_EQ(planner, 0);
}

TEST_F(InstalledPrograms, WithUnreadableVersionsAreCompatible)
{
    WritePaths("VornView3Dir=" + Root());
    WriteProgram(Root() + kViewer, VersionResourceWithoutFixedPart());
    EXPECT_EQ(Check("Glasspad"), TRUE);
    EXPECT_EQ(viewer, 1);
}
