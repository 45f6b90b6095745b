#pragma once

/// @file
/// The strip at a side of a frame in which bars are docked.
#include "framework/bars/CControlBar.h"
#include "framework/bars/core/DockRows.h"
#include <vector>

/// A dock: the parent of bars that are docked at one side of a frame, or of the bar in a floating frame. The frame
/// makes its docks in EnableDocking(). It keeps its bars in rows from the frame's edge on (for bottom and right: toward
/// it); a bar that is hidden keeps its place there.
class HOSTFRAMEWORK_API CDockBar : public CControlBar
{
    DECLARE_DYNAMIC(CDockBar)

public:
    CDockBar();
    ~CDockBar() override;

    /// @param style window styles and the side, one of CBRS_ALIGN_
    /// @param id one of AFX_IDW_DOCKBAR_
    BOOL Create(CWnd* parent, DWORD style, UINT id);

    /// Takes a bar in, from wherever it is. The frame's layout is the caller's task.
    /// @param rect where, on the screen; null: in a new row behind the others
    void DockControlBar(CControlBar* bar, LPCRECT rect = nullptr);
    /// Takes a bar in at a place of before.
    void DockControlBar(CControlBar* bar, const vorn::DockPlace& place);
    /// Forgets a bar, which stays a child window until another dock takes it.
    void RemoveControlBar(CControlBar* bar);

    /// Place of a bar of this dock.
    vorn::DockPlace PlaceOf(const CControlBar& bar) const;
    int GetDockedCount() const;
    int GetRowCount() const;
    /// Bars row by row. @return null outside the range
    CControlBar* GetDockedControlBar(int index) const;
    int GetDockedVisibleCount() const;

    BOOL IsDockBar() const override;
    /// Whether this is the dock of a floating frame.
    BOOL IsFloating() const override;
    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

protected:
    afx_msg void OnDestroy();
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);

private:
    struct Entry
    {
        CControlBar* bar;
        int wanted;
    };
    struct Row
    {
        std::vector<Entry> entries;
        vorn::DockBand band; ///< at the last layout
    };

    void PutIn(CControlBar& bar, vorn::DockRowChoice choice, int wanted);
    void InsertEntry(CControlBar& bar, vorn::DockRowChoice choice, int wanted);
    /// Takes a bar out of the rows. @return where @p choice is then
    vorn::DockRowChoice TakeOut(const CControlBar& bar, vorn::DockRowChoice choice);
    DWORD StyleFor(CControlBar& bar) const;
    DWORD LayoutMode(const CControlBar& bar) const;
    vorn::DockArrangement Arrange() const;
    void PlaceBars(const vorn::DockArrangement& arrangement);
    void RetireIfEmpty();

    std::vector<Row> m_rows;
    int m_available = 0;              ///< length along the edge
    DWORD m_floatAlign = 0;           ///< floating: which way the bar lies
    vorn::DockArrangement m_arranged; ///< of the layout that is going on

    friend class CFloatingBarFrame;
    friend class CFrameWnd;

    DECLARE_MESSAGE_MAP()
};
