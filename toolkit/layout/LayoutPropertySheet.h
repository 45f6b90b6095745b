#pragma once

/// @file
/// A property sheet or wizard that the user can size.
#include "framework/dialog/CPropertySheet.h"
#include "toolkit/WindowIcons.h"
#include "toolkit/layout/LayoutMgr.h"

namespace LayoutManagement
{

/// A sheet whose pages grow and shrink with it above its row of buttons; pages of class LayoutPropertyPage lay their
/// controls out in the area they get, others keep them where they are. Sheets cannot be made smaller than they open, so
/// that no page is cut, and keep their placement. They have the application's icon, unless m_psh names another one.
///
/// It works for property sheets and for wizards (SetWizardMode() or the flags of m_psh), modal and modeless.
class VORNCOMMON_API LayoutPropertySheet : public CPropertySheet, protected LayoutMgr
{
    DECLARE_DYNAMIC(LayoutPropertySheet)

public:
    /// @param selectPage index of the page shown first
    /// @param section of the application's profile, where the placement is kept; null or empty for nowhere
    /// @param bRepositionBars the sheet has control bars, to be put in their places at every size
    LayoutPropertySheet(UINT nIDCaption, CWnd* parent, UINT selectPage, LPCSTR section, bool bRepositionBars = false);
    LayoutPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectPage, LPCSTR section, bool bRepositionBars = false);
    ~LayoutPropertySheet() override;

    /// What the constructors do with their last arguments. Takes back what the three choices below said.
    void Init(LPCSTR section, bool bRepositionBars);
    /// A modeless sheet keeps the standard buttons.
    void ModelessWithButtons(bool bButtons = true);
    /// A modeless sheet, made with new, is deleted when its window is gone. Ignored for modal ones.
    void SetAutoDestroy(bool bDestroy = true);
    /// The pages, made with new, are deleted when the sheet's window is gone.
    void SetAutoDestroyPages(bool bDestroy = true);

    BOOL OnInitDialog() override;
    /// Fills the row of buttons: here with those that the system's sheet has and that its flags name.
    virtual void AddButtons(CPane buttonPane);
    /// Called when the pages' area and the buttons stand in the root. Adds nothing here.
    virtual void AddMainArea(CPane root);
    /// Lays the sheet and its page out for a new client size; 0 by 0 is that of a minimised sheet.
    virtual void Resize(int cx, int cy);
    /// The client rectangle.
    CRect GetRect() override;

protected:
    /// Resource id of the icon, 128 here; it is looked for in the host first. Without such an icon nothing changes.
    virtual UINT GetIconID();
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnDestroy();

    CString m_strSection;
    CRect m_rectOpened{0, 0, 0, 0}; ///< the window's before the layout took over
    bool m_bRepositionBars = false;
    bool m_bModelessWithButtons = false;
    bool m_bAutoDestroy = false;
    bool m_bAutoDestroyPages = false;

    DECLARE_MESSAGE_MAP()

private:
    friend class LayoutPropertyPage;

    void InitBase();
    void DeclarePanes();
    void Open();
    bool HasFlag(DWORD flags) const;
    bool IsLayoutWizard() const;
    bool FinishLiesOnNext() const;
    bool IsLeftOut(UINT button) const;
    CPaneBase ItemOfTabs();
    CPaneBase ItemOfButton(UINT button);
    /// Where pages stand. @return false while the sheet is not laid out
    bool GetPageArea(CRect& area);
    void PlaceActivePage();
    void PlaceNewPage();
    void MoveFinishOntoNext();
    void DeletePages();

    vorn::WindowIcons m_icons;
    HWND m_hWndPlaced = nullptr; ///< the page that PlaceActivePage() placed last
};

} // namespace LayoutManagement
