#include "tests/support/PumpUntil.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/ScratchKey.h"
#include "tests/support/WindowPicture.h"
#include "tests/windows/VornSample/SampleProcess.h"
#include "tests/windows/VornSample/SampleSettings.h"

#include <gtest/gtest.h>

#include <utility>

using vorn::test::PumpUntil;
using vorn::test::SampleProcess;
using vorn::test::ScratchFolder;
using vorn::test::ScratchKey;

namespace
{

// The sample's public command numbers: 32 for each kind of quantity, in the order of the Units menu.
constexpr WPARAM kFirstUnitCommand = 34000;
constexpr WPARAM kKilometersCommand = kFirstUnitCommand + 2;
constexpr WPARAM kHectopascalsCommand = kFirstUnitCommand + 6 * 32 + 1;

class SampleHost : public testing::Test
{
protected:
    std::string Output() const
    {
        return m_folder.Read("output.txt");
    }

    DWORD Run(const std::string& arguments)
    {
        const SampleProcess sample(arguments, m_folder.File("output.txt"));
        return sample.ExitCode();
    }

    static DWORD StoredUnit(const char* key)
    {
        DWORD value = 0xDEAD;
        DWORD size = sizeof value;
        const std::string section = std::string(kSettings) + "\\Units";
        RegGetValueA(HKEY_CURRENT_USER, section.c_str(), key, RRF_RT_REG_DWORD, nullptr, &value, &size);
        return value;
    }

    ScratchFolder m_folder;
    ScratchKey m_settings{HKEY_CURRENT_USER, kSettings};
};

// The view of a sample that starts with the position page, once the page's controls stand in it.
HWND PositionView(HWND window)
{
    constexpr int kViewId = 0xE900;
    constexpr int kLastControlId = 2006;
    const HWND view = GetDlgItem(window, kViewId);
    const bool ready = PumpUntil(
        [view]
        {
            return IsWindowVisible(GetDlgItem(view, kLastControlId)) != FALSE;
        });
    return ready ? view : nullptr;
}

std::string WindowsFolderFile(const char* name)
{
    char folder[MAX_PATH];
    GetWindowsDirectoryA(folder, MAX_PATH);
    return std::string(folder) + '\\' + name;
}

} // namespace

TEST_F(SampleHost, PrintsDefaultsOnAFreshInstallation)
{
    EXPECT_EQ(Run("--summary"), 0u);
    const std::string text = Output();
    EXPECT_NE(text.find("Stand to holding point         0.05 NM      304 FT\n"), std::string::npos) << text;
    EXPECT_NE(text.find("Standard at sea level          15.0 \xC2\xB0"
                        "C       59 \xC2\xB0"
                        "F\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("  Distance              Nautical Mile      Default\n"), std::string::npos) << text;
    EXPECT_EQ(text.find("Registry\n"), std::string::npos) << text;
}

TEST_F(SampleHost, KeepsUnitsAndPlaceOverARestart)
{
    RECT before{};
    {
        const SampleProcess sample("--size 900x640", m_folder.File("output.txt"));
        const HWND window = sample.MainWindow();
        ASSERT_NE(window, nullptr);
        SendMessageA(window, WM_COMMAND, kKilometersCommand, 0);
        SendMessageA(window, WM_COMMAND, kHectopascalsCommand, 0);
        SetWindowPos(window, nullptr, 60, 70, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        GetWindowRect(window, &before);
        PostMessageA(window, WM_CLOSE, 0, 0);
        EXPECT_EQ(sample.ExitCode(), 0u);
    }
    EXPECT_EQ(StoredUnit("Distance"), 2u);
    EXPECT_EQ(StoredUnit("Pressure"), 18u);

    const SampleProcess again("", m_folder.File("output.txt"));
    const HWND window = again.MainWindow();
    ASSERT_NE(window, nullptr);
    RECT after{};
    GetWindowRect(window, &after);
    EXPECT_EQ(after.left, before.left);
    EXPECT_EQ(after.top, before.top);
    EXPECT_EQ(after.right - after.left, 900);
    EXPECT_EQ(after.bottom - after.top, 640);
    PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(again.ExitCode(), 0u);

    EXPECT_EQ(Run("--summary"), 0u);
    EXPECT_NE(Output().find("112.00 NM     207.4 KM\n"), std::string::npos) << Output();
    EXPECT_NE(Output().find("  Distance              Kilometer          Registry\n"), std::string::npos) << Output();
}

TEST_F(SampleHost, ShowsSettingsOfAnOlderInstallation)
{
    const std::string file = WindowsFolderFile("VornSample.INI");
    WritePrivateProfileStringA("Units", "Speed", "7", file.c_str());
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, file.c_str());
    EXPECT_EQ(Run("--summary"), 0u);
    DeleteFileA(file.c_str());
    EXPECT_NE(Output().find("  Speed                 Kilometer per Hour  INI file\n"), std::string::npos) << Output();
    EXPECT_NE(Output().find("120.4 KPH\n"), std::string::npos) << Output();
}

TEST_F(SampleHost, SavesAPictureOfItsWindow)
{
    EXPECT_EQ(Run("--size 700x500 --snapshot \"" + m_folder.File("window.png") + '"'), 0u);
    const std::string picture = m_folder.Read("window.png");
    ASSERT_GT(picture.size(), 24u);
    EXPECT_EQ(picture.substr(0, 8), "\x89PNG\r\n\x1A\n");
    EXPECT_EQ(picture.substr(16, 8), std::string("\0\0\x02\xBC\0\0\x01\xF4", 8)); // 700 x 500, big-endian
}

TEST_F(SampleHost, ShowsThePlaceUnderThePointerWhileItIsOnTheMap)
{
    const SampleProcess sample("--page \"Position and time\" --size 1180x900", m_folder.File("output.txt"));
    const HWND window = sample.MainWindow();
    ASSERT_NE(window, nullptr);
    const HWND view = PositionView(window);
    ASSERT_NE(view, nullptr);
    const auto pictureWithPointerAt = [&](int x, int y)
    {
        SendMessageA(view, WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
        RedrawWindow(view, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        EXPECT_TRUE(vorn::test::SaveWindowPicture(window, m_folder.File("pointer.bmp")));
        return m_folder.Read("pointer.bmp");
    };
    // In the view the map reaches from 174 to 594 and from 72 to 282 at 96 dpi.
    // A picture may lag behind its window, so each is taken until it is what it has to become.
    std::string off;
    std::string onMap;
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return std::exchange(off, pictureWithPointerAt(900, 800)) == off && !off.empty();
        }));
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return (onMap = pictureWithPointerAt(300, 150)) != off;
        }));
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return pictureWithPointerAt(400, 200) != onMap;
        }));
    PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(sample.ExitCode(), 0u);
}

