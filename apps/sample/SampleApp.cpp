#include "apps/sample/SampleApp.h"

#include "apps/planner/GeneralSettings.h"
#include "apps/planner/shots/ShotRun.h"
#include "apps/sample/BareWindows.h"
#include "apps/sample/LeftOver.h"
#include "apps/sample/LifeRun.h"
#include "apps/sample/MainFrame.h"
#include "apps/sample/PageView.h"
#include "apps/sample/SampleShots.h"
#include "apps/sample/Singletons.h"
#include "apps/sample/Snapshot.h"
#include "apps/sample/StartupDialog.h"
#include "apps/sample/core/ReportTable.h"
#include "apps/sample/model/Messages.h"
#include "apps/sample/model/Usage.h"
#include "apps/sample/resource.h"

#include <memory>

namespace
{

constexpr int kFailed = 1;
constexpr int kWrongUse = 2;

SampleApp theApp;

// Straight to the handle: the text's line ends stay as they are, as in the family's command-line tool.
void Print(DWORD stream, const std::string& text)
{
    const std::string out = vorn::Utf8FromCodePage1252(text);
    DWORD written = 0;
    WriteFile(GetStdHandle(stream), out.data(), static_cast<DWORD>(out.size()), &written, nullptr);
}

// Lets windows show and paint themselves until nothing is left to do.
void PumpPending()
{
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
    {
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
}

std::string TakeOptions(PageView& view, const StartOptions& options)
{
    for (const std::unique_ptr<Page>& page : view.Pages())
    {
        if (std::string problem = page->TakeOptions(options); !problem.empty())
            return problem;
    }
    return {};
}

/// What stands in the settings and takes effect without being asked for.
void TakeSettings()
{
    BeginLog();
    vorn::planner::ApplyTips();
}

} // namespace

SampleApp::SampleApp() : CWinApp("VornSample")
{
}

BOOL SampleApp::InitInstance()
{
    const StartOptions options = ParseStartOptions(__argc, __argv);
    if (!options.error.empty() || options.help)
    {
        const bool failed = !options.error.empty();
        Print(failed ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE,
              failed ? "VornSample: " + options.error + '\n' : StartOptionsHelp());
        m_exitCode = failed ? kWrongUse : 0;
        return FALSE;
    }

    m_unattended = options.IsUnattended() || options.rounds > 0;
    VornCommonApp::Inst(this);
    SetRegistryKey("Vornwald"); // the bars' state stands beside the settings
    TakeSettings();
    LogNote(LOG_INFO, "VornSample " VORN_VERSION " started");
    CountUse(UsageEvent::Start);
    if (options.rounds > 0)
    {
        RunRounds(options);
        return FALSE;
    }
    if (!ShowStartup(options) || !CreateMainFrame(options) || !ApplyOptions(options))
        return FALSE;
    if (options.IsUnattended())
    {
        RunUnattended(options);
        return FALSE;
    }
    SpeakUp();
    return TRUE;
}

// What the system keeps of windows like those of the last life.
void SampleApp::PrintFloor(const BareWindows& windows)
{
    const int count = windows.Count();
    windows.MakeAgain(); // caches come to their size
    const LeftOver before = CountLeftOver();
    windows.MakeAgain();
    const LeftOver after = CountLeftOver();
    Print(STD_OUTPUT_HANDLE, std::to_string(count) + " bare windows leave " +
                                 std::to_string(after.heapBlocks - before.heapBlocks) + " heap blocks\n");
}

// Each life is as a user's, with everything opened once.
void SampleApp::RunRounds(const StartOptions& options)
{
    BareWindows windows;
    LifeRun lives(windows);
    for (int round = 1; round <= options.rounds && m_exitCode == 0; ++round)
    {
        windows.Clear();
        VornCommonApp::Inst(this);
        Print(STD_OUTPUT_HANDLE, "life " + std::to_string(round) + " begins with " + SingletonsText() + '\n');
        TakeSettings();
        if (!lives.ShowStartup() || !CreateMainFrame(options))
        {
            m_exitCode = kFailed;
            break;
        }
        lives.OpenEverything(*static_cast<MainFrame*>(m_pMainWnd));
        m_pMainWnd->DestroyWindow();
        LifeRun::Settle(); // the request to quit among it
        FreeSingletons();
        if (round < options.rounds - 1)
            continue; // counting takes its time: the last two are compared
        const LeftOver left = CountLeftOver();
        Print(STD_OUTPUT_HANDLE, "life " + std::to_string(round) + " leaves " + std::to_string(left.heapBlocks) +
                                     " heap blocks, " + std::to_string(left.gdiObjects) + " GDI objects, " +
                                     std::to_string(left.userObjects) + " windows, menus and icons; " +
                                     std::to_string(lives.Dialogs()) + " dialogs were open\n");
    }
    PrintFloor(windows);
}

// Goes on to the main window unless nobody is there to look.
bool SampleApp::ShowStartup(const StartOptions& options)
{
    if (!options.ShowsStartup() || (options.startup.empty() && GetSettingInt("Startup", "ShowDialog", 1) == 0))
        return true;
    StartupDialog dialog(CurrencyNamed(options.startup).value_or(Currency::Mixed));
    dialog.RunUnattended(options.IsUnattended(), options.snapshotFile);
    const bool shown = dialog.DoModal() != -1;
    if (options.IsUnattended() && (!shown || dialog.HasFailed()))
    {
        Print(STD_ERROR_HANDLE, "VornSample: the startup dialog could not be shown or its picture not be written\n");
        m_exitCode = kFailed;
        return false;
    }
    if (options.summary)
        Print(STD_OUTPUT_HANDLE, dialog.Summary());
    return !options.IsUnattended();
}

bool SampleApp::CreateMainFrame(const StartOptions& options)
{
    auto frame = std::make_unique<MainFrame>();
    if (!frame->LoadFrame(IDR_MAINFRAME))
    {
        Print(STD_ERROR_HANDLE, "VornSample: the window could not be created; is there a display?\n");
        m_exitCode = kFailed;
        return false;
    }
    MainFrame& shown = *frame.release(); // a frame window deletes itself when its window is destroyed
    m_pMainWnd = &shown;
    InitialShowMainFrame(&shown, "WindowPlacement", "Main", "Bars", static_cast<UINT>(m_nCmdShow));
    if (options.width > 0)
        m_pMainWnd->SetWindowPos(nullptr, 0, 0, options.width, options.height, SWP_NOMOVE | SWP_NOZORDER);
    shown.Planner().Data(); // while no page has its tables open for changes
    m_pMainWnd->UpdateWindow();
    return true;
}

bool SampleApp::ApplyOptions(const StartOptions& options)
{
    PageView& view = *static_cast<MainFrame*>(m_pMainWnd)->View();
    const std::string problem = TakeOptions(view, options);
    const bool aboutTables = !options.table.empty() || !options.find.empty();
    const bool aboutChart = !options.view.empty() || options.night;
    const char* const ofOptions = aboutTables                ? "Tables"
                                  : aboutChart               ? "Chart"
                                  : !options.picture.empty() ? "Pictures"
                                                             : "";
    const std::string page = options.page.empty() ? ofOptions : options.page;
    if (page.empty() && !options.IsUnattended())
        static_cast<MainFrame*>(m_pMainWnd)->ShowKeptPage();
    const bool shown = page.empty() || view.ShowPage(page);
    if (shown && (problem.empty() || !options.IsUnattended())) // a user sees on the page what is wrong
        return true;
    Print(STD_ERROR_HANDLE, "VornSample: " + (shown ? problem : "there is no page named " + page) + '\n');
    m_exitCode = shown ? kFailed : kWrongUse;
    m_pMainWnd->DestroyWindow();
    return false;
}

void SampleApp::RunUnattended(const StartOptions& options)
{
    PumpPending();
    m_pMainWnd->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0);
    PumpPending();
    m_pMainWnd->UpdateWindow();
    if (!options.snapshotFile.empty() && !SaveSnapshot(*m_pMainWnd, options.snapshotFile.c_str()))
    {
        Print(STD_ERROR_HANDLE, "VornSample: cannot write " + options.snapshotFile + '\n');
        m_exitCode = kFailed;
    }
    if (!options.shotsFolder.empty())
        TakeShots(options.shotsFolder);
    if (options.summary)
    {
        const PageView& view = *static_cast<MainFrame*>(m_pMainWnd)->View();
        Print(STD_OUTPUT_HANDLE, view.Pages()[view.CurrentPage()]->Summary());
    }
    m_pMainWnd->DestroyWindow();
}

void SampleApp::TakeShots(const std::string& folder)
{
    auto& frame = *static_cast<MainFrame*>(m_pMainWnd);
    vorn::planner::ShotRun run(frame, frame.Planner().Data(), folder);
    const bool written = run.TakeAll(
        [&frame](vorn::planner::ShotRun& more)
        {
            TakeSampleShots(frame, more);
        });
    for (const std::string& fault : run.Faults())
        Print(STD_OUTPUT_HANDLE, fault + '\n');
    if (!written)
        Print(STD_ERROR_HANDLE, "VornSample: cannot write all pictures into " + folder + '\n');
    Print(STD_OUTPUT_HANDLE, std::to_string(run.Pictures()) + " pictures, " + std::to_string(run.Faults().size()) +
                                 (run.Faults().size() == 1 ? " fault\n" : " faults\n"));
    if (!written || !run.Faults().empty())
        m_exitCode = kFailed;
}

int SampleApp::ExitInstance()
{
    const int code = CWinApp::ExitInstance();
    LogNote(LOG_INFO, "VornSample ended");
    FreeSingletons();
    return m_exitCode != 0 || m_unattended ? m_exitCode : code;
}
