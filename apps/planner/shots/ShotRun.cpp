#include "apps/planner/shots/ShotRun.h"

#include "apps/planner/FlightLog.h"
#include "apps/planner/FuelDialog.h"
#include "apps/planner/GotoDialog.h"
#include "apps/planner/HostIcon.h"
#include "apps/planner/LegBar.h"
#include "apps/planner/LinksDialog.h"
#include "apps/planner/NewFlightWizard.h"
#include "apps/planner/PositionTip.h"
#include "apps/planner/PreferencesSheet.h"
#include "apps/planner/PrintDialog.h"
#include "apps/planner/RouteDialog.h"
#include "apps/planner/Warning.h"
#include "apps/planner/WeightDialog.h"
#include "apps/planner/resource.h"
#include "apps/planner/shots/Picture.h"
#include "apps/planner/shots/TipFacts.h"
#include "apps/planner/shots/WindowFacts.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vorn::planner
{

namespace
{

constexpr UINT kLookMs = 20;
constexpr double kLarge = 1.6;

ShotRun* g_run = nullptr; // of the timer below

void PumpWaiting()
{
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
    {
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
}

void PaintAll(HWND window)
{
    PumpWaiting();
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    PumpWaiting();
    GdiFlush();
}

void Resize(HWND window, int width, int height)
{
    SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// As far as the screen allows: what lies beyond it is on no picture.
void Enlarge(HWND window, int width, int height)
{
    RECT screen{};
    SystemParametersInfo(SPI_GETWORKAREA, 0, &screen, 0);
    SetWindowPos(window, nullptr, screen.left, screen.top, std::min<int>(width, screen.right - screen.left),
                 std::min<int>(height, screen.bottom - screen.top), SWP_NOZORDER | SWP_NOACTIVATE);
}

/// Lets a tip come, which takes half a second.
bool WaitFor(CWnd& tip)
{
    constexpr DWORD kPatienceMs = 5000;
    const DWORD begin = GetTickCount();
    while (!tip.IsWindowVisible() && GetTickCount() - begin < kPatienceMs)
    {
        PumpWaiting();
        MsgWaitForMultipleObjects(0, nullptr, FALSE, kLookMs, QS_ALLINPUT);
    }
    if (tip.IsWindowVisible())
        PaintAll(tip);
    return tip.IsWindowVisible() != FALSE;
}

BOOL CALLBACK CompareTip(HWND window, LPARAM parameter)
{
    HWND& found = *reinterpret_cast<HWND*>(parameter);
    std::array<char, 32> name{};
    GetClassName(window, name.data(), static_cast<int>(name.size()));
    if (lstrcmpi(name.data(), TOOLTIPS_CLASSA) == 0 && IsWindowVisible(window))
        found = window;
    return found == nullptr;
}

/// The system's tip that stands beside a window now.
HWND TipOf(HWND owner)
{
    PaintAll(owner);
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), CompareTip, reinterpret_cast<LPARAM>(&found));
    if (found == nullptr)
        return owner;
    PaintAll(found);
    return found;
}

std::string PrefixOfScreen()
{
    const HDC screen = GetDC(nullptr);
    const std::string dots = std::to_string(GetDeviceCaps(screen, LOGPIXELSY));
    ReleaseDC(nullptr, screen);
    return std::string(dots.size() < 3 ? 3 - dots.size() : 0, '0') + dots + '-';
}

} // namespace

ShotRun::ShotRun(CWnd& frame, PlannerData& data, std::string folder)
    : m_frame(frame), m_data(data), m_folder(std::move(folder)), m_prefix(PrefixOfScreen())
{
    CreateDirectory(m_folder.c_str(), nullptr);
}

const std::vector<std::string>& ShotRun::Faults() const
{
    return m_faults;
}

int ShotRun::Pictures() const
{
    return m_pictures;
}

bool ShotRun::TakeAll(const Scene& more)
{
    g_run = this;
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN), 0); // where nothing lights up below it
    TakeDialogs();
    TakeSheets();
    TakeFlightLog();
    TakeLegBar();
    TakeTips();
    if (more)
        more(*this);
    g_run = nullptr;
    return !m_failed && WriteContactSheet(m_folder);
}

