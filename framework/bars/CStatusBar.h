#pragma once

/// @file
/// Status bar of a frame: a message line and indicators.
#include "framework/bars/CControlBar.h"
#include <vector>

/// The status bar. Pane 0 is usually the message line (id ID_SEPARATOR), which stretches; indicator panes
/// have ids of strings, whose width they get, and are switched by command-UI updates.
class HOSTFRAMEWORK_API CStatusBar : public CControlBar
{
    DECLARE_DYNAMIC(CStatusBar)

public:
    CStatusBar();
    ~CStatusBar() override;

    BOOL Create(CWnd* parent, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, UINT id = 0xE801);
    /// @param controlStyle SBARS_ styles of the system's control
    BOOL CreateEx(CWnd* parent, DWORD controlStyle = 0, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                  UINT id = 0xE801);
    /// Sets the panes. @param ids string ids, ID_SEPARATOR for a pane without; null: panes to be set by SetPaneInfo()
    BOOL SetIndicators(const UINT* ids, int count);

    /// @return index of the first pane of that id, -1 for none
    int CommandToIndex(UINT id) const;
    /// @return 0 outside the range; the other questions answer nothing there, the setters FALSE
    UINT GetItemID(int index) const;
    void GetItemRect(int index, LPRECT rect) const;
    CString GetPaneText(int index) const;
    void GetPaneText(int index, CString& text) const;
    BOOL SetPaneText(int index, LPCTSTR text, BOOL update = TRUE);
    void GetPaneInfo(int index, UINT& id, UINT& style, int& width) const;
    /// @param width of the text room in pixels
    void SetPaneInfo(int index, UINT id, UINT style, int width);
    UINT GetPaneStyle(int index) const;
    void SetPaneStyle(int index, UINT style);

    /// Owner-draw panes; does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

protected:
    struct Pane
    {
        UINT id = 0;
        UINT style = SBPS_NORMAL;
        int width = 0;
        CString text;
    };

    bool IsPane(int index) const;
    int TextWidth(const CString& text) const;
    void LoadIndicator(Pane& pane, UINT id);
    /// Gives the control the right edges of the panes.
    void UpdateEdges();
    void ShowPaneText(int index);

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg LRESULT OnSetText(WPARAM, LPARAM lParam);
    afx_msg LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTextLength(WPARAM, LPARAM);
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);

    std::vector<Pane> m_panes;
    int m_nMinHeight = 0;

    DECLARE_MESSAGE_MAP()
};
