#pragma once

#include "framework/core/CString.h"
#include "framework/dialog/CPropertyPage.h"
#include "framework/dialog/SheetIds.h"
#include "framework/dialog/SheetTemplate.h"
#include "framework/window/CWnd.h"

#include <prsht.h>

#include <vector>

class CTabCtrl;

namespace vorn
{
class ModalOwner;
}

/// A property sheet (pages behind tabs) or a wizard (pages one after the other), modal (DoModal) or modeless (Create).
///
/// A modal sheet runs a message loop of its own, as a dialog does: messages pass through PreTranslateMessage of the
/// window they are for and of its parents, and the owner is disabled meanwhile. Pages are added before the sheet is
/// opened, or later; they stay their maker's.
class HOSTFRAMEWORK_API CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)

public:
    /// The system's record of the sheet. Its flags may be completed before the sheet is opened: PSH_HASHELP,
    /// PSH_NOAPPLYNOW, PSH_WIZARDHASFINISH, a callback (PSH_USECALLBACK), ...
    PROPSHEETHEADER m_psh{};

    /// Followed by Construct().
    CPropertySheet();
    /// @param parent owner of a modal sheet; the application's main window when null
    /// @param selectPage index of the page shown first
    explicit CPropertySheet(UINT captionId, CWnd* parent = nullptr, UINT selectPage = 0);
    explicit CPropertySheet(LPCTSTR caption, CWnd* parent = nullptr, UINT selectPage = 0);
    /// With the bitmaps of newer wizards, which stay the caller's.
    CPropertySheet(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark,
                   HPALETTE watermarkPalette = nullptr, HBITMAP header = nullptr);
    CPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark,
                   HPALETTE watermarkPalette = nullptr, HBITMAP header = nullptr);
    ~CPropertySheet() override;

    void Construct(UINT captionId, CWnd* parent = nullptr, UINT selectPage = 0);
    void Construct(LPCTSTR caption, CWnd* parent = nullptr, UINT selectPage = 0);
    void Construct(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark,
                   HPALETTE watermarkPalette = nullptr, HBITMAP header = nullptr);
    void Construct(LPCTSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark,
                   HPALETTE watermarkPalette = nullptr, HBITMAP header = nullptr);

    /// @name Pages
    /// @{
    int GetPageCount() const;
    /// Null for an index outside the pages.
    CPropertyPage* GetPage(int index) const;
    /// -1 for a page of another sheet.
    int GetPageIndex(const CPropertyPage* page) const;
    int GetActiveIndex() const;
    CPropertyPage* GetActivePage() const;
    /// Before the sheet is opened: chooses the page shown first. @return FALSE when the page is not shown
    BOOL SetActivePage(int index);
    BOOL SetActivePage(CPropertyPage* page);
    /// Appends a page, taking it out of the sheet it was in. Null, a page that is in this sheet already and a page
    /// that is shown elsewhere are ignored.
    void AddPage(CPropertyPage* page);
    /// Takes a page out; its window goes.
    void RemovePage(int index);
    void RemovePage(CPropertyPage* page);
    /// @}

    /// @name Modes, set before the sheet is opened
    /// @{
    /// DoModal then returns ID_WIZFINISH or IDCANCEL.
    void SetWizardMode();
    /// Tabs in several rows (as they are at first) or in one that is scrolled.
    void EnableStackedTabs(BOOL stacked);
    BOOL IsWizard() const;
    BOOL IsModeless() const;
    /// @}

    /// @name While the sheet is open
    /// @{
    /// @param style PSH_PROPTITLE: with the system's words around it
    void SetTitle(LPCTSTR text, UINT style = 0);
    CTabCtrl* GetTabControl() const;
    /// Chooses among a wizard's buttons: PSWIZB_ bits. Done when the messages that wait are handled, so that it may be
    /// called in OnSetActive.
    void SetWizardButtons(DWORD flags);
    /// Shows Finish, enabled, with this text, and neither Back nor Next.
    void SetFinishText(LPCTSTR text);
    /// @param button a PSBTN_ number
    BOOL PressButton(int button);
    /// Ends the sheet: DoModal returns `result`; a modeless sheet is destroyed.
    void EndDialog(int result);
    void MapDialogRect(LPRECT rect) const;
    /// @}

    /// Runs the sheet. @return IDOK, IDCANCEL, ID_WIZFINISH or what EndDialog was given; -1 when it could not be
    /// created, a page's template is missing, or the program is told to quit
    virtual INT_PTR DoModal();
    /// Opens the sheet without its buttons (a wizard keeps them), and lower by them. It is destroyed by DestroyWindow,
    /// or when the user closes it.
    /// @param parent null: none
    /// @param style -1: that of a modal sheet, visible
    virtual BOOL Create(CWnd* parent = nullptr, DWORD style = static_cast<DWORD>(-1), DWORD exStyle = 0);

    /// The sheet, its tabs and its first page exist. @return TRUE to have the focus set to the first control
    virtual BOOL OnInitDialog();

    BOOL PreTranslateMessage(MSG* message) override;
    /// Offers commands (ids 0x8000 to 0xEFFF) that the sheet does not handle to its owner and to the application.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;

protected:
    /// Writes the pages' records into m_psh, their templates being loaded.
    virtual void BuildPropPageArray();
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    CWnd* m_pParentWnd = nullptr;
    BOOL m_bModeless =
        FALSE; ///< opened by Create; a derived OnInitDialog that clears it for the base's keeps the buttons
    BOOL m_bStacked = TRUE;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnKickIdle(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSysCommand(UINT id, LPARAM lParam);
    afx_msg void OnClose();
    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()

private:
    friend class CPropertyPage;

    static int CALLBACK SheetCallback(HWND window, UINT message, LPARAM lParam);

    void TakeBitmaps(HBITMAP watermark, HPALETTE watermarkPalette, HBITMAP header);
    void ForgetPage(const CPropertyPage* page);
    bool AddToWindow(CPropertyPage& page);
    void DropPage(int index);
    HWND CurrentPageWindow() const;
    bool PreparePages();
    bool CreateFrom(HWND owner);
    int RunModal(vorn::ModalOwner& owner);
    void RemoveButtons();
    bool IsIdleEscape(const MSG& message) const;

    CString m_caption;
    std::vector<CPropertyPage*> m_pages;
    std::vector<PROPSHEETPAGE> m_records;
    vorn::SheetStyles m_styles;
    vorn::ModalOwner* m_modalOwner = nullptr; ///< while DoModal runs
    int m_modalResult = -1;                   ///< what EndDialog was given
    bool m_ended = false;                     ///< EndDialog was called since the creation began
    bool m_creating = false;
};
