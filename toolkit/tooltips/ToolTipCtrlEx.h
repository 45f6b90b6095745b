#pragma once

/// @file
/// Tips that explain the controls of a window, each with a short text and, at a click, a longer one.
#include "frame/core/Export.h"
#include "framework/gdi/CFont.h"
#include "framework/window/CWnd.h"
#include "toolkit/tooltips/ToolTipInfoEx.h"
#include "toolkit/tooltips/core/TipDelays.h"
#include "toolkit/tooltips/core/TipState.h"

#include <memory>
#include <vector>

/// A tooltip window for any number of tools. A tool is a control, or a rectangle in one, with a text. The owner passes
/// its messages to RelayEvent(), usually in PreTranslateMessage(). A while after the mouse has come to a tool its tip
/// appears and stays until the mouse leaves the tool, or its time has passed.
///
/// A carriage return in a text separates the short tip from what an info box says: a click on the tip opens the box,
/// the next click anywhere, a key, or a change of the focus closes it. A line feed breaks a line.
///
/// Tools keep handles: a control may go without notice. For the user-interface thread.
class VORNCOMMON_API ToolTipCtrlEx : public CWnd
{
    DECLARE_DYNAMIC(ToolTipCtrlEx)
public:
    ToolTipCtrlEx();
    ~ToolTipCtrlEx() override;

    /// Switches the tips of all controls on or off; off takes away a tip that is there.
    static void GlobalEnableTips(bool enable);
    /// A field of a text, counted from 0; empty beyond the last. A text without separator is one field.
    static CString GetFieldFromString(CString text, int index, char separator);

    /// Creates the hidden window, owned by the parent's top-level window.
    BOOL Create(CWnd* parent);

    /// @name Tools
    /// A tool is known by its control and its id; adding one that is there replaces it. The tools go with the window.
    /// @{

    /// @param textId string resource, found when it is shown: first in the host, then in its libraries
    /// @param rect in the control's client coordinates; null or empty: the whole control
    /// @return FALSE without a control
    BOOL AddTool(CWnd* control, UINT textId, UINT id = 0, const RECT* rect = nullptr);
    BOOL AddTool(CWnd* control, LPCSTR text, UINT id = 0, const RECT* rect = nullptr);
    /// Takes its tip away, too.
    void DelTool(CWnd* control, UINT id = 0);
    int GetToolCount() const;
    /// @return false, with nothing changed, when there is no such tool
    bool GetToolInfo(TOOLINFOEX& info, CWnd* control, UINT id = 0) const;
    /// Gives the tool that the record names its rectangle and its text.
    void SetToolInfo(TOOLINFOEX* info);
    /// The whole text, its first 511 characters; empty when there is no such tool.
    void GetText(CString& text, CWnd* control, UINT id = 0) const;
    /// Looks for a tool of one control. @param point in its client coordinates @param info may be null
    bool HitTest(CWnd* control, POINT point, TOOLINFOEX* info) const;
    /// The visible tool at a point of the screen, the smallest of several, also a disabled one; null for none.
    ToolTipInfoEx* FindToolFromPoint(const POINT& point);
    /// Tools have moved: their places are read anew with the next message. Needed at once only; a moment later it
    /// happens by itself.
    void UpdateTipRects();
    /// @}

    /// Takes a message that a tool's window, or one around or in it, is about to get: movements of the mouse, buttons
    /// and keys count.
    void RelayEvent(MSG* message);
    /// Off takes away a tip that is there.
    void Activate(bool active);
    /// Takes the tip away until the mouse leaves its tool.
    void Pop();

    /// @name Times in milliseconds; which is a TTDT_ value
    /// @{
    void SetDelayTime(DWORD which, int milliseconds);
    /// Initial time t, auto-pop time 10 t, reshow time t / 5.
    void SetDelayTime(UINT milliseconds);
    int GetDelayTime(DWORD which) const;
    /// @}

