#pragma once

#include "apps/sample/pages/Page.h"
#include "apps/sample/ui/PageTips.h"

#include <memory>
#include <vector>

/// The sample's window inside the frame: a band with the application's name, a rail with the pages' names, and the
/// page in front, scrolled when it is higher than the window.
class PageView : public CView
{
public:
    PageView();

    /// The pages in the order of the rail.
    const std::vector<std::unique_ptr<Page>>& Pages() const;

    std::size_t CurrentPage() const;
    void ShowPage(std::size_t index);

    /// Shows the page whose name begins with `name`, in either case. False when there is none, or when there are
    /// several and none of exactly that name.
    bool ShowPage(const std::string& name);

    /// Where the chart is centred.
    LatLon ChartCenter() const;

    /// What explains the controls.
    ToolTipCtrlEx& Tips();

    /// Takes all values anew and paints them.
    void RefreshPage();

protected:
    void OnDraw(CDC* dc) override;
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    BOOL OnPreparePrinting(CPrintInfo* info) override;
    void OnPrint(CDC* dc, CPrintInfo* info) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnSetFocus(CWnd* before);
    afx_msg void OnPageCommand(UINT command);
    afx_msg void OnUpdatePageCommand(CCmdUI* item);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()

private:
    CRect PageArea() const;
    CRect ScrolledPage() const;
    CRect RailArea() const;
    CRect RailItem(std::size_t index) const;
    Page* OwnerOf(UINT command) const;
    bool MoveFocus(bool backwards);
    void Layout();
    void ShowScrollPosition(int height);
    void ScrollTo(int position);
    void ScrollByKey(UINT key);
    void PaintBand(CDC& dc) const;
    void PaintRail(CDC& dc) const;
    void PaintPage(CDC& dc) const;

    std::unique_ptr<Theme> m_theme;
    PageTips m_tips;
    std::vector<std::unique_ptr<Page>> m_pages;
    std::size_t m_current = 0;
    int m_scroll = 0;
    int m_pageHeight = 0;
};
