#include "apps/sample/LifeRun.h"

#include "apps/planner/resource.h"
#include "apps/sample/BareWindows.h"
#include "apps/sample/MainFrame.h"
#include "apps/sample/PageView.h"
#include "apps/sample/StartupDialog.h"
#include "apps/sample/preferences/resource.h"
#include "apps/sample/resource.h"

#include <array>
#include <utility>

namespace
{

constexpr UINT kLookMs = 15;

/// Commands that open dialogs, and end when these are closed. The planner's warning comes before the first of its own.
constexpr std::array<UINT, 14> kDialogs = {
    ID_PLANNER_NEW,  ID_PLANNER_ROUTE,  ID_PLANNER_WEIGHT,      ID_PLANNER_FUEL,    ID_PLANNER_PRINT,
    ID_PLANNER_GOTO, ID_PLANNER_LINKS,  ID_PLANNER_PREFERENCES, ID_PLANNER_WARNING, ID_APP_ABOUT,
    ID_TABLE_EDIT,   ID_PICTURE_RESIZE, ID_VIEW_PREFERENCES,    ID_VIEW_LOG,
};

LifeRun* g_run = nullptr; // of the timer, whose function gets no other hint

void Dispatch()
{
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
    {
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
}

void ShowAllPages(CPropertySheet& sheet)
{
    for (int page = 0; page < sheet.GetPageCount(); ++page)
    {
        sheet.SetActivePage(page);
        Dispatch();
    }
}

void ShowAllCategories(CTreeCtrl& tree)
{
    for (HTREEITEM item = tree.GetRootItem(); item != nullptr; item = tree.GetNextItem(item, TVGN_NEXTVISIBLE))
    {
        tree.SelectItem(item);
        Dispatch();
    }
}

} // namespace

LifeRun::LifeRun(BareWindows& windows) : m_windows(windows), m_timer(SetTimer(nullptr, 0, kLookMs, OnTimer))
{
    g_run = this;
}

LifeRun::~LifeRun()
{
    KillTimer(nullptr, m_timer);
    g_run = nullptr;
}

void LifeRun::Settle()
{
    Dispatch();
    for (LONG turn = 0; AfxGetThread()->OnIdle(turn); ++turn)
        continue;
}

int LifeRun::Dialogs() const
{
    return m_dialogs;
}

bool LifeRun::ShowStartup()
{
    StartupDialog dialog(Currency::Mixed);
    dialog.RunUnattended(true, "");
    ++m_dialogs;
    return dialog.DoModal() != -1;
}

void LifeRun::OpenEverything(MainFrame& frame)
{
    m_frame = &frame;
    m_explored = nullptr;
    PageView& view = *frame.View();
    for (std::size_t page = 0; page < view.Pages().size(); ++page)
    {
        view.ShowPage(page);
        Settle();
    }
    for (const UINT command : kDialogs)
    {
        frame.SendMessage(WM_COMMAND, command);
        Settle();
    }
    frame.SendMessage(WM_COMMAND, ID_PLANNER_LEG_BAR);
    Settle();
    frame.FloatControlBar(&frame.Legs(), CPoint(200, 200));
    Settle();
    frame.SendMessage(WM_COMMAND, ID_PLANNER_LOG);
    Settle();
    m_windows.NoteFonts();
    m_frame = nullptr;
}

void CALLBACK LifeRun::OnTimer(HWND, UINT, UINT_PTR, DWORD)
{
    if (g_run == nullptr || g_run->m_exploring)
        return;
    if (g_run->m_frame != nullptr)
        g_run->LookAtDialog();
    else
        g_run->m_windows.NoteFonts(); // of the startup dialog, which closes itself
}

/// A timer's message comes after all that is to be painted. The dialog in front is shown whole, then closed.
void LifeRun::LookAtDialog()
{
    const HWND window = GetLastActivePopup(*m_frame);
    if (window == m_frame->m_hWnd || !IsWindowVisible(window) || !IsWindowEnabled(window) || Explore(window))
        return;
    ++m_dialogs;
    m_windows.NoteFonts();
    SendMessage(window, WM_COMMAND, IDCANCEL, 0); // it ends with its loop, which goes on behind this timer
}

/// Shows all of a dialog that has more than one page. True when another dialog comes up over it, which happens once.
bool LifeRun::Explore(HWND window)
{
    m_exploring = true;
    CWnd* const dialog = CWnd::FromHandlePermanent(window);
    if (auto* const sheet = dynamic_cast<CPropertySheet*>(dialog))
        ShowAllPages(*sheet);
    auto* const options = dynamic_cast<BaseOptionTreeDlg*>(dialog);
    const bool isNew = options != nullptr && std::exchange(m_explored, window) != window;
    if (isNew)
    {
        ShowAllCategories(options->GetOptionTree());
        const CWnd* const button = options->GetDlgItem(IDC_OPT_PROXIES);
        options->PostMessage(WM_COMMAND, IDC_OPT_PROXIES, reinterpret_cast<LPARAM>(button->GetSafeHwnd()));
    }
    m_exploring = false;
    return isNew;
}
