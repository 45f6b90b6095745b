#pragma once

#include <VornCommon.h>

#include "apps/planner/LegBar.h"
#include "apps/sample/PlannerCommands.h"
#include "apps/sample/preferences/Category.h"

class PageView;

/// The sample's main window: menu, status bar, and the view with the pages.
class MainFrame : public CFrameWnd
{
public:
    /// The view, or null before the frame is created.
    PageView* View() const;

    PlannerCommands& Planner();

    vorn::planner::LegBar& Legs();

    /// What the preferences dialog asks of this window.
    vorn::preferences::Context PreferencesContext();

    /// Brings the page to the front that a user has left the window with.
    void ShowKeptPage();

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    BOOL OnCreateClient(LPCREATESTRUCT create, CCreateContext* context) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnClose();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnViewRefresh();
    afx_msg void OnSavePicture();
    afx_msg void OnAbout();
    afx_msg void OnPreferences();
    afx_msg void OnLog();
    afx_msg void OnPage(UINT command);
    afx_msg void OnUpdatePage(CCmdUI* item);
    afx_msg void OnPlanner(UINT command);
    afx_msg void OnUpdatePlanner(CCmdUI* item);
    afx_msg void OnUnit(UINT command);
    afx_msg void OnUpdateUnit(CCmdUI* item);
    afx_msg void OnUpdateUnitsIndicator(CCmdUI* item);
    DECLARE_MESSAGE_MAP()

private:
    bool FillMenus();
    bool CreateStatusBar();
    bool CreateLegBar();
    void TakePreferences();
    void KeepPage() const;

    CStatusBar m_statusBar;
    PageView* m_view = nullptr; // destroyed by the window itself
    PlannerCommands m_planner{*this};
    vorn::planner::LegBar m_legs{m_planner.Plan()};
};