TEST_F(SampleHost, StoresHowPositionsAreWritten)
{
    constexpr int kSecondsCheckId = 2002;
    constexpr int kDecimalsEditId = 2003;
    {
        const SampleProcess sample("--page \"Position and time\"", m_folder.File("output.txt"));
        const HWND window = sample.MainWindow();
        ASSERT_NE(window, nullptr);
        const HWND view = PositionView(window);
        ASSERT_NE(view, nullptr);
        SendMessageA(GetDlgItem(view, kSecondsCheckId), BM_CLICK, 0, 0);
        SendMessageA(GetDlgItem(view, kDecimalsEditId), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("2"));
        PostMessageA(window, WM_CLOSE, 0, 0);
        EXPECT_EQ(sample.ExitCode(), 0u);
    }
    EXPECT_EQ(Run("--page \"Position and time\" --summary"), 0u);
    // 47.449 degrees are 47 degrees, 26 minutes and 56.40 seconds.
    EXPECT_NE(Output().find("N 47\xC2\xB0 26' 56.40\n"), std::string::npos) << Output();
    EXPECT_NE(Output().find("W122\xC2\xB0 18' 33.48\n"), std::string::npos) << Output();
}

TEST_F(SampleHost, RefusesWhatItDoesNotKnow)
{
    EXPECT_EQ(Run("--colour"), 2u);
    EXPECT_EQ(Output(), "VornSample: unknown option --colour\n");
    EXPECT_EQ(Run("--size 12"), 2u);
    EXPECT_EQ(Output(), "VornSample: --size wants WIDTHxHEIGHT, for example 1180x900\n");
    EXPECT_EQ(Run("--page Nowhere"), 2u);
    EXPECT_EQ(Output(), "VornSample: there is no page named Nowhere\n");
    EXPECT_EQ(Run("--snapshot"), 2u);
    EXPECT_EQ(Output(), "VornSample: --snapshot wants a value\n");
}

TEST_F(SampleHost, SaysWhenThePictureCannotBeWritten)
{
    const std::string file = m_folder.File("no such folder\\window.png");
    EXPECT_EQ(Run("--snapshot \"" + file + '"'), 1u);
    EXPECT_EQ(Output(), "VornSample: cannot write " + file + '\n');
}
