#include "frame/SystemVersion.h"
#include "tests/support/ImportRedirect.h"

#include <gtest/gtest.h>

#include <shlwapi.h>

#include <fstream>

using namespace vorn::test;

namespace
{
HRESULT g_answer = S_OK;
DLLVERSIONINFO g_asked;

OSVERSIONINFOA g_system;

BOOL WINAPI AnswerVersion(OSVERSIONINFOA* version)
{
    EXPECT_EQ(version->dwOSVersionInfoSize, sizeof *version);
    *version = g_system;
    return TRUE;
}

std::string OwnName()
{
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return path;
}
} // namespace

/// This program's own answer when it is asked as if it were a library. The export's plain name, without the calling
/// convention's decoration, is what callers look up.
extern "C" HRESULT CALLBACK DllGetVersion(DLLVERSIONINFO* version) __asm__("_DllGetVersion");
__asm__(".section .drectve,\"yn\"\n\t.ascii \" -export:DllGetVersion\"\n\t.text");
extern "C" HRESULT CALLBACK DllGetVersion(DLLVERSIONINFO* version)
{
    g_asked = *version;
    version->dwMajorVersion = 0x12345;
    version->dwMinorVersion = 0x6789A;
    return g_answer;
}

TEST(LibraryVersion, HasMajorInTheHighAndMinorInTheLowBits)
{
    g_answer = S_OK;
    EXPECT_EQ(GetDllVersion(OwnName().c_str()), 0x2345789Au);
}

TEST(LibraryVersion, IsAskedWithARecordOfTwentyBytesAllElseZero)
{
    GetDllVersion(OwnName().c_str());
    EXPECT_EQ(g_asked.cbSize, 20u);
    EXPECT_EQ(g_asked.dwMajorVersion, 0u);
    EXPECT_EQ(g_asked.dwMinorVersion, 0u);
    EXPECT_EQ(g_asked.dwBuildNumber, 0u);
    EXPECT_EQ(g_asked.dwPlatformID, 0u);
}

TEST(LibraryVersion, IsZeroWhenTheCallFails)
{
    g_answer = E_FAIL;
    EXPECT_EQ(GetDllVersion(OwnName().c_str()), 0u);
    g_answer = S_FALSE;
    EXPECT_NE(GetDllVersion(OwnName().c_str()), 0u);
    g_answer = S_OK;
}

TEST(LibraryVersion, OfACommonLibraryIsItsOwn)
{
    const DWORD version = GetDllVersion("comctl32.dll");
    EXPECT_GE(version >> 16, 5u);
    EXPECT_LE(version >> 16, 6u);
}

TEST(LibraryVersion, IsZeroWithoutLibraryOrExport)
{
    EXPECT_EQ(GetDllVersion(nullptr), 0u);
    EXPECT_EQ(GetDllVersion(""), 0u);
    EXPECT_EQ(GetDllVersion("no such library.dll"), 0u);
    EXPECT_EQ(GetDllVersion("kernel32.dll"), 0u);
}

TEST(LibraryVersion, IsZeroForAFileThatIsNoLibrary)
{
    const std::string path = OwnName() + ".txt.dll";
    std::ofstream(path) << "no library";
    EXPECT_EQ(GetDllVersion(path.c_str()), 0u);
    DeleteFileA(path.c_str());
}

TEST(LibraryVersion, LeavesTheLibraryFreed)
{
    ASSERT_EQ(GetModuleHandleA("msi.dll"), nullptr);
    EXPECT_NE(GetDllVersion("msi.dll"), 0u);
    EXPECT_EQ(GetModuleHandleA("msi.dll"), nullptr);
    ASSERT_EQ(GetModuleHandleA("dinput.dll"), nullptr);
    EXPECT_EQ(GetDllVersion("dinput.dll"), 0u) << "a library that does not say";
    EXPECT_EQ(GetModuleHandleA("dinput.dll"), nullptr);
}

TEST(SystemVersion, IsThatOfTheSystemsRecord)
{
    const ImportRedirect redirect("VornCommon.dll", "GetVersionExA", reinterpret_cast<const void*>(&AnswerVersion));
    ASSERT_TRUE(redirect.IsActive());
    const auto isNT = [](DWORD platform)
    {
        g_system = {sizeof g_system, 5, 1, 0, platform, {}};
        return IsNT();
    };
    EXPECT_FALSE(isNT(0));
    EXPECT_FALSE(isNT(1));
    EXPECT_TRUE(isNT(2));
    EXPECT_FALSE(isNT(3));
    const auto isSeven = [](DWORD major, DWORD minor)
    {
        g_system = {sizeof g_system, major, minor, 0, 2, {}};
        return IsWindows7OrLater();
    };
    EXPECT_FALSE(isSeven(4, 10));
    EXPECT_FALSE(isSeven(5, 2));
    EXPECT_FALSE(isSeven(6, 0));
    EXPECT_TRUE(isSeven(6, 1));
    EXPECT_TRUE(isSeven(6, 2));
    EXPECT_TRUE(isSeven(7, 0));
    EXPECT_TRUE(isSeven(10, 0));
}

TEST(SystemVersion, OfEverySystemThatThisRunsOnIsNT)
{
    EXPECT_TRUE(IsNT());
}
