#include "apps/sample/MainFrame.h"

#include "apps/planner/resource.h"
#include "apps/sample/AboutDialog.h"
#include "apps/sample/PageView.h"
#include "apps/sample/ProjectionsMenu.h"
#include "apps/sample/Snapshot.h"
#include "apps/sample/UnitsMenu.h"
#include "apps/sample/model/Usage.h"
#include "apps/sample/preferences/PreferencesDialog.h"
#include "apps/sample/resource.h"

#include <array>

namespace
{

constexpr int kViewMenu = 1; // places in the menu bar of IDR_MAINFRAME
constexpr int kChartMenu = 3;
constexpr int kUnitsMenu = 6;
constexpr SIZE kSmallest = {560, 420};    // pixels at 96 dpi
constexpr const char* kWindow = "Window"; // settings: section and key
constexpr const char* kPage = "Page";

} // namespace

BEGIN_MESSAGE_MAP(MainFrame, CFrameWnd)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_WM_GETMINMAXINFO()
ON_COMMAND(ID_VIEW_REFRESH, &MainFrame::OnViewRefresh)
ON_COMMAND(ID_FILE_SAVE_PICTURE, &MainFrame::OnSavePicture)
ON_COMMAND(ID_APP_ABOUT, &MainFrame::OnAbout)
ON_COMMAND(ID_VIEW_PREFERENCES, &MainFrame::OnPreferences)
ON_COMMAND(ID_VIEW_LOG, &MainFrame::OnLog)
ON_COMMAND_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &MainFrame::OnPage)
ON_UPDATE_COMMAND_UI_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &MainFrame::OnUpdatePage)
ON_COMMAND_RANGE(ID_PLANNER_FIRST, ID_PLANNER_LAST, &MainFrame::OnPlanner)
ON_UPDATE_COMMAND_UI_RANGE(ID_PLANNER_FIRST, ID_PLANNER_LAST, &MainFrame::OnUpdatePlanner)
ON_COMMAND_RANGE(ID_UNIT_FIRST, ID_UNIT_LAST, &MainFrame::OnUnit)
ON_UPDATE_COMMAND_UI_RANGE(ID_UNIT_FIRST, ID_UNIT_LAST, &MainFrame::OnUpdateUnit)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_UNITS, &MainFrame::OnUpdateUnitsIndicator)
END_MESSAGE_MAP()

PageView* MainFrame::View() const
{
    return m_view;
}

PlannerCommands& MainFrame::Planner()
{
    return m_planner;
}

vorn::planner::LegBar& MainFrame::Legs()
{
    return m_legs;
}

/// Hidden until it is asked for; the bars' state brings it back where it was.
bool MainFrame::CreateLegBar()
{
    EnableDocking(CBRS_ALIGN_ANY);
    if (!m_legs.Open(*this, ID_PLANNER_LEG_BAR))
        return false;
    DockControlBar(&m_legs, AFX_IDW_DOCKBAR_RIGHT);
    ShowControlBar(&m_legs, FALSE, FALSE);
    return true;
}

BOOL MainFrame::PreCreateWindow(CREATESTRUCT& create)
{
    create.cx = 1180;
    create.cy = 900;
    return CFrameWnd::PreCreateWindow(create);
}

int MainFrame::OnCreate(LPCREATESTRUCT create)
{
    if (CFrameWnd::OnCreate(create) == -1 || !CreateStatusBar() || !CreateLegBar() || !FillMenus())
        return -1;
    return 0;
}

BOOL MainFrame::OnCreateClient(LPCREATESTRUCT, CCreateContext* context)
{
    auto* const view = new PageView; // the framework deletes a view with its window
    if (!view->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW, CRect(), this, AFX_IDW_PANE_FIRST, context))
        return FALSE;
    m_view = view;
    SetActiveView(view);
    return TRUE;
}

bool MainFrame::CreateStatusBar()
{
    static constexpr std::array<UINT, 2> kPanes = {ID_SEPARATOR, ID_INDICATOR_UNITS};
    return m_statusBar.Create(this) != FALSE &&
           m_statusBar.SetIndicators(kPanes.data(), static_cast<int>(kPanes.size())) != FALSE;
}

