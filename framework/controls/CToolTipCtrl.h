#pragma once

#include "framework/core/CString.h"
#include "framework/window/CWnd.h"

#include <commctrl.h>

/// A tooltip window for the tools of one parent. A tool is a window, or a rectangle of a window with a non-zero id.
/// The parent relays its mouse messages (RelayEvent), usually in PreTranslateMessage.
class HOSTFRAMEWORK_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl();

    /// Creates the hidden window, owned by `parent`; `style` holds TTS_ flags.
    virtual BOOL Create(CWnd* parent, DWORD style = 0);

    /// Adds a tool whose text is a string resource, found when it is shown.
    BOOL AddTool(CWnd* window, UINT textId, LPCRECT rect = nullptr, UINT_PTR toolId = 0);
    /// Adds a tool with a text; the default asks the parent by TTN_GETDISPINFO. FALSE if a rectangle comes without id
    /// or an id without rectangle.
    BOOL AddTool(CWnd* window, LPCTSTR text = LPSTR_TEXTCALLBACKA, LPCRECT rect = nullptr, UINT_PTR toolId = 0);
    void DelTool(CWnd* window, UINT_PTR toolId = 0);

    int GetToolCount() const;
    /// Text of a tool (at most 79 characters).
    void GetText(CString& text, CWnd* window, UINT_PTR toolId = 0) const;
    void UpdateTipText(LPCTSTR text, CWnd* window, UINT_PTR toolId = 0);
    void UpdateTipText(UINT textId, CWnd* window, UINT_PTR toolId = 0);
    void SetToolRect(CWnd* window, UINT_PTR toolId, LPCRECT rect);
    BOOL GetToolInfo(TOOLINFOA& info, CWnd* window, UINT_PTR toolId = 0) const;
    void SetToolInfo(TOOLINFOA* info);
    BOOL HitTest(CWnd* window, CPoint point, TTHITTESTINFOA* info) const;

    /// Gives the tooltip a mouse message that a tool's window is about to get.
    void RelayEvent(LPMSG message);
    void Activate(BOOL activate);
    void Pop();
    void Update();

    /// Milliseconds: initial, reshow and automatic times follow from one number.
    void SetDelayTime(UINT milliseconds);
    /// `duration` is a TTDT_ value.
    void SetDelayTime(DWORD duration, int milliseconds);
    int GetDelayTime(DWORD duration) const;
    int GetMaxTipWidth() const;
    /// -1: one line only; otherwise texts break at this width (pixels) and at line ends.
    int SetMaxTipWidth(int width);
    void SetTipBkColor(COLORREF colour);
    COLORREF GetTipBkColor() const;
    void SetTipTextColor(COLORREF colour);
    COLORREF GetTipTextColor() const;
    void GetMargin(LPRECT rect) const;
    void SetMargin(LPCRECT rect);
};
