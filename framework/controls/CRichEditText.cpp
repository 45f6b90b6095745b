// Text, selection and clipboard of the rich edit.
#include "framework/controls/CRichEditCtrl.h"

#include "framework/controls/ControlMessage.h"

#include <algorithm>
#include <cstring>

using vorn::Ask;

long CRichEditCtrl::GetTextLength() const
{
    return Ask(*this, WM_GETTEXTLENGTH);
}

long CRichEditCtrl::GetTextLengthEx(DWORD flags, UINT codePage) const
{
    GETTEXTLENGTHEX request{flags, codePage};
    return Ask(*this, EM_GETTEXTLENGTHEX, vorn::AsWParam(&request));
}

int CRichEditCtrl::GetTextRange(int first, int last, CString& text) const
{
    const int most = last < 0 ? static_cast<int>(GetTextLength()) - first : last - first;
    TEXTRANGEA range{{first, first + most}, text.GetBuffer(std::max(most, 0))};
    range.lpstrText[0] = '\0';
    const int copied = most > 0 ? static_cast<int>(Ask(*this, EM_GETTEXTRANGE, 0, &range)) : 0;
    text.ReleaseBuffer(copied);
    return copied;
}

int CRichEditCtrl::GetLineCount() const
{
    return Ask(*this, EM_GETLINECOUNT);
}

int CRichEditCtrl::GetLine(int index, LPTSTR buffer) const
{
    return Ask(*this, EM_GETLINE, static_cast<WPARAM>(index), buffer);
}

int CRichEditCtrl::GetLine(int index, LPTSTR buffer, int maxLength) const
{
    if (maxLength < static_cast<int>(sizeof(WORD)))
        return 0;
    const WORD size = static_cast<WORD>(std::min(maxLength, 0xFFFF));
    std::memcpy(buffer, &size, sizeof(size));
    return GetLine(index, buffer);
}

int CRichEditCtrl::LineIndex(int line) const
{
    return Ask(*this, EM_LINEINDEX, static_cast<WPARAM>(line));
}

int CRichEditCtrl::LineLength(int index) const
{
    return Ask(*this, EM_LINELENGTH, static_cast<WPARAM>(index));
}

long CRichEditCtrl::LineFromChar(long index) const
{
    return Ask(*this, EM_EXLINEFROMCHAR, 0, static_cast<LPARAM>(index));
}

int CRichEditCtrl::GetFirstVisibleLine() const
{
    return Ask(*this, EM_GETFIRSTVISIBLELINE);
}

void CRichEditCtrl::LineScroll(int lines, int characters)
{
    Ask(*this, EM_LINESCROLL, static_cast<WPARAM>(characters), static_cast<LPARAM>(lines));
}

CPoint CRichEditCtrl::GetCharPos(long index) const
{
    POINTL point{};
    Ask(*this, EM_POSFROMCHAR, vorn::AsWParam(&point), static_cast<LPARAM>(index));
    return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

CPoint CRichEditCtrl::PosFromChar(UINT index) const
{
    return GetCharPos(static_cast<long>(index));
}

int CRichEditCtrl::CharFromPos(CPoint point) const
{
    POINTL at{point.x, point.y};
    return Ask(*this, EM_CHARFROMPOS, 0, &at);
}

void CRichEditCtrl::LimitText(long limit)
{
    Ask(*this, EM_EXLIMITTEXT, 0, static_cast<LPARAM>(limit));
}

long CRichEditCtrl::GetLimitText() const
{
    return Ask(*this, EM_GETLIMITTEXT);
}

long CRichEditCtrl::FindText(DWORD flags, FINDTEXTEXA* find) const
{
    return Ask(*this, EM_FINDTEXTEX, flags, find);
}

void CRichEditCtrl::GetSel(CHARRANGE& range) const
{
    range = {0, 0};
    Ask(*this, EM_EXGETSEL, 0, &range);
}

void CRichEditCtrl::GetSel(long& start, long& end) const
{
    CHARRANGE range;
    GetSel(range);
    start = range.cpMin;
    end = range.cpMax;
}

void CRichEditCtrl::SetSel(CHARRANGE& range)
{
    Ask(*this, EM_EXSETSEL, 0, &range);
}

void CRichEditCtrl::SetSel(long start, long end)
{
    CHARRANGE range{start, end};
    SetSel(range);
}

void CRichEditCtrl::HideSelection(BOOL hide, BOOL changeStyle)
{
    Ask(*this, EM_HIDESELECTION, static_cast<WPARAM>(hide), static_cast<LPARAM>(changeStyle));
}

void CRichEditCtrl::ReplaceSel(LPCTSTR text, BOOL canUndo)
{
    Ask(*this, EM_REPLACESEL, static_cast<WPARAM>(canUndo), text);
}

long CRichEditCtrl::GetSelText(LPSTR buffer) const
{
    return Ask(*this, EM_GETSELTEXT, 0, buffer);
}

CString CRichEditCtrl::GetSelText() const
{
    CHARRANGE range;
    GetSel(range);
    CString text;
    // A character may need two bytes in the code page.
    const long most = 2 * std::max(range.cpMax - range.cpMin, 0L);
    const long copied = GetSelText(text.GetBuffer(static_cast<int>(most)));
    text.ReleaseBuffer(static_cast<int>(copied));
    return text;
}

WORD CRichEditCtrl::GetSelectionType() const
{
    return static_cast<WORD>(Ask(*this, EM_SELECTIONTYPE));
}

BOOL CRichEditCtrl::GetModify() const
{
    return Ask(*this, EM_GETMODIFY);
}

void CRichEditCtrl::SetModify(BOOL modified)
{
    Ask(*this, EM_SETMODIFY, static_cast<WPARAM>(modified));
}

BOOL CRichEditCtrl::CanUndo() const
{
    return Ask(*this, EM_CANUNDO);
}

BOOL CRichEditCtrl::CanPaste(UINT format) const
{
    return Ask(*this, EM_CANPASTE, format);
}

void CRichEditCtrl::EmptyUndoBuffer()
{
    Ask(*this, EM_EMPTYUNDOBUFFER);
}

BOOL CRichEditCtrl::Undo()
{
    return Ask(*this, EM_UNDO);
}

void CRichEditCtrl::Clear()
{
    Ask(*this, WM_CLEAR);
}

void CRichEditCtrl::Copy()
{
    Ask(*this, WM_COPY);
}

void CRichEditCtrl::Cut()
{
    Ask(*this, WM_CUT);
}

void CRichEditCtrl::Paste()
{
    Ask(*this, WM_PASTE);
}

void CRichEditCtrl::PasteSpecial(UINT clipboardFormat)
{
    Ask(*this, EM_PASTESPECIAL, clipboardFormat);
}
