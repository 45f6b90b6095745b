// Exchange of list boxes and combo boxes.
#include "framework/dialog/ControlText.h"
#include "framework/dialog/DialogDataExchange.h"
#include "framework/window/CWnd.h"

namespace
{
int Ask(HWND control, UINT message, int wParam = 0, const void* lParam = nullptr)
{
    return static_cast<int>(
        ::SendMessageA(control, message, static_cast<WPARAM>(wParam), reinterpret_cast<LPARAM>(lParam)));
}

/// An empty text begins every item, but stands for "none".
int Find(HWND control, UINT findMessage, const CString& text)
{
    const bool byPrefix = findMessage == LB_FINDSTRING || findMessage == CB_FINDSTRING;
    return byPrefix && text.IsEmpty() ? -1 : Ask(control, findMessage, -1, text.GetString());
}

CString SelectedText(HWND list)
{
    CString text;
    const int index = Ask(list, LB_GETCURSEL);
    const int length = index < 0 ? -1 : Ask(list, LB_GETTEXTLEN, index);
    if (length > 0)
        text.ReleaseBuffer(Ask(list, LB_GETTEXT, index, text.GetBuffer(length)));
    return text;
}

void ExchangeList(CDataExchange* exchange, int id, CString& value, UINT findMessage)
{
    const HWND list = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = SelectedText(list);
    else
        Ask(list, LB_SETCURSEL, Find(list, findMessage, value));
}

void ExchangeCombo(CDataExchange* exchange, int id, CString& value, UINT findMessage)
{
    const HWND combo = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        value = vorn::ControlText(combo);
        return;
    }
    const int index = Find(combo, findMessage, value);
    Ask(combo, CB_SETCURSEL, index);
    if (index < 0)
        vorn::SetControlText(combo, value);
}

void ExchangeIndex(CDataExchange* exchange, int id, int& value, UINT getMessage, UINT setMessage)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = Ask(control, getMessage);
    else
        Ask(control, setMessage, value);
}
} // namespace

void DDX_LBString(CDataExchange* exchange, int id, CString& value)
{
    ExchangeList(exchange, id, value, LB_FINDSTRING);
}

void DDX_LBStringExact(CDataExchange* exchange, int id, CString& value)
{
    ExchangeList(exchange, id, value, LB_FINDSTRINGEXACT);
}

void DDX_LBIndex(CDataExchange* exchange, int id, int& value)
{
    ExchangeIndex(exchange, id, value, LB_GETCURSEL, LB_SETCURSEL);
}

void DDX_CBString(CDataExchange* exchange, int id, CString& value)
{
    ExchangeCombo(exchange, id, value, CB_FINDSTRING);
}

void DDX_CBStringExact(CDataExchange* exchange, int id, CString& value)
{
    ExchangeCombo(exchange, id, value, CB_FINDSTRINGEXACT);
}

void DDX_CBIndex(CDataExchange* exchange, int id, int& value)
{
    ExchangeIndex(exchange, id, value, CB_GETCURSEL, CB_SETCURSEL);
}
