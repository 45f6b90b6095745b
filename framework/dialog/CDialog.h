#pragma once

#include "framework/core/CString.h"
#include "framework/window/CWnd.h"

namespace vorn
{
class LoadedDialogTemplate;
class ModalOwner;
} // namespace vorn

/// A dialog box made from a dialog template: modal (DoModal) or modeless (Create).
///
/// The template is a resource, looked up through the resource chain, or stands in memory, in either of the system's two
/// layouts. A modal dialog runs a message loop of its own: messages pass through PreTranslateMessage of the window they
/// are for and of its parents, and idle work is done; the owner is disabled meanwhile and enabled again before the
/// dialog goes. Dialogs nest.
class HOSTFRAMEWORK_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    /// For modeless dialogs, and for modal ones with InitModalIndirect.
    CDialog();
    /// A modal dialog of a resource. Without parent it is owned by the application's main window.
    explicit CDialog(LPCTSTR templateName, CWnd* parent = nullptr);
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    ~CDialog() override;

    /// @name Modeless creation. TRUE when the dialog exists; it is shown if its template is visible.
    /// @{
    virtual BOOL Create(LPCTSTR templateName, CWnd* parent = nullptr);
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    /// A template in memory; `dialogInit` holds the first contents of its lists, or is null.
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* dialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);
    /// @}

    /// @name Modal use of a template in memory, followed by DoModal. The memory stays the caller's and must live until
    /// then.
    /// @{
    BOOL InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* dialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);
    /// @}

    /// Runs the dialog. @return what EndDialog was given; -1 when the dialog could not be created (or was destroyed, or
    /// the program is told to quit, before EndDialog). The owner is then as it was before.
    virtual INT_PTR DoModal();
    /// Ends a modal dialog: DoModal returns `result`. In OnInitDialog the dialog is never shown. A modeless dialog is
    /// only hidden.
    void EndDialog(int result);

    /// Makes a button the default button.
    void SetDefID(UINT id);
    /// The default button's id in the low word and DC_HASDEFID in the high word, or 0.
    DWORD GetDefID() const;
    /// Turns dialog units into pixels.
    void MapDialogRect(LPRECT rect) const;
    /// The context-help id. First the template's.
    void SetHelpID(UINT id);

    /// First message of the dialog: fills lists from the template's data and calls UpdateData(FALSE).
    /// @return TRUE to have the focus set to the first control
    virtual BOOL OnInitDialog();
    /// Called before the controls exist, with the font they will use. Does nothing here.
    virtual void OnSetFont(CFont* font);

    BOOL PreTranslateMessage(MSG* message) override;
    /// Offers commands (ids 0x8000 to 0xEFFF) that the dialog does not handle to its owner and to the application.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;

protected:
    /// IDOK: UpdateData(TRUE), and EndDialog(IDOK) if all was good.
    virtual void OnOK();
    /// IDCANCEL, the Escape key and the close box: EndDialog(IDCANCEL).
    virtual void OnCancel();

    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = nullptr; ///< name or number of the resource
    HGLOBAL m_hDialogTemplate = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateModeless(const vorn::LoadedDialogTemplate& dialogTemplate, CWnd* parent);
    bool CreateFrom(const vorn::LoadedDialogTemplate& dialogTemplate, HWND owner);
    int RunModal(const vorn::LoadedDialogTemplate& dialogTemplate, vorn::ModalOwner& owner);

    vorn::ModalOwner* m_modalOwner = nullptr; ///< while DoModal runs
    int m_modalResult = -1;                   ///< what EndDialog was given
    bool m_ended = false;                     ///< EndDialog was called since the creation began
};