bool MainFrame::FillMenus()
{
    CMenu* const bar = GetMenu();
    CMenu* const view = bar != nullptr ? bar->GetSubMenu(kViewMenu) : nullptr;
    CMenu* const chart = bar != nullptr ? bar->GetSubMenu(kChartMenu) : nullptr;
    CMenu* const units = bar != nullptr ? bar->GetSubMenu(kUnitsMenu) : nullptr;
    if (view == nullptr || chart == nullptr || units == nullptr || !ProjectionsMenu::Fill(*chart))
        return false;
    for (std::size_t index = 0; index < m_view->Pages().size(); ++index)
    {
        CString text;
        text.Format("&%d %s\tCtrl+%d", static_cast<int>(index) + 1, m_view->Pages()[index]->Name(),
                    static_cast<int>(index) + 1);
        view->InsertMenu(static_cast<UINT>(index), MF_BYPOSITION | MF_STRING, ID_PAGE_FIRST + index, text);
    }
    units->DeleteMenu(0, MF_BYPOSITION); // the template's placeholder
    UnitsMenu::Fill(*units);
    return true;
}

void MainFrame::OnClose()
{
    if (!IsWindowEnabled())
        return; // a dialog is open, which works on what would go
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (GetWindowPlacement(&placement))
        WriteWindowPlacement("WindowPlacement", "Main", &placement);
    SaveBarState("Bars");
    KeepPage();
    CFrameWnd::OnClose();
}

void MainFrame::KeepPage() const
{
    VornCommonApp::Inst()->WriteSettingString(kWindow, kPage, m_view->Pages()[m_view->CurrentPage()]->Name());
}

void MainFrame::ShowKeptPage()
{
    const CString page = VornCommonApp::Inst()->GetSettingString(kWindow, kPage, "");
    if (!page.IsEmpty())
        m_view->ShowPage(page.GetString()); // of another release it may have another name
}

void MainFrame::OnGetMinMaxInfo(MINMAXINFO* info)
{
    CFrameWnd::OnGetMinMaxInfo(info);
    const CClientDC dc(this);
    info->ptMinTrackSize = {MulDiv(kSmallest.cx, dc.GetDeviceCaps(LOGPIXELSX), USER_DEFAULT_SCREEN_DPI),
                            MulDiv(kSmallest.cy, dc.GetDeviceCaps(LOGPIXELSY), USER_DEFAULT_SCREEN_DPI)};
}

void MainFrame::OnViewRefresh()
{
    GetConversionBoy()->ReadUnits();
    m_view->RefreshPage();
}

void MainFrame::OnSavePicture()
{
    CFileDialog dialog(FALSE, "png", "VornSample.png", OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST,
                       "Pictures (*.png)|*.png||", this);
    if (dialog.DoModal() != IDOK)
        return;
    UpdateWindow();
    if (!SaveSnapshot(*this, dialog.GetPathName()))
        AfxMessageBox("The picture could not be written.\n\nIs the folder writable, and is there room?",
                      MB_OK | MB_ICONEXCLAMATION);
}

void MainFrame::OnAbout()
{
    AboutDialog(this).DoModal();
}

void MainFrame::OnLog()
{
    VornCommonLog::Instance()->DisplayLog(LOG_FATAL, false);
}

vorn::preferences::Context MainFrame::PreferencesContext()
{
    return {[this]
            {
                TakePreferences();
            },
            [this]
            {
                return m_view->ChartCenter();
            },
            UsageText, ClearUsage};
}

void MainFrame::OnPreferences()
{
    vorn::preferences::PreferencesDialog(PreferencesContext(), this).DoModal();
}

/// All that is shown, in the page in front and in the planner's windows, is made anew.
void MainFrame::TakePreferences()
{
    m_view->RefreshPage();
    m_planner.Refresh();
}

void MainFrame::OnPage(UINT command)
{
    m_view->ShowPage(command - ID_PAGE_FIRST);
}

void MainFrame::OnUpdatePage(CCmdUI* item)
{
    item->SetRadio(m_view->CurrentPage() == item->m_nID - ID_PAGE_FIRST);
}

void MainFrame::OnPlanner(UINT command)
{
    m_planner.Run(command);
}

void MainFrame::OnUpdatePlanner(CCmdUI* item)
{
    m_planner.Update(*item);
}

void MainFrame::OnUnit(UINT command)
{
    UnitsMenu::Choose(command);
    m_view->RefreshPage();
}

void MainFrame::OnUpdateUnit(CCmdUI* item)
{
    item->SetRadio(UnitsMenu::IsChosen(item->m_nID));
}

void MainFrame::OnUpdateUnitsIndicator(CCmdUI* item)
{
    item->Enable();
    item->SetText(UnitsMenu::InForce());
}
