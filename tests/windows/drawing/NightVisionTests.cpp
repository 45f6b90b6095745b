#include "aviation/Drawing.h"
#include "config/AppRegMgr.h"
#include "family/VornChart/core/ColorContext.h"
#include "frame/VornCommonApp.h"
#include "tests/support/ScratchKey.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace
{

constexpr const char* kColors = "Software\\Vornwald\\windows_drawing_tests\\Colors";
constexpr const char* kExpected = "VORN_TEST_EXPECTED";

void Store(const char* key, const char* text)
{
    ASSERT_EQ(::RegSetKeyValueA(HKEY_CURRENT_USER, kColors, key, REG_SZ, text,
                                static_cast<DWORD>(std::string(text).size() + 1)),
              ERROR_SUCCESS);
}

/// The host's settings, empty before and after the test.
class NightVision : public testing::Test
{
protected:
    /// The stored text; "(none)" when there is none.
    static std::string Stored(const char* key)
    {
        char text[100] = {};
        DWORD size = sizeof text;
        const LSTATUS status = ::RegGetValueA(HKEY_CURRENT_USER, kColors, key, RRF_RT_REG_SZ, nullptr, text, &size);
        return status == ERROR_SUCCESS ? text : "(none)";
    }
    static std::string StoredScales()
    {
        return Stored("NVRedScale") + ' ' + Stored("NVGreenScale") + ' ' + Stored("NVBlueScale");
    }

private:
    vorn::test::ScratchKey m_key{HKEY_CURRENT_USER, "Software\\Vornwald\\windows_drawing_tests"};
};

/// The scales and what they make of a few colours.
std::string Report()
{
    double red = 9;
    double green = 9;
    double blue = 9;
    GetNVScales(red, green, blue);
    BYTE bytes[3] = {200, 100, 50};
    MakeNightVision(bytes[0], bytes[1], bytes[2]);
    CString text;
    text.Format("%g %g %g; %08lX %08lX; %d %d %d; %08lX", red, green, blue, MakeNightVision(RGB(200, 100, 50)),
                MakeNightVision(PALETTEINDEX(3)), bytes[0], bytes[1], bytes[2], MakeNormalColor(RGB(80, 40, 20)));
    return text.GetString();
}

/// Runs a test below in a process of its own, whose scales are not read yet; its exit code.
DWORD RunElsewhere(const std::string& child)
{
    char program[MAX_PATH] = {};
    ::GetModuleFileNameA(nullptr, program, sizeof program);
    std::string line = std::string("\"") + program +
                       "\" --gtest_brief=1 --gtest_also_run_disabled_tests --gtest_filter=NightVisionChild." + child;
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    DWORD code = 12345;
    if (!::CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
    {
        return code;
    }
    ::WaitForSingleObject(process.hProcess, 30000);
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}

DWORD ReportElsewhere(const std::string& expected)
{
    ::SetEnvironmentVariableA(kExpected, expected.c_str());
    return RunElsewhere("DISABLED_ReportsItsScales");
}

} // namespace

// No tests by themselves: what other processes run. The first compares with what its parent expects.
TEST(NightVisionChild, DISABLED_ReportsItsScales)
{
    VornCommonApp host;
    VornCommonApp::Inst(&host);
    char expected[200] = {};
    ::GetEnvironmentVariableA(kExpected, expected, sizeof expected);
    EXPECT_EQ(Report(), expected);
    EXPECT_EQ(Report(), expected) << "the second time";
    VornCommonApp::FreeInst();
}

TEST(NightVisionChild, DISABLED_ReadsOnceUnlessRedIsNegative)
{
    VornCommonApp host;
    VornCommonApp::Inst(&host);
    double red = 0;
    double green = 0;
    double blue = 0;
    Store("NVRedScale", "-0.5");
    Store("NVGreenScale", "1");
    Store("NVBlueScale", "1");
    GetNVScales(red, green, blue);
    EXPECT_EQ(red, -0.5);
    EXPECT_EQ(MakeNightVision(RGB(100, 0, 0)), 0x020000CEU); // -50
    Store("NVRedScale", "0.25");
    Store("NVBlueScale", "0.75");
    GetNVScales(red, green, blue);
    EXPECT_EQ(red, 0.25);
    EXPECT_EQ(green, 1);
    EXPECT_EQ(blue, 0.75);
    Store("NVRedScale", "0.9");
    ASSERT_EQ(::RegDeleteKeyValueA(HKEY_CURRENT_USER, kColors, "NVBlueScale"), ERROR_SUCCESS);
    GetNVScales(red, green, blue);
    EXPECT_EQ(red, 0.25);
    EXPECT_EQ(blue, 0.75);
    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
}

TEST(NightVisionChild, DISABLED_ReadsAnewWhatItForgot)
{
    VornCommonApp host;
    VornCommonApp::Inst(&host);
    Store("NVRedScale", "0.5");
    EXPECT_EQ(MakeNightVision(RGB(100, 100, 100)), 0x02282832U);
    Store("NVRedScale", "0.25");
    Store("NVBlueScale", "1");
    EXPECT_EQ(MakeNightVision(RGB(100, 100, 100)), 0x02282832U) << "not asked yet";
    ForgetNVScales();
    EXPECT_EQ(MakeNightVision(RGB(100, 100, 100)), 0x02642819U);
    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
}

TEST_F(NightVision, DefaultsDimAndBecomeSettings)
{
    EXPECT_EQ(ReportElsewhere("0.4 0.4 0.4; 02142850 02000001; 80 40 20; 023264C8"), 0U);
    EXPECT_EQ(StoredScales(), "0.4 0.4 0.4");
}

TEST_F(NightVision, StoredScalesAreReadAndKeptAsTheyAre)
{
    Store("NVRedScale", "0.50");
    Store("NVGreenScale", " 2 ");
    Store("NVBlueScale", ".1x");
    // Green: 200 of 100, 20 of 40; blue: 5 of 50, 200 of 20.
    EXPECT_EQ(ReportElsewhere("0.5 2 0.1; 0205C864 02000001; 100 200 5; 02C814A0"), 0U);
    EXPECT_EQ(StoredScales(), "0.50  2  .1x");
}

TEST_F(NightVision, ScalesThatAreMissingBecomeSettingsBesideTheOthers)
{
    Store("NVGreenScale", "1");
    EXPECT_EQ(ReportElsewhere("0.4 1 0.4; 02146450 02000001; 80 100 20; 023228C8"), 0U);
    EXPECT_EQ(StoredScales(), "0.4 1 0.4");
}

TEST_F(NightVision, TextsWithoutNumberDimToBlackAndDivideToBlack)
{
    Store("NVRedScale", "dark");
    Store("NVGreenScale", "");
    Store("NVBlueScale", "0");
    EXPECT_EQ(ReportElsewhere("0 0 0; 02000000 02000000; 0 0 0; 02000000"), 0U);
    EXPECT_EQ(StoredScales(), "dark  0");
}

TEST_F(NightVision, ProductsAreCutAndMasked)
{
    Store("NVRedScale", "2");
    Store("NVGreenScale", "2.56");
    Store("NVBlueScale", "1");
    // 200 * 2 is 400, whose low byte is 144; 100 * 2.56 is 256, whose low byte is 0; 40 / 2.56 is 15.6.
    EXPECT_EQ(ReportElsewhere("2 2.56 1; 02320090 02000006; 144 0 50; 02140F28"), 0U);
}

TEST_F(NightVision, SettingsAreReadAgainWhenTheHostSaysSo)
{
    EXPECT_EQ(RunElsewhere("DISABLED_ReadsAnewWhatItForgot"), 0U);
    EXPECT_EQ(StoredScales(), "0.25 0.4 1");
}

TEST_F(NightVision, SettingsAreReadOnceInAProcessUnlessTheRedScaleIsNegative)
{
    EXPECT_EQ(RunElsewhere("DISABLED_ReadsOnceUnlessRedIsNegative"), 0U);
    EXPECT_EQ(StoredScales(), "0.9 1 (none)");
}

TEST(NightVisionState, IsTheChartLibrarysNightAndNoOther)
{
    ColorContext* const colors = ColorContext::Instance();
    EXPECT_FALSE(IsNightVision());
    colors->SetCurrentState(COLORSTATE_NIGHT);
    EXPECT_TRUE(IsNightVision());
    colors->SetCurrentState(COLORSTATE_DUSK);
    EXPECT_FALSE(IsNightVision());
    colors->SetCurrentState(COLORSTATE_DAY);
    EXPECT_FALSE(IsNightVision());
}
