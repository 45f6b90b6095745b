// Selection, lines and clipboard of the edit box.
#include "framework/controls/CEdit.h"

#include "framework/controls/ControlMessage.h"

#include <cstring>

using vorn::Ask;

DWORD CEdit::GetSel() const
{
    return static_cast<DWORD>(Ask(*this, EM_GETSEL));
}

void CEdit::GetSel(int& start, int& end) const
{
    start = end = 0;
    Ask(*this, EM_GETSEL, vorn::AsWParam(&start), &end);
}

namespace
{
/// A position out of a word: all ones stand for -1.
int PositionOf(WORD word)
{
    return word == 0xFFFF ? -1 : word;
}
} // namespace

void CEdit::SetSel(DWORD selection, BOOL noScroll)
{
    SetSel(PositionOf(LOWORD(selection)), PositionOf(HIWORD(selection)), noScroll);
}

void CEdit::SetSel(int start, int end, BOOL noScroll)
{
    Ask(*this, EM_SETSEL, static_cast<WPARAM>(start), static_cast<LPARAM>(end));
    if (!noScroll)
        Ask(*this, EM_SCROLLCARET);
}

void CEdit::ReplaceSel(LPCTSTR text, BOOL canUndo)
{
    Ask(*this, EM_REPLACESEL, static_cast<WPARAM>(canUndo), text);
}

int CEdit::GetLine(int index, LPTSTR buffer) const
{
    return Ask(*this, EM_GETLINE, static_cast<WPARAM>(index), buffer);
}

int CEdit::GetLine(int index, LPTSTR buffer, int maxLength) const
{
    if (maxLength < static_cast<int>(sizeof(WORD)))
        return 0;
    const WORD size = static_cast<WORD>(maxLength > 0xffff ? 0xffff : maxLength);
    std::memcpy(buffer, &size, sizeof(size));
    return GetLine(index, buffer);
}

int CEdit::LineFromChar(int index) const
{
    return Ask(*this, EM_LINEFROMCHAR, static_cast<WPARAM>(index));
}

int CEdit::LineIndex(int line) const
{
    return Ask(*this, EM_LINEINDEX, static_cast<WPARAM>(line));
}

int CEdit::LineLength(int line) const
{
    return Ask(*this, EM_LINELENGTH, static_cast<WPARAM>(line));
}

void CEdit::LineScroll(int lines, int characters)
{
    Ask(*this, EM_LINESCROLL, static_cast<WPARAM>(characters), static_cast<LPARAM>(lines));
}

int CEdit::GetFirstVisibleLine() const
{
    return Ask(*this, EM_GETFIRSTVISIBLELINE);
}

BOOL CEdit::FmtLines(BOOL addBreaks)
{
    return Ask(*this, EM_FMTLINES, static_cast<WPARAM>(addBreaks));
}

void CEdit::EmptyUndoBuffer()
{
    Ask(*this, EM_EMPTYUNDOBUFFER);
}

BOOL CEdit::Undo()
{
    return Ask(*this, EM_UNDO);
}

void CEdit::Clear()
{
    Ask(*this, WM_CLEAR);
}

void CEdit::Copy()
{
    Ask(*this, WM_COPY);
}

void CEdit::Cut()
{
    Ask(*this, WM_CUT);
}

void CEdit::Paste()
{
    Ask(*this, WM_PASTE);
}
