#pragma once

/// @file
/// Form view: a view made of the controls of a dialog template.
#include "framework/frames/CScrollView.h"

#include <oaidl.h>

/// A view whose controls come from a dialog template, usually without frame and with the style WS_CHILD; with that it
/// stands in its parent, without it is a window of its own. A parent that is no frame, and a view without document,
/// will do. The size of the template is what it scrolls over.
///
/// Values go to and from the controls by DoDataExchange(); OnInitialUpdate() shows them first. The keys of dialogs work
/// (Tab, arrows, mnemonics, the default button), after the accelerators of the frame.
class HOSTFRAMEWORK_API CFormView : public CScrollView
{
    DECLARE_DYNAMIC(CFormView)

public:
    ~CFormView() override;

    /// Creates the view from its template; the first two parameters mean nothing here.
    /// @param style WS_VISIBLE shows it; WS_BORDER gives it a sunken edge
    /// @param rect where it stands in its parent; empty: as its template says
    /// @return FALSE on failure, for example when there is no template; the object has then gone its way through
    /// PostNcDestroy()
    BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                CCreateContext* context = nullptr) override;

    /// Shows the values by UpdateData(FALSE).
    void OnInitialUpdate() override;
    BOOL PreTranslateMessage(MSG* message) override;

    /// @name Questions of screen readers. S_FALSE: the system shall answer itself
    /// @{
    virtual HRESULT accHitTest(long left, long top, VARIANT* child);
    virtual HRESULT accLocation(long* left, long* top, long* width, long* height, VARIANT child);
    virtual HRESULT get_accChild(VARIANT child, IDispatch** dispatch);
    virtual HRESULT get_accChildCount(long* count);
    virtual HRESULT get_accName(VARIANT child, BSTR* name);
    /// @}

protected:
    explicit CFormView(LPCTSTR templateName);
    explicit CFormView(UINT templateId);

    /// Nothing: the controls draw themselves.
    void OnDraw(CDC* dc) override;
    void OnActivateView(BOOL activate, CView* activateView, CView* deactivateView) override;
    void OnActivateFrame(UINT state, CFrameWnd* frame) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSetFocus(CWnd* former);

    LPCTSTR m_lpszTemplateName; ///< name or number of the resource
    CCreateContext* m_pCreateContext = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    void TakeLook(DWORD style, UINT id);
    bool TakePlace(DWORD style, const RECT& rect);
    void RememberFocus();
    bool RestoreFocus();

    HWND m_focus = nullptr; ///< the control that had the focus when the view lost it
};
