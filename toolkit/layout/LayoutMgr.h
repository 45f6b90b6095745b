#pragma once

/// @file
/// The layout of resizable windows: a tree of panes, declared once when the window's controls exist, that keeps every
/// control in its place at every size.
///
/// A dialog declares, for example, a list that grows above a row of buttons at the right:
///
///     CPane root = CreateRoot(Vertical, 5, 0);
///     root << item(IDC_LIST, Greedy, 0, 0, 100, 60);
///     CPane buttons = pane(Horizontal, FixedHeight, 5, 0, 0);
///     buttons << itemSpace(Horizontal) << item(IDOK, FixedBoth, 0, 0, 0, 0) << item(IDCANCEL, FixedBoth, 0, 0, 0, 0);
///     root << buttons;
///     UpdateLayout(false);
///
/// Sizes are pixels. Null windows, ids without a control and windows that have gone are harmless: they leave an item
/// that measures like a spacer, or one that is not shown.
#include "frame/core/Export.h"
#include "framework/core/CString.h"
#include "framework/core/Geometry.h"

class CDC;
class CTabCtrl;
class CWnd;

namespace LayoutManagement
{

class VORNCOMMON_API LayoutMgr
{
public:
    /// The direction in which a pane lays out its children.
    enum Orientation
    {
        Horizontal = 0, ///< left to right
        Vertical = 1    ///< top to bottom
    };

    /// How a node takes its size, a set of bits. On an axis without its fixed and its percent bit it is greedy: it
    /// takes an equal share of what the others leave.
    enum ResizeMode
    {
        Greedy = 0,            ///< on both axes
        FixedWidth = 0x1,      ///< the stored width
        PercentWidth = 0x2,    ///< the stored width is a percentage of what fixed children leave
        FixedHeight = 0x4,     ///< the stored height
        PercentHeight = 0x8,   ///< the stored height is a percentage of what fixed children leave
        AlignRight = 0x20,     ///< a fixed width smaller than the slot stands at its right
        AlignHCenter = 0x30,   ///< in the middle
        AlignBottom = 0x80,    ///< a fixed height smaller than the slot stands at its bottom
        AlignVCenter = 0xC0,   ///< in the middle
        StretchWidth = 0x100,  ///< with FixedWidth: takes part in sharing what nobody else takes
        StretchHeight = 0x200, ///< with FixedHeight: likewise
        FixedBoth = FixedWidth | FixedHeight
    };
    friend constexpr ResizeMode operator|(ResizeMode first, ResizeMode second)
    {
        return static_cast<ResizeMode>(static_cast<unsigned>(first) | static_cast<unsigned>(second));
    }

    class PaneBase;
    class PaneItem;
    class Pane;
    class PaneCtrl;
    class PaneTab;

    /// Shares a node: copies name the same one, the last of them deletes it. May be null.
    class VORNCOMMON_API CPaneBase
    {
    public:
        CPaneBase();
        /// Takes the node, which must have been made with new.
        explicit CPaneBase(PaneBase* pane);
        CPaneBase(const CPaneBase& other);
        CPaneBase& operator=(const CPaneBase& other);
        ~CPaneBase();

        bool IsValid() const;
        bool operator!() const;
        PaneBase* operator->() const;
        /// The node, null when there is none.
        PaneBase* GetPane() const;
        bool operator==(const CPaneBase& other) const;

    private:
        PaneBase* m_pane;
    };

    /// Shares a node that has children.
    class VORNCOMMON_API CPane
    {
    public:
        CPane();
        /// Takes the pane, which must have been made with new.
        explicit CPane(Pane* pane);

        /// Appends a child. Nothing is appended to a null pane, nothing null, and no pane to itself or below itself.
        /// @return this handle's pane, so that declarations are written as a chain.
        CPane operator<<(CPaneBase child);
        CPane operator<<(CPane child);

        CPaneBase ConvertBase() const;
        operator CPaneBase() const;
        bool IsValid() const;
        bool operator!() const;
        Pane* operator->() const;
        Pane* GetPane() const;
        bool operator==(const CPane& other) const;

    private:
        CPaneBase m_base;
    };

    /// @param pWnd the window to lay out, which need not exist yet; null until SetWnd().
    explicit LayoutMgr(CWnd* pWnd = nullptr);
    virtual ~LayoutMgr();
    LayoutMgr(const LayoutMgr&) = delete;
    LayoutMgr& operator=(const LayoutMgr&) = delete;

    void SetWnd(CWnd* pWnd);

    /// Makes the root and lets go of the one before.
    /// @param sizeBorder spacing between its children
    /// @param sizeExtraBorder its four borders
    CPane CreateRoot(Orientation orientation, int sizeBorder = 0, int sizeExtraBorder = 0);

    /// A pane to be appended to another.
    /// @param sizeBorder spacing between its children
    /// @param sizeExtraBorder its four borders
    /// @param sizeSecondary its own size where its mode is fixed (0: its minimum), its percentage where it is percent
    CPane pane(Orientation orientation, ResizeMode modeResize = Greedy, int sizeBorder = 0, int sizeExtraBorder = 0,
               int sizeSecondary = 0);
    CPane pane(Orientation orientation, ResizeMode modeResize, int sizeBorder, const CRect& borders,
               int sizeSecondary = 0);

