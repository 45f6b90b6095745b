#pragma once

#include "frame/core/Export.h"
#include "framework/include/afxcmn.h"
#include "framework/include/afxwin.h"

/// The colours of links.
struct HYPERLINKCOLORS
{
    COLORREF link;
    COLORREF visited;
    COLORREF hover;  ///< below the mouse
    COLORREF active; ///< while the button is down
};

/// A text in a dialog that opens a web page or a document: by a click, or by Space or Return while it has the focus.
/// Without a URL it only becomes visited.
class VORNCOMMON_API HyperLink : public CStatic
{
    DECLARE_DYNAMIC(HyperLink)
public:
    /// Style bits; at first UnderlineHover, HoverColor and ToolTip.
    static constexpr DWORD Underline = 1;      ///< always underlined
    static constexpr DWORD UnderlineHover = 2; ///< underlined below the mouse
    static constexpr DWORD HoverColor = 4;
    static constexpr DWORD ToolTip = 8; ///< shows the URL

    HyperLink();
    ~HyperLink() override;

    /// @name Colours of all links
    /// @{
    static void SetColors(COLORREF link, COLORREF visited, COLORREF hover, COLORREF active);
    static void SetColors(HYPERLINKCOLORS& colors);
    static void GetColors(HYPERLINKCOLORS& colors);
    /// @}

    /// Takes a dialog's control over. @return FALSE when there is none, or this link already has a window.
    BOOL SubclassDlgItem(UINT id, CWnd* parent, LPCSTR url);

    void SetURL(LPCSTR url);
    CString GetURL() const;
    void SetVisited(bool visited = true);
    bool IsVisited() const;
    /// The cursor stays the caller's. Null is the arrow.
    void SetLinkCursor(HICON cursor);
    HICON GetLinkCursor() const;
    /// Takes the font's looks over, and fits the control to its text.
    void SetFont(CFont* font);
    /// Fits the control to its text, too.
    void SetWindowText(LPCSTR text);
    void ModifyLinkStyle(DWORD remove, DWORD add, bool redraw = true);
    DWORD GetLinkStyle() const;

    /// Opens a URL with the program that the system knows for it, or else with the browser.
    /// @return above 32 on success; a code of the shell's otherwise (above 31 is success where the browser was
    /// started).
    static HINSTANCE GotoURL(LPCSTR url, int showCmd);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void PreSubclassWindow() override;
    /// Gives the control the size of its text, kept where SS_CENTER, SS_RIGHT and SS_CENTERIMAGE say.
    void AdjustWindow();
    /// What a click does.
    void FollowLink();
    void ReportError(int result);
    void SetDefaultCursor();

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    bool HasStyle(DWORD bit) const;
    COLORREF TextColor() const;
    void MakeFonts();
    void DrawLink(CDC& dc);
    void UpdateTip();
    void SetState(bool& state, bool value);

    CString m_url;
    DWORD m_linkStyle = UnderlineHover | HoverColor | ToolTip;
    bool m_visited = false;
    bool m_over = false;
    bool m_focused = false;
    bool m_pressed = false;
    HICON m_cursor = nullptr;
    HICON m_ownCursor = nullptr;
    CFont m_font;
    CFont m_underlined;
    CToolTipCtrl m_tip;
};
