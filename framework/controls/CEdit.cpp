#include "framework/controls/CEdit.h"

#include "framework/controls/ControlMessage.h"

using vorn::Ask;

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::CEdit() = default;

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("EDIT", nullptr, style, rect, parent, id);
}

BOOL CEdit::CanUndo() const
{
    return Ask(*this, EM_CANUNDO);
}

int CEdit::GetLineCount() const
{
    return Ask(*this, EM_GETLINECOUNT);
}

BOOL CEdit::GetModify() const
{
    return Ask(*this, EM_GETMODIFY);
}

void CEdit::SetModify(BOOL modified)
{
    Ask(*this, EM_SETMODIFY, static_cast<WPARAM>(modified));
}

BOOL CEdit::SetReadOnly(BOOL readOnly)
{
    return Ask(*this, EM_SETREADONLY, static_cast<WPARAM>(readOnly));
}

void CEdit::GetRect(LPRECT rect) const
{
    Ask(*this, EM_GETRECT, 0, rect);
}

void CEdit::SetRect(LPCRECT rect)
{
    Ask(*this, EM_SETRECT, 0, rect);
}

void CEdit::SetRectNP(LPCRECT rect)
{
    Ask(*this, EM_SETRECTNP, 0, rect);
}

void CEdit::SetMargins(UINT left, UINT right)
{
    Ask(*this, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(left, right));
}

DWORD CEdit::GetMargins() const
{
    return static_cast<DWORD>(Ask(*this, EM_GETMARGINS));
}

HLOCAL CEdit::GetHandle() const
{
    return vorn::AsHandle<HLOCAL>(Ask(*this, EM_GETHANDLE));
}

void CEdit::SetHandle(HLOCAL buffer)
{
    Ask(*this, EM_SETHANDLE, vorn::AsWParam(buffer));
}

void CEdit::SetLimitText(UINT limit)
{
    Ask(*this, EM_SETLIMITTEXT, limit);
}

UINT CEdit::GetLimitText() const
{
    return static_cast<UINT>(Ask(*this, EM_GETLIMITTEXT));
}

void CEdit::LimitText(int limit)
{
    Ask(*this, EM_LIMITTEXT, static_cast<WPARAM>(limit));
}

CPoint CEdit::PosFromChar(UINT index) const
{
    const LRESULT position = Ask(*this, EM_POSFROMCHAR, index);
    return CPoint(static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position)));
}

int CEdit::CharFromPos(CPoint point) const
{
    return Ask(*this, EM_CHARFROMPOS, 0, MAKELPARAM(point.x, point.y));
}

TCHAR CEdit::GetPasswordChar() const
{
    return static_cast<TCHAR>(Ask(*this, EM_GETPASSWORDCHAR));
}

void CEdit::SetPasswordChar(TCHAR character)
{
    Ask(*this, EM_SETPASSWORDCHAR, static_cast<unsigned char>(character));
}

void CEdit::SetTabStops()
{
    Ask(*this, EM_SETTABSTOPS);
}

BOOL CEdit::SetTabStops(const int& distance)
{
    return Ask(*this, EM_SETTABSTOPS, 1, &distance);
}

BOOL CEdit::SetTabStops(int count, LPINT stops)
{
    return Ask(*this, EM_SETTABSTOPS, static_cast<WPARAM>(count), stops);
}