    /// A pane inside a control, such as a group box, that is moved with it.
    /// @param sizeTopExtra room for the control's caption above the children
    CPane paneCtrl(UINT nID, Orientation orientation, ResizeMode modeResize = Greedy, int sizeBorder = 0,
                   int sizeExtraBorder = 0, int sizeTopExtra = 0, int sizeSecondary = 0);
    CPane paneCtrl(CWnd* pWnd, Orientation orientation, ResizeMode modeResize = Greedy, int sizeBorder = 0,
                   int sizeExtraBorder = 0, int sizeTopExtra = 0, int sizeSecondary = 0);

    /// A pane in the display area of a tab control. The application shows and hides what belongs to each tab.
    CPane paneTab(CTabCtrl* pTab, Orientation orientation, ResizeMode modeResize = Greedy, int sizeBorder = 0,
                  int sizeExtraBorder = 0, int sizeSecondary = 0);

    /// One control.
    /// @param sizeX width in pixels or, with PercentWidth, 0 to 100; 0: the control's present width
    /// @param sizeY likewise its height
    /// @param sizeXMin least width where it is not fixed; negative: the control's present width
    /// @param sizeYMin likewise its height
    CPaneBase item(UINT nID, ResizeMode modeResize = Greedy, int sizeX = 0, int sizeY = 0, int sizeXMin = 0,
                   int sizeYMin = 0);
    CPaneBase item(CWnd* pWnd, ResizeMode modeResize = Greedy, int sizeX = 0, int sizeY = 0, int sizeXMin = 0,
                   int sizeYMin = 0);

    /// Room that grows along the orientation, 5 pixels at least.
    CPaneBase itemSpace(Orientation orientation);
    CPaneBase itemSpaceFixed(Orientation orientation, int size);
    /// Room as long as a control is now.
    CPaneBase itemSpaceLike(Orientation orientation, UINT nID);
    CPaneBase itemSpaceLike(Orientation orientation, CWnd* pWnd);
    /// Room as long as the gap between two controls is now, less the 10 pixels that two spacings of 5 add. Of controls
    /// that overlap: the distance of their near edges. May be negative.
    CPaneBase itemSpaceBetween(Orientation orientation, UINT nID1, UINT nID2);
    CPaneBase itemSpaceBetween(Orientation orientation, CWnd* pWnd1, CWnd* pWnd2);

    /// Measures and places, unless the layout is locked. A dialog or view that is smaller than its minimum grows first.
    /// @param bRedraw the whole window is painted anew as well
    virtual void UpdateLayout(bool bRedraw = false);
    /// Takes a new root first.
    void UpdateLayout(CPane paneRoot, bool bRedraw = false);

    /// Places the root into the rectangle, also while locked.
    void Layout(CRect& rect);
    /// The rectangle to fill: the window's client rectangle. Empty without a window.
    virtual CRect GetRect();

    /// A flag, not a count: one UnlockLayout() undoes any number of locks.
    void LockLayout(bool bLock = true);
    void UnlockLayout();
    bool LayoutLocked() const;

    /// The margin between client edge and root; 5 and 5 at first.
    void SetRootBorders(int cx, int cy);

    /// Fills the client area with the window's background, sparing the visible controls.
    void EraseBkgnd(CDC* pDC);

    /// Writes the window's placement into the application's profile as "WindowPlacement". A minimised window is written
    /// as a normal one. Nothing happens without a section, a window or an application object.
    /// @return true
    bool Save(LPCTSTR lpstrRegKey);
    /// Takes the placement from the profile when it is whole.
    /// @return true
    bool Load(LPCTSTR lpstrRegKey);

protected:
    /// The largest width and the largest height of the controls that exist.
    CSize GetMaxControlSize(HWND hWndParent, const UINT* pIds, int count);
    /// The least and the largest size of the whole window, -1 where there is no limit.
    /// @return false, with nothing changed, without a root or a window
    bool GetTrackSizes(CSize& sizeMin, CSize& sizeMax);
    bool HasWindow() const;
    /// Answers WM_GETMINMAXINFO with these sizes; touches nothing without a root and in an iconic or empty window.
    void LimitTrackSizes(MINMAXINFO* pInfo);
    /// Lets go of the root.
    void ReleaseRoot();

    CWnd* m_pWnd;
    CPane m_paneRoot;
    int m_sizeRootBorderX;
    int m_sizeRootBorderY;
    bool m_bLayoutLocked;

private:
    HWND Control(UINT nID) const;
    CPaneBase itemOf(HWND control, ResizeMode modeResize, int sizeX, int sizeY, int sizeXMin, int sizeYMin);
    CSize SizeAroundRoot();
    void GrowToMinimum();

    bool m_bUpdating;
};

} // namespace LayoutManagement

#include "toolkit/layout/Panes.h"
