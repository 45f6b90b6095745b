#pragma once

#include "framework/core/CString.h"
#include "framework/core/Geometry.h"
#include "framework/window/CWnd.h"

/// An edit box. Positions are 0-based character indices in the text, lines are 0-based.
class HOSTFRAMEWORK_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    BOOL CanUndo() const;
    int GetLineCount() const;
    BOOL GetModify() const;
    void SetModify(BOOL modified = TRUE);
    BOOL SetReadOnly(BOOL readOnly = TRUE);

    /// The formatting rectangle of a multiple-line edit, in client coordinates.
    void GetRect(LPRECT rect) const;
    void SetRect(LPCRECT rect);
    /// As SetRect, without repainting.
    void SetRectNP(LPCRECT rect);
    void SetMargins(UINT left, UINT right);
    /// Left margin in the low word, right margin in the high word, in pixels.
    DWORD GetMargins() const;

    /// The selection: start in the low word, end (first character after it) in the high word.
    DWORD GetSel() const;
    void GetSel(int& start, int& end) const;
    /// Start in the low word, end in the high word; see the other form.
    void SetSel(DWORD selection, BOOL noScroll = FALSE);
    /// Selects [start, end): (0, -1) selects everything, start -1 removes the selection. The caret is scrolled into
    /// view unless `noScroll`.
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    /// Replaces the selection, or inserts at the caret. The text stays undoable only if `canUndo`.
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE);

    /// The memory of a multiple-line edit's text.
    HLOCAL GetHandle() const;
    void SetHandle(HLOCAL buffer);

    void SetLimitText(UINT limit);
    UINT GetLimitText() const;
    /// The same as SetLimitText; 0 means the system's greatest length.
    void LimitText(int limit = 0);

    CPoint PosFromChar(UINT index) const;
    /// Index of the nearest character in the low word, its line in the high word.
    int CharFromPos(CPoint point) const;

    /// Copies a line without terminator. The first word of `buffer` must hold its size in bytes; returns the number of
    /// characters copied, 0 for a line that does not exist.
    int GetLine(int index, LPTSTR buffer) const;
    /// The same for a buffer of `maxLength` bytes. A `maxLength` below 2 copies nothing.
    int GetLine(int index, LPTSTR buffer, int maxLength) const;
    int LineFromChar(int index = -1) const;
    int LineIndex(int line = -1) const;
    int LineLength(int line = -1) const;
    void LineScroll(int lines, int characters = 0);
    int GetFirstVisibleLine() const;
    BOOL FmtLines(BOOL addBreaks);

    TCHAR GetPasswordChar() const;
    void SetPasswordChar(TCHAR character);

    /// Tab stops of a multiple-line edit in dialog units: the default stops, one distance for all, or a list.
    void SetTabStops();
    BOOL SetTabStops(const int& distance);
    BOOL SetTabStops(int count, LPINT stops);

    void EmptyUndoBuffer();
    BOOL Undo();
    void Clear();
    void Copy();
    void Cut();
    void Paste();
};