    /// @name Looks
    /// @{

    /// Room between the tip's edges and its text, in pixels.
    void SetMargin(const RECT* margins);
    void GetMargin(RECT* margins) const;
    /// Where texts are wrapped, in pixels, margins not counted; 0: nowhere, in info boxes at 300. @return the former
    int SetMaxTipWidth(int width);
    int GetMaxTipWidth() const;
    /// CLR_DEFAULT (0xFF000000): the system's colour of tips.
    void SetTipBkColor(COLORREF color);
    COLORREF GetTipBkColor() const;
    void SetTipTextColor(COLORREF color);
    COLORREF GetTipTextColor() const;
    /// @return false, with nothing changed, when there is no such font
    bool SetLogFont(const LOGFONT* font);
    /// The font of the system's tips.
    static bool GetSystemToolTipFont(LOGFONT& font);
    /// @}

protected:
    /// Gives a tip its place: moves bounds to the point, onto the screen of the tool, above the tool when it would go
    /// below the screen. @return bounds
    virtual CRect CalculateInfoBoxRect(CPoint& point, ToolTipInfoEx* info, CRect& bounds);
    /// The size of a tip with this text, from 0 and 0 on. @param extra pixels more in width
    virtual CRect GetBoundsRect(CString text, int extra);

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg int OnMouseActivate(CWnd* top, UINT hitTest, UINT message);
    afx_msg void OnActivateApp(BOOL active, DWORD thread);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnCancelMode();
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    afx_msg LRESULT OnSetFont(WPARAM font, LPARAM redraw);
    afx_msg LRESULT OnGetFont(WPARAM, LPARAM);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    /// Where all tools were a moment ago, so that a message need not ask for each.
    struct Places
    {
        std::vector<RECT> rects;
        CRect around; ///< the parent's place then
        DWORD read = 0;
        bool stale = true;
    };

    ToolTipInfoEx* Find(HWND control, UINT id) const;
    ToolTipInfoEx* CurrentTool() const;
    BOOL Add(CWnd* control, UINT textId, LPCSTR text, UINT id, const RECT* rect);

    bool ArePlacesOld() const;
    void ReadPlaces();
    ToolTipInfoEx* SmallestThere(POINT point);
    bool IsThere(std::size_t tool, POINT point);
    bool IsOverKnownControl(HWND control, POINT point) const;
    ToolTipInfoEx* ToolOfMove(const MSG& message);
    ToolTipInfoEx* ToolAtCursor();
    void MouseMoved(const MSG& message);
    bool MayShow() const;

    void Follow(vorn::TipState::Phase before);
    void Hush();
    void SwitchOff();
    void OnWaited();
    void OnLook();
    void Display();
    void OpenInfoBox();
    bool PlaceBox(ToolTipInfoEx* tool, CRect& bounds);
    bool IsShowing(const ToolTipInfoEx* tool) const;
    void ShowAt(const CRect& place);

    bool TakeFont(const LOGFONT& font);
    CFont& FontFor(bool bold);
    CSize TextSize(const CString& text, bool bold);
    void PaintTip(CDC& dc, const CRect& area);
    void DrawPiece(CDC& dc, const CString& text, bool bold, const CRect& place);
    int WrapWidth() const;

    std::vector<std::unique_ptr<ToolTipInfoEx>> m_tools;
    Places m_places;
    vorn::TipState m_state;
    vorn::TipDelays m_delays;
    HWND m_parent;
    CRect m_margins;
    int m_maxWidth;
    COLORREF m_backColor;
    COLORREF m_textColor;
    CFont m_font;
    CFont m_boldFont;
    bool m_fontIsSystems;
    bool m_active;
    CPoint m_point; ///< where the tip that is shown was to begin
    CString m_tip;  ///< what is shown
    CString m_info;
    CRect m_tipPlace; ///< in the window
    CRect m_infoPlace;
};
