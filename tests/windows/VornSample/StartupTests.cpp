#include "tests/support/PumpUntil.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/ScratchKey.h"
#include "tests/windows/VornSample/InstalledSample.h"
#include "tests/windows/VornSample/SampleProcess.h"
#include "tests/windows/VornSample/SampleSettings.h"

#include <VornCommon.h>

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <optional>

using namespace vorn::test;

namespace
{

constexpr const char* kBriefingSettings = "Software\\Vornwald\\VornBriefing";
constexpr const char* kTitle = "Vornwald sample host (2025-2026)";
constexpr auto kPatience = std::chrono::seconds(30);
// The library's controls of the startup dialog.
constexpr int kHide = 1004;
constexpr int kUpdate = 1005;

std::string TextOf(HWND window)
{
    char text[4096] = "";
    SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

/// A dialog of any process, once it is shown.
HWND DialogOf(const char* title)
{
    HWND found = nullptr;
    PumpUntil(
        [&]
        {
            found = FindWindowA("#32770", title);
            return found != nullptr && IsWindowVisible(found);
        },
        kPatience);
    return found;
}

bool Goes(HWND window)
{
    return PumpUntil(
        [window]
        {
            return !IsWindow(window);
        },
        kPatience);
}

class SampleStartup : public testing::Test
{
protected:
    DWORD Run(const std::string& arguments)
    {
        return SampleProcess(arguments, m_folder.File("output.txt"), SampleProcess::Startup::Shown).ExitCode();
    }

    std::string Output() const
    {
        return m_folder.Read("output.txt");
    }

    static std::optional<DWORD> Value(const std::string& section, const char* key)
    {
        DWORD value = 0;
        DWORD size = sizeof value;
        const LSTATUS status =
            RegGetValueA(HKEY_CURRENT_USER, section.c_str(), key, RRF_RT_REG_DWORD, nullptr, &value, &size);
        return status == ERROR_SUCCESS ? std::optional(value) : std::nullopt;
    }

    ScratchFolder m_folder;
    ScratchKey m_settings{HKEY_CURRENT_USER, kSettings};
    ScratchKey m_briefing{HKEY_CURRENT_USER, kBriefingSettings};
};

/// A program beside this one, with its output in a file.
DWORD RunBeside(const char* program, const std::string& arguments, const std::string& outputFile)
{
    const ProgramRun run(PathBeside(program), arguments, outputFile);
    EXPECT_TRUE(run.IsStarted());
    return run.ExitCode();
}

} // namespace

TEST_F(SampleStartup, ComesBeforeTheMainWindowAndIsRemembered)
{
    {
        const SampleProcess sample("", m_folder.File("output.txt"), SampleProcess::Startup::Shown);
        const HWND dialog = sample.Dialog();
        ASSERT_NE(nullptr, dialog);
        EXPECT_EQ(kTitle, TextOf(dialog));
        SendMessageA(GetDlgItem(dialog, kHide), BM_CLICK, 0, 0);
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
        const HWND window = sample.MainWindow();
        ASSERT_NE(nullptr, window);
        PostMessageA(window, WM_CLOSE, 0, 0);
        EXPECT_EQ(0U, sample.ExitCode());
    }
    EXPECT_EQ(1U, Value(std::string(kSettings) + "\\Startup", "NoDisclaimer"));
    const SampleProcess again("", m_folder.File("output.txt"), SampleProcess::Startup::Shown);
    const HWND dialog = again.Dialog();
    ASSERT_NE(nullptr, dialog);
    EXPECT_TRUE(IsDlgButtonChecked(dialog, kHide));
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    const HWND window = again.MainWindow();
    ASSERT_NE(nullptr, window) << "cancelling goes on as well";
    PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(0U, again.ExitCode());
}

TEST_F(SampleStartup, GetUpdateStartsAProgramThatReportsAndEnds)
{
    const SampleProcess sample("", m_folder.File("output.txt"), SampleProcess::Startup::Shown);
    const HWND dialog = sample.Dialog();
    ASSERT_NE(nullptr, dialog);
    PostMessageA(GetDlgItem(dialog, kUpdate), BM_CLICK, 0, 0);
    const HWND report = DialogOf("VornUpdate");
    ASSERT_NE(nullptr, report);
    const std::string text = TextOf(GetDlgItem(report, 0xFFFF));
    EXPECT_NE(std::string::npos, text.find("navaids.dbf: 156 records")) << text;
    EXPECT_NE(std::string::npos, text.find("runways.dbf: 89 records")) << text;
    EXPECT_TRUE(IsWindowVisible(dialog)) << "the dialog stays open";
    PostMessageA(report, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(Goes(report));
    PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    const HWND window = sample.MainWindow();
    ASSERT_NE(nullptr, window);
    PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(0U, sample.ExitCode());
}

TEST_F(SampleStartup, ShowsTheCaseThatTheCommandLineAsksFor)
{
    EXPECT_EQ(0U, Run("--startup mixed --summary"));
    EXPECT_EQ(0U, Output().find(std::string(kTitle) + "\nWelcome to Vornwald sample host\n")) << Output();
    EXPECT_NE(std::string::npos, Output().find("(12.5 days)")) << Output();
    EXPECT_NE(std::string::npos, Output().find("(1.5 days)")) << Output();
    EXPECT_NE(std::string::npos, Output().find("Late: 3.0 days")) << Output();
    EXPECT_EQ(0U, Run("--startup late --summary"));
    EXPECT_NE(std::string::npos, Output().find("(3.0 days ago)")) << Output();
    EXPECT_EQ(std::string::npos, Output().find("Expires:")) << Output();
    EXPECT_EQ(0U, Run("--startup valid --summary"));
    EXPECT_EQ(std::string::npos, Output().find("ago)")) << Output();
    EXPECT_EQ(2U, Run("--startup never --summary"));
    EXPECT_EQ("VornSample: --startup wants mixed, valid, expiring or late\n", Output());
}

TEST_F(SampleStartup, SavesItsPicture)
{
    EXPECT_EQ(0U, Run("--startup expiring --snapshot \"" + m_folder.File("startup.png") + '"'));
    EXPECT_EQ("\x89PNG\r\n\x1A\n", m_folder.Read("startup.png").substr(0, 8));
}

TEST_F(SampleStartup, StaysAwayWhereTheSettingsSaySo)
{
    HKEY key = nullptr;
    const DWORD no = 0;
    RegCreateKeyExA(HKEY_CURRENT_USER, (std::string(kSettings) + "\\Startup").c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                    nullptr, &key, nullptr);
    RegSetValueExA(key, "ShowDialog", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&no), sizeof no);
    RegCloseKey(key);
    const SampleProcess sample("", m_folder.File("output.txt"), SampleProcess::Startup::Shown);
    const HWND window = sample.MainWindow();
    ASSERT_NE(nullptr, window);
    PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(0U, sample.ExitCode());
}

TEST_F(SampleStartup, UpdateReportsToAScriptToo)
{
    EXPECT_EQ(0U, RunBeside("VornUpdate.exe", "--quiet", m_folder.File("output.txt")));
    EXPECT_EQ(0U, Output().find("The sample's data is complete.")) << Output();
    EXPECT_EQ(2U, RunBeside("VornUpdate.exe", "--fast", m_folder.File("output.txt")));
}

TEST_F(SampleStartup, UpdateTellsTablesInUseFromThoseThatAreMissingOrDamaged)
{
    const InstalledSample installed(m_folder.Path() / "installed");
    ASSERT_TRUE(installed.IsComplete());
    const auto update = [&]
    {
        return ProgramRun(installed.File("VornUpdate.exe"), "--quiet", m_folder.File("output.txt")).ExitCode();
    };
    EXPECT_EQ(0U, update()) << Output();
    {
        const ProgramRun sample(installed.File("VornSample.exe"),
                                "--no-startup --page Table --table \"" + installed.File("data\\navaids.dbf") + '"',
                                m_folder.File("sample.txt"));
        const HWND window = sample.MainWindow();
        ASSERT_NE(nullptr, window);
        // The window comes before its table.
        EXPECT_TRUE(PumpUntil(
            [&]
            {
                return update() == 3;
            }));
        EXPECT_EQ(0U, Output().find("Data of the sample is in use")) << Output();
        EXPECT_NE(std::string::npos, Output().find("navaids.dbf: in use by another program\n")) << Output();
        EXPECT_NE(std::string::npos, Output().find("runways.dbf: 89 records")) << Output();
        PostMessageA(window, WM_CLOSE, 0, 0);
        EXPECT_EQ(0U, sample.ExitCode());
    }
    std::ofstream(installed.File("data\\runways.dbf")) << "no table";
    EXPECT_EQ(1U, update());
    EXPECT_EQ(0U, Output().find("Data of the sample is damaged")) << Output();
    EXPECT_NE(std::string::npos, Output().find("runways.dbf: cannot be read as a table\n")) << Output();
    EXPECT_NE(0, DeleteFileA(installed.File("data\\navaids.dbf").c_str()));
    EXPECT_EQ(1U, update());
    EXPECT_EQ(0U, Output().find("Data of the sample is missing")) << Output();
    EXPECT_NE(std::string::npos, Output().find("navaids.dbf: not there\n")) << Output();
}

TEST_F(SampleStartup, ASecondApplicationSeesSettingsAndFoldersOfBoth)
{
    HKEY key = nullptr;
    const DWORD kilometers = 2;
    RegCreateKeyExA(HKEY_CURRENT_USER, (std::string(kSettings) + "\\Units").c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                    nullptr, &key, nullptr);
    RegSetValueExA(key, "Distance", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&kilometers), sizeof kilometers);
    RegCloseKey(key);
    const DefinedPathSetting tracks = GetDefinedPathSetting(DP_TRACK, PCV_LEGACY);
    const char folder[] = "C:\\Flights\\";
    RegCreateKeyExA(HKEY_CURRENT_USER, (std::string(kSettings) + "\\" + tracks.section).c_str(), 0, nullptr, 0,
                    KEY_ALL_ACCESS, nullptr, &key, nullptr);
    RegSetValueExA(key, tracks.key, 0, REG_SZ, reinterpret_cast<const BYTE*>(folder), sizeof folder);
    RegCloseKey(key);
    EXPECT_EQ(0U, RunBeside("VornBriefing.exe", "--summary", m_folder.File("output.txt")));
    EXPECT_NE(std::string::npos, Output().find("  Distance | NM | KM\n")) << Output();
    EXPECT_NE(std::string::npos, Output().find("  Speed | KTS | KTS\n")) << Output();
    EXPECT_NE(std::string::npos, Output().find(" | C:\\Flights\\\n")) << Output();
    EXPECT_EQ(std::string::npos, Output().find("  Tracks | C:\\Flights\\")) << "not this program's own";
    EXPECT_NE(std::string::npos, Output().find("Runways, Canada | ")) << Output();
    EXPECT_EQ(2U, RunBeside("VornBriefing.exe", "--data never", m_folder.File("output.txt")));
}

TEST_F(SampleStartup, TheSecondApplicationTakesTheUnitsOfTheFirst)
{
    HKEY key = nullptr;
    const DWORD kilometers = 2;
    RegCreateKeyExA(HKEY_CURRENT_USER, (std::string(kSettings) + "\\Units").c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                    nullptr, &key, nullptr);
    RegSetValueExA(key, "Distance", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&kilometers), sizeof kilometers);
    RegCloseKey(key);
    constexpr int kTakeOver = 1002;
    const ProgramRun briefing(PathBeside("VornBriefing.exe"), "", m_folder.File("output.txt"));
    const HWND dialog = briefing.Dialog();
    ASSERT_NE(nullptr, dialog);
    SendMessageA(GetDlgItem(dialog, kTakeOver), BM_CLICK, 0, 0);
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_EQ(0U, briefing.ExitCode());
    EXPECT_EQ(2U, Value(std::string(kBriefingSettings) + "\\Units", "Distance"));
    EXPECT_EQ(2U, Value(std::string(kSettings) + "\\Units", "Distance"));
}
