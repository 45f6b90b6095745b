#include "tests/windows/startup/StartupFixture.h"

#include "tests/support/DialogDriver.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/ScratchFolder.h"
#include "toolkit/startup/StartupIds.h"

#include <chrono>

namespace vorn::test
{

namespace
{

constexpr int kBoxText = 0xFFFF; // of the text in the system's message boxes
constexpr auto kPatience = std::chrono::seconds(20);

HWND UpdateButton(HWND dialog)
{
    return ::GetDlgItem(dialog, IDC_VORN_STARTUP_UPDATE);
}

std::string OwnFolder()
{
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string own(path);
    return own.substr(0, own.find_last_of('\\') + 1);
}

/// The system's text for an error, without its line break.
std::string SystemText(DWORD error)
{
    char text[512] = "";
    ::FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, text, sizeof text,
                     nullptr);
    const std::string whole(text);
    return whole.substr(0, whole.find_last_not_of("\r\n") + 1);
}

/// Opens the update from the dialog's button.
class Reachable : public CStartupDlg
{
public:
    using CStartupDlg::CStartupDlg;
    using CStartupDlg::OnUpdateData;
};

/// What the message box says when a program cannot be started.
std::string FailureOf(const std::string& program)
{
    Reachable dialog("Testplane", program.c_str(), nullptr, 0, nullptr, nullptr);
    std::string message;
    bool asked = false;
    bool stayedOpen = false;
    DialogDriver driver(
        [&]
        {
            const HWND window = FindDialog("Testplane (1990-2004)");
            const HWND box = FindDialog("Testplane");
            if (box != nullptr)
            {
                message = TextOf(::GetDlgItem(box, kBoxText));
                ::PostMessageA(box, WM_COMMAND, IDOK, 0);
            }
            else if (window != nullptr && !asked)
            {
                asked = true;
                ::PostMessageA(window, WM_COMMAND, IDC_VORN_STARTUP_UPDATE, 0);
            }
            else if (!message.empty() && ::IsWindowEnabled(window))
            {
                stayedOpen = true;
                ::PostMessageA(window, WM_COMMAND, IDCANCEL, 0);
            }
            return stayedOpen;
        });
    dialog.DoModal();
    EXPECT_TRUE(stayedOpen);
    return message;
}

std::string Failure(DWORD error)
{
    return "Check for updates can not be performed properly at this time.  " + SystemText(error) + "\r\n";
}

} // namespace

TEST_F(StartupDialog, UpdateNeedsAProgramAndPermission)
{
    const auto isEnabled = [](LPCSTR program, bool allowed)
    {
        CStartupDlg dialog("Testplane", program, nullptr, 0, nullptr, nullptr);
        dialog.AllowUpdate(allowed);
        bool enabled = false;
        Show(dialog,
             [&](HWND window)
             {
                 enabled = ::IsWindowEnabled(UpdateButton(window)) != FALSE;
             });
        return enabled;
    };
    EXPECT_TRUE(isEnabled("C:\\update.exe", true));
    EXPECT_FALSE(isEnabled("C:\\update.exe", false));
    EXPECT_FALSE(isEnabled("", true));
    EXPECT_FALSE(isEnabled(nullptr, true));
}

TEST_F(StartupDialog, UpdatesAreAllowedAtFirstAndCanBeForbiddenWhileItIsShown)
{
    CStartupDlg dialog("Testplane", "C:\\update.exe", nullptr, 0, nullptr, nullptr);
    Show(dialog,
         [&](HWND window)
         {
             EXPECT_TRUE(::IsWindowEnabled(UpdateButton(window)));
             dialog.AllowUpdate(false);
             EXPECT_FALSE(::IsWindowEnabled(UpdateButton(window)));
             dialog.AllowUpdate(true);
             EXPECT_TRUE(::IsWindowEnabled(UpdateButton(window)));
         });
}

TEST_F(StartupDialog, UpdateWithoutProgramDoesNothing)
{
    Reachable dialog("Testplane", nullptr, nullptr, 0, nullptr, nullptr);
    dialog.OnUpdateData();
    Show(dialog,
         [&](HWND window)
         {
             dialog.OnUpdateData();
             EXPECT_TRUE(::IsWindowEnabled(window)) << "no message";
         });
}

TEST_F(StartupDialog, UpdateStartsTheProgramInItsOwnFolder)
{
    const ScratchFolder folder;
    const std::string program = folder.File("get it.exe");
    ASSERT_TRUE(::CopyFileA((OwnFolder() + "startup_updater.exe").c_str(), program.c_str(), FALSE));
    char before[MAX_PATH] = "";
    ::GetCurrentDirectoryA(MAX_PATH, before);
    CStartupDlg dialog("Testplane", program.c_str(), nullptr, 0, nullptr, nullptr);
    EXPECT_EQ(IDCANCEL, Show(dialog,
                             [&](HWND window)
                             {
                                 ::SendMessageA(UpdateButton(window), BM_CLICK, 0, 0);
                                 EXPECT_TRUE(PumpUntil(
                                     [&]
                                     {
                                         return !folder.Read("started.txt").empty();
                                     },
                                     kPatience));
                                 EXPECT_TRUE(::IsWindowVisible(window)) << "it stays open";
                             }));
    EXPECT_EQ(folder.Path().string() + "\n1\n", folder.Read("started.txt"));
    char after[MAX_PATH] = "";
    ::GetCurrentDirectoryA(MAX_PATH, after);
    EXPECT_STREQ(before, after);
}

TEST_F(StartupDialog, AProgramThatIsMissingIsReported)
{
    const ScratchFolder folder;
    EXPECT_EQ(Failure(ERROR_FILE_NOT_FOUND), FailureOf(folder.File("missing.exe")));
    EXPECT_EQ(UINT{MB_OK | MB_ICONINFORMATION}, LastMessageBox());
    EXPECT_EQ(Failure(ERROR_FILE_NOT_FOUND), FailureOf("no-such-program-anywhere.exe")) << "no folder in the path";
}

TEST_F(StartupDialog, AFolderThatIsMissingIsNotReportedAsABadFolderName)
{
    const ScratchFolder folder;
    const std::string message = FailureOf(folder.File("nowhere\\missing.exe"));
    EXPECT_TRUE(message == Failure(ERROR_FILE_NOT_FOUND) || message == Failure(ERROR_PATH_NOT_FOUND)) << message;
}

} // namespace vorn::test
