#pragma once

#include "framework/core/CString.h"
#include "framework/core/Geometry.h"
#include "framework/window/CWnd.h"

#include <richedit.h>

/// Loads the system's rich edit library of the first version ("RICHEDIT" windows). The classes exist from then on:
/// call it before a dialog with such a control is made. Costs nothing when called again.
HOSTFRAMEWORK_API BOOL AfxInitRichEdit();
/// The same for the later versions ("RichEdit20A" windows), which CRichEditCtrl::Create makes.
HOSTFRAMEWORK_API BOOL AfxInitRichEdit2();

/// A text control with character and paragraph formats. Positions are 0-based character indices, lines are 0-based.
class HOSTFRAMEWORK_API CRichEditCtrl : public CWnd
{
    DECLARE_DYNAMIC(CRichEditCtrl)

public:
    CRichEditCtrl();

    /// Loads the library first.
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// @name Text and lines
    /// @{
    /// The number of characters, a line's end counting as two.
    long GetTextLength() const;
    long GetTextLengthEx(DWORD flags, UINT codePage = CP_ACP) const;
    /// Copies the characters first to last - 1; a `last` of -1 means to the end. @return how many were copied
    int GetTextRange(int first, int last, CString& text) const;
    int GetLineCount() const;
    /// Copies a line without terminator. The first word of `buffer` must hold its size; or `maxLength` does.
    int GetLine(int index, LPTSTR buffer) const;
    int GetLine(int index, LPTSTR buffer, int maxLength) const;
    int LineIndex(int line = -1) const;
    int LineLength(int index = -1) const;
    long LineFromChar(long index) const;
    int GetFirstVisibleLine() const;
    void LineScroll(int lines, int characters = 0);
    CPoint GetCharPos(long index) const;
    CPoint PosFromChar(UINT index) const;
    int CharFromPos(CPoint point) const;
    /// The most characters that can be typed or pasted; 0 means the first version's 64,000.
    void LimitText(long limit = 0);
    long GetLimitText() const;
    /// Finds a text within `find->chrg`, from its start. @param flags FR_ values. @return where it begins, or -1
    long FindText(DWORD flags, FINDTEXTEXA* find) const;
    /// @}

    /// @name Selection
    /// @{
    void GetSel(CHARRANGE& range) const;
    void GetSel(long& start, long& end) const;
    /// Selects [start, end): (0, -1) selects everything, start -1 removes the selection.
    void SetSel(long start, long end);
    void SetSel(CHARRANGE& range);
    void HideSelection(BOOL hide, BOOL changeStyle);
    /// Replaces the selection, or inserts at the caret. The change can be undone only if `canUndo`.
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE);
    /// `buffer` must hold the selection and a terminator. @return the number of characters
    long GetSelText(LPSTR buffer) const;
    CString GetSelText() const;
    /// SEL_ flags.
    WORD GetSelectionType() const;
    /// @}

    /// @name Look
    /// @{
    /// @param systemColour the system's window colour instead of `colour`. @return the colour before
    COLORREF SetBackgroundColor(BOOL systemColour, COLORREF colour);
    /// The formatting rectangle, in client coordinates.
    void GetRect(LPRECT rect) const;
    void SetRect(LPCRECT rect);
    BOOL SetReadOnly(BOOL readOnly = TRUE);
    /// @param operation ECOOP_ value. @param options ECO_ flags
    void SetOptions(WORD operation, DWORD options);
    BOOL SetAutoURLDetect(BOOL enable = TRUE);
    /// The ENM_ flags of notifications that the parent gets. @return those before
    DWORD SetEventMask(DWORD mask);
    long GetEventMask() const;
    /// Asks for an EN_REQUESTRESIZE with the size that the text needs.
    void RequestResize();
    /// @}

    /// @name Formats. The functions fill in cbSize; dwMask says what is set, or what was found the same everywhere
    /// @{
    DWORD GetDefaultCharFormat(CHARFORMATA& format) const;
    BOOL SetDefaultCharFormat(CHARFORMATA& format);
    DWORD GetSelectionCharFormat(CHARFORMATA& format) const;
    BOOL SetSelectionCharFormat(CHARFORMATA& format);
    /// Of the word that holds the caret.
    BOOL SetWordCharFormat(CHARFORMATA& format);
    DWORD GetParaFormat(PARAFORMAT& format) const;
    BOOL SetParaFormat(PARAFORMAT& format);
    /// @}

    /// @name Streams
    /// @{
    /// Replaces the text (or, with SFF_SELECTION, the selection) by what the stream's callback delivers.
    /// @param format SF_TEXT or SF_RTF. @return the characters read; `stream.dwError` tells of failures
    long StreamIn(int format, EDITSTREAM& stream);
    long StreamOut(int format, EDITSTREAM& stream);
    /// @}

    /// @name Printing
    /// @{
    /// Prints a part of the text. @return where the next page begins. Null ends the printing
    long FormatRange(FORMATRANGE* range, BOOL display = TRUE);
    BOOL DisplayBand(LPRECT rect);
    BOOL SetTargetDevice(HDC dc, long lineWidth);
    /// @}

    /// @name Editing
    /// @{
    BOOL GetModify() const;
    void SetModify(BOOL modified = TRUE);
    BOOL CanUndo() const;
    BOOL CanPaste(UINT format = 0) const;
    void EmptyUndoBuffer();
    BOOL Undo();
    void Clear();
    void Copy();
    void Cut();
    void Paste();
    void PasteSpecial(UINT clipboardFormat);
    /// @}
};
