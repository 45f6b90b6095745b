#pragma once

#include "framework/dialog/CDialog.h"

#include <prsht.h>

#include <memory>

class CPropertySheet;

/// One page of a property sheet or wizard: a dialog without buttons of its own, made from a template of the resource
/// chain when it is first shown, and bound to its window before the window's first message. The page lives longer than
/// its sheet's window; who made it deletes it.
///
/// The sheet calls a page when the user goes to it (OnSetActive), leaves it (OnKillActive), accepts (OnKillActive of
/// the shown page, then OnApply of every page that was shown) or cancels (OnQueryCancel, then OnReset).
class HOSTFRAMEWORK_API CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)

public:
    /// The system's record of the page, to be completed before the page is added: a title text (pszTitle with
    /// PSP_USETITLE), an icon, PSP_HASHELP, a template in memory (pResource with PSP_DLGINDIRECT). Procedure, callback
    /// and lParam are the framework's.
    PROPSHEETPAGE m_psp{};

    /// Followed by Construct().
    CPropertyPage();
    /// @param captionId text for the page's tab, in place of the template's title; 0 for that one
    /// @param size bytes of the system's record that the caller knows
    explicit CPropertyPage(UINT templateId, UINT captionId = 0, DWORD size = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR templateName, UINT captionId = 0, DWORD size = sizeof(PROPSHEETPAGE));
    /// With a title and a line below it in the header of newer wizards.
    CPropertyPage(UINT templateId, UINT captionId, UINT headerTitleId, UINT headerSubTitleId = 0,
                  DWORD size = sizeof(PROPSHEETPAGE));
    CPropertyPage(LPCTSTR templateName, UINT captionId, UINT headerTitleId, UINT headerSubTitleId = 0,
                  DWORD size = sizeof(PROPSHEETPAGE));
    ~CPropertyPage() override;

    void Construct(UINT templateId, UINT captionId = 0);
    void Construct(LPCTSTR templateName, UINT captionId = 0);
    void Construct(UINT templateId, UINT captionId, UINT headerTitleId, UINT headerSubTitleId = 0);
    void Construct(LPCTSTR templateName, UINT captionId, UINT headerTitleId, UINT headerSubTitleId = 0);

    /// The sheet that the page was added to, or null.
    CPropertySheet* GetParentSheet() const;

    /// Tells the sheet whether the page holds changes: its Apply button is enabled while one page does.
    void SetModified(BOOL changed = TRUE);
    /// After a change that cannot be taken back: the sheet's OK becomes Close, Cancel is disabled.
    void CancelToClose();
    /// Sends PSM_QUERYSIBLINGS with these parameters to the pages that have a window, in order, until one answers.
    /// @return its answer, else 0
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);
    /// Ends the sheet.
    void EndDialog(int result);

    /// The page is about to be shown. FALSE: it is not, and the sheet goes on to the next one.
    virtual BOOL OnSetActive();
    /// The page is about to be left, or its sheet to be accepted. FALSE: it stays. Exchanges data here.
    virtual BOOL OnKillActive();
    /// OK or Apply. FALSE: changes are not accepted and the sheet stays open. Calls OnOK here.
    virtual BOOL OnApply();
    /// The sheet was cancelled. Calls OnCancel here.
    virtual void OnReset();
    /// Changes are accepted: the page has no more of them.
    void OnOK() override;
    /// Changes are dropped. Does nothing here.
    void OnCancel() override;
    /// Cancel was pressed. FALSE: the sheet stays open.
    virtual BOOL OnQueryCancel();
    /// @name A wizard's buttons. 0: to the page before or after; -1: the page stays; else the id of the template of the
    /// page to go to.
    /// @{
    virtual LRESULT OnWizardBack();
    virtual LRESULT OnWizardNext();
    /// @}
    /// Finish was pressed. FALSE: the wizard stays open. Exchanges data here.
    virtual BOOL OnWizardFinish();

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    friend class CPropertySheet;

    void LoadHeader(UINT titleId, UINT subTitleId);
    bool AnswerSheet(UINT code, LRESULT& answer);
    /// @name For the sheet
    /// @{
    bool LoadTemplate();
    /// What the system is told, once the template is loaded.
    PROPSHEETPAGE SystemRecord();
    /// @}

    CString m_caption;
    CString m_headerTitle;
    CString m_headerSubTitle;
    std::unique_ptr<vorn::LoadedDialogTemplate>
        m_loaded; ///< where it was found, and its bytes, which the system changes
    CPropertySheet* m_sheet = nullptr;
};