void ShotRun::TakeDialogs()
{
    const auto takeSizes = [this](const char* name)
    {
        return [this, name](HWND window)
        {
            Sizes(window, name);
        };
    };
    const auto run = [](auto&& dialog)
    {
        dialog.DoModal();
    };
    Open(
        [&]
        {
            run(RouteDialog(m_data, &m_frame));
        },
        [this](HWND window)
        {
            Sizes(window, "route");
            TabCtrl_SetCurFocus(::GetDlgItem(window, IDC_ROUTE_TAB), 1);
            Sizes(window, "route-avoid");
        });
    Open(
        [&]
        {
            run(WeightDialog(m_data, &m_frame));
        },
        takeSizes("weight"));
    Open(
        [&]
        {
            run(FuelDialog(m_data, &m_frame));
        },
        takeSizes("fuel"));
    Open(
        [&]
        {
            run(PrintDialog(m_data, &m_frame));
        },
        takeSizes("print"));
    Open(
        [&]
        {
            run(GotoDialog(m_data, &m_frame));
        },
        takeSizes("goto"));
    Open(
        [&]
        {
            run(LinksDialog(m_data, &m_frame));
        },
        takeSizes("links"));
    Open(
        [&]
        {
            ShowWarning(&m_frame);
        },
        [this](HWND window)
        {
            PaintAll(window);
            Shot({window}, "warning", true);
        });
}

/// Each page at each size, one page after the other.
void ShotRun::TakePages(HWND sheet, const std::vector<std::string>& names)
{
    for (std::size_t page = 0; page < names.size(); ++page)
    {
        ::SendMessage(sheet, PSM_SETCURSEL, page, 0);
        Sizes(sheet, names[page]);
    }
}

void ShotRun::TakeSheets()
{
    Open(
        [this]
        {
            PreferencesSheet(&m_frame, nullptr).DoModal();
        },
        [this](HWND sheet)
        {
            TakePages(sheet, {"preferences-1-general", "preferences-2-units", "preferences-3-chart"});
        });
    Open(
        [this]
        {
            NewFlightWizard(m_data, &m_frame).Run();
        },
        [this](HWND sheet)
        {
            TakePages(sheet, {"new-flight-1-route", "new-flight-2-aircraft", "new-flight-3-summary"});
        });
}

void ShotRun::TakeFlightLog()
{
    auto* const log = new FlightLogFrame(m_data); // deletes itself with its window
    if (!log->Open(m_frame))
    {
        m_failed = true;
        return;
    }
    log->ShowWindow(SW_SHOW);
    Sizes(*log, "log");
    log->DestroyWindow();
}

/// Docked in a frame of its own at each side, and floating.
void ShotRun::TakeLegBar()
{
    auto* const frame = new CFrameWnd; // deletes itself with its window
    if (!frame->Create(nullptr, "Legs", WS_OVERLAPPEDWINDOW, CRect(100, 80, 760, 560), &m_frame))
    {
        m_failed = true;
        return;
    }
    ShowHostIcon(*frame);
    frame->EnableDocking(CBRS_ALIGN_ANY);
    LegBar bar(m_data);
    if (bar.Open(*frame, ID_PLANNER_LEG_BAR))
    {
        frame->ShowWindow(SW_SHOW);
        const std::array<std::pair<UINT, const char*>, 3> sides = {{{AFX_IDW_DOCKBAR_RIGHT, "legs-1-right"},
                                                                    {AFX_IDW_DOCKBAR_LEFT, "legs-2-left"},
                                                                    {AFX_IDW_DOCKBAR_BOTTOM, "legs-3-bottom"}}};
        for (const auto& [side, name] : sides)
        {
            frame->DockControlBar(&bar, side);
            frame->RecalcLayout();
            PaintAll(*frame);
            Shot({frame->m_hWnd}, name, true);
        }
        frame->FloatControlBar(&bar, CPoint(300, 200));
        const HWND floating = ::GetAncestor(bar, GA_ROOT);
        PaintAll(*frame);
        PaintAll(floating);
        Shot({floating}, "legs-4-floating", true);
    }
    else
    {
        m_failed = true;
    }
    bar.DestroyWindow();
    frame->DestroyWindow();
}

