// Exchange of buttons, positions and control objects.
#include "framework/core/Exception.h"
#include "framework/dialog/DialogDataExchange.h"
#include "framework/window/CWnd.h"

#include <commctrl.h>

namespace
{
bool IsRadioButton(HWND control)
{
    return (::SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

bool BeginsGroup(HWND control)
{
    return (::GetWindowLongA(control, GWL_STYLE) & WS_GROUP) != 0;
}

HWND NextInGroup(HWND control)
{
    const HWND next = ::GetWindow(control, GW_HWNDNEXT);
    return next && !BeginsGroup(next) ? next : nullptr;
}

void ReadRadio(HWND control, int index, int& value)
{
    if (::SendMessageA(control, BM_GETCHECK, 0, 0) != BST_UNCHECKED && value < 0)
        value = index;
}

void WriteRadio(HWND control, int index, int value)
{
    ::SendMessageA(control, BM_SETCHECK, index == value ? BST_CHECKED : BST_UNCHECKED, 0);
}
} // namespace

void DDX_Check(CDataExchange* exchange, int id, int& value)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        value = static_cast<int>(::SendMessageA(control, BM_GETCHECK, 0, 0));
        return;
    }
    if (value < BST_UNCHECKED || value > BST_INDETERMINATE)
        value = BST_UNCHECKED;
    ::SendMessageA(control, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

void DDX_Radio(CDataExchange* exchange, int id, int& value)
{
    HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = -1;
    for (int index = 0; control; control = NextInGroup(control))
    {
        if (!IsRadioButton(control))
            continue;
        if (exchange->m_bSaveAndValidate)
            ReadRadio(control, index, value);
        else
            WriteRadio(control, index, value);
        ++index;
    }
}

void DDX_Scroll(CDataExchange* exchange, int id, int& value)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void DDX_Slider(CDataExchange* exchange, int id, int& value)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessageA(control, TBM_GETPOS, 0, 0));
    else
        ::SendMessageA(control, TBM_SETPOS, TRUE, value);
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (control.m_hWnd)
        return;
    if (!control.SubclassWindow(exchange->PrepareCtrl(id)))
        AfxThrowNotSupportedException();
}
