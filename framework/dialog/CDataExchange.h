#pragma once

#include "framework/core/Export.h"

#include <windows.h>

class CWnd;

/// One transfer between a window's controls and its member variables; made by CWnd::UpdateData and passed to
/// CWnd::DoDataExchange, which calls DDX_ and DDV_ functions with it.
class HOSTFRAMEWORK_API CDataExchange
{
public:
    /// @param saveAndValidate TRUE: from the controls to the variables, with checks; FALSE: the other way
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;
    int m_idLastControl = 0;         ///< the control prepared last: Fail() puts the focus there
    BOOL m_bEditLastControl = FALSE; ///< it is an edit box: Fail() also selects its text

    /// Begins the exchange of a control that is no edit box. Throws CNotSupportedException when there is none.
    /// @return the control
    HWND PrepareCtrl(int id);
    /// The same for an edit box, or a combo box with one.
    HWND PrepareEditCtrl(int id);
    /// Ends the exchange after a message was shown: puts the focus on the last control, selects an edit box's text and
    /// throws CUserException, which ends UpdateData with FALSE.
    [[noreturn]] void Fail();
};