/// Beside what they explain: the helper's tip and its info box, the refusal, the position.
void ShotRun::TakeTips()
{
    Open(
        [this]
        {
            FuelDialog(m_data, &m_frame).DoModal();
        },
        [this](HWND window)
        {
            auto& dialog = *static_cast<FuelDialog*>(CWnd::FromHandlePermanent(window));
            ToolTipCtrlEx& tip = dialog.GetToolTipCtrl();
            if (!ShotTip(window, ::GetDlgItem(window, IDC_FUEL_CONTINGENCY), tip, "tip-1-short", true))
                return;
            tip.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
            PaintAll(window);
            PaintAll(tip);
            Shot({window, tip.m_hWnd}, "tip-2-info-box", true);
            tip.Pop();
            SetCursorPos(GetSystemMetrics(SM_CXSCREEN), 0);
        });
    Open(
        [this]
        {
            GotoDialog(m_data, &m_frame).DoModal();
        },
        [this](HWND window)
        {
            ::SetDlgItemText(window, IDC_GOTO_LATITUDE, "47 65 N");
            ::SendMessage(window, WM_COMMAND, IDOK, 0);
            Shot({window, TipOf(window)}, "tip-3-refusal", true);
        });
    if (m_data.showOnChart)
        m_data.showOnChart(LatLon(47.449, -122.309)); // brings the chart to the front
    PositionTip position;
    CRect place;
    m_frame.GetWindowRect(&place);
    position.Show(m_frame, (LatToString(47.449) + "  " + LonToString(-122.309)).GetString(), place.CenterPoint());
    PaintAll(m_frame);
    PaintAll(position.Window());
    Shot({m_frame.m_hWnd, position.Window()}, "tip-4-position", false);
    position.Hide(m_frame);
}

void ShotRun::Open(const std::function<void()>& open, const Look& look)
{
    m_look = look;
    m_seen = false;
    SetTimer(nullptr, 0, kLookMs, OnTimer);
    open();
    if (!m_seen)
        m_failed = true;
}

void CALLBACK ShotRun::OnTimer(HWND, UINT, UINT_PTR timer, DWORD)
{
    const HWND window = GetLastActivePopup(g_run->m_frame);
    if (window == g_run->m_frame.m_hWnd || !::IsWindowVisible(window))
        return;
    KillTimer(nullptr, timer);
    g_run->m_seen = true;
    g_run->m_look(window);
    ::PostMessage(window, WM_COMMAND, IDCANCEL, 0);
}

bool ShotRun::ShotTip(HWND window, HWND control, ToolTipCtrlEx& tip, const std::string& name, bool isChecked)
{
    CRect place;
    ::GetWindowRect(control, &place);
    MSG move{};
    move.hwnd = control;
    move.message = WM_MOUSEMOVE;
    move.pt = place.CenterPoint();
    SetCursorPos(move.pt.x, move.pt.y);
    tip.RelayEvent(&move);
    if (!WaitFor(tip))
    {
        m_failed = true;
        return false;
    }
    Shot({window, tip.m_hWnd}, name, isChecked);
    if (!IsWholeOnScreen(tip))
        m_faults.push_back(m_prefix + name + ": the tip lies partly beyond the screen");
    return true;
}

void ShotRun::Sizes(HWND window, const std::string& name)
{
    CRect first;
    ::GetWindowRect(window, &first);
    PaintAll(window);
    Shot({window}, name + "-2-first", true);
    Resize(window, 1, 1);
    PaintAll(window);
    Shot({window}, name + "-1-small", true);
    Enlarge(window, static_cast<int>(first.Width() * kLarge), static_cast<int>(first.Height() * kLarge));
    PaintAll(window);
    Shot({window}, name + "-3-large", true);
    ::SetWindowPos(window, nullptr, first.left, first.top, first.Width(), first.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

void ShotRun::Shot(const std::vector<HWND>& windows, const std::string& name, bool isChecked)
{
    for (const HWND window : windows)
        PaintAll(window);
    const std::string full = m_prefix + name;
    if (isChecked)
    {
        for (const std::string& fault : FaultsOf(FactsOf(windows.front())))
            m_faults.push_back(full + ": " + fault);
        for (const std::string& fault : UnexplainedControls(windows.front()))
            m_faults.push_back(full + ": " + fault);
        if (!IsWholeOnScreen(windows.front()))
            m_faults.push_back(full + ": the window lies partly beyond the screen");
    }
    DIB picture;
    if (!TakePicture(windows, picture) || !picture.WritePNG((m_folder + '\\' + full + ".png").c_str()))
        m_failed = true;
    ++m_pictures;
}

} // namespace vorn::planner
