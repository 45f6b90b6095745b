#include "framework/dialog/CDataExchange.h"

#include "framework/core/Exception.h"
#include "framework/dialog/ControlText.h"
#include "framework/window/CWnd.h"

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog)
{
}

HWND CDataExchange::PrepareCtrl(int id)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), id);
    if (!control)
        AfxThrowNotSupportedException();
    m_idLastControl = id;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int id)
{
    const HWND control = PrepareCtrl(id);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail()
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), m_idLastControl);
    if (m_bSaveAndValidate && m_idLastControl != 0 && control)
    {
        ::SetFocus(control);
        if (m_bEditLastControl)
            vorn::SelectControlText(control);
    }
    AfxThrowUserException();
}
