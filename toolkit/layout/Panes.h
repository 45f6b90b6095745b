#pragma once

/// @file
/// The nodes of a layout. They are made by LayoutMgr and held by its handles; windows that need a node of their own
/// kind derive one.
#include "framework/core/Array.h"
#include "toolkit/layout/LayoutMgr.h"

namespace vorn
{
struct PaneSpec;
}

namespace LayoutManagement
{

class LayoutDescription;

/// A node. Sizes are pixels; what is not shown measures 0.
class VORNCOMMON_API LayoutMgr::PaneBase
{
public:
    PaneBase(LayoutMgr* pMgr, ResizeMode modeResize);
    PaneBase(const PaneBase&) = delete;
    PaneBase& operator=(const PaneBase&) = delete;
    virtual ~PaneBase();

    /// The size for a parent of that extent: the fixed one, a percentage of the parent's, else -1 (0 of a pane).
    virtual int getWidth(int parentExtent) = 0;
    virtual int getHeight(int parentExtent) = 0;
    virtual int getMinWidth() = 0;
    virtual int getMinHeight() = 0;
    /// -1 for no limit.
    virtual int getMaxWidth() = 0;
    virtual int getMaxHeight() = 0;
    /// Moves what the node stands for into the rectangle.
    /// @return false to end the placing
    virtual bool placeAt(CRect& rect) = 0;
    /// @param bShown the answer of a node without a control
    virtual bool isShown(bool bShown);

    ResizeMode mode() const;

protected:
    friend class LayoutMgr;
    friend class LayoutMgr::CPaneBase;
    friend class LayoutMgr::Pane;

    /// The window whose client coordinates the layout is in; null without one.
    HWND window() const;

    /// Adds the node, and what is below it, to a layout in numbers.
    virtual void describe(LayoutDescription& description);

    LayoutMgr* m_pMgr;
    ResizeMode m_modeResize;

private:
    LONG m_handles;
};

/// A leaf: one control, or a spacer.
class VORNCOMMON_API LayoutMgr::PaneItem : public LayoutMgr::PaneBase
{
public:
    /// @param hWnd null for a spacer; otherwise a size of 0 and a negative minimum mean the control's present size
    PaneItem(LayoutMgr* pMgr, HWND hWnd, ResizeMode modeResize, int sizeX, int sizeY, int sizeXMin, int sizeYMin);

    int getWidth(int parentExtent) override;
    int getHeight(int parentExtent) override;
    int getMinWidth() override;
    int getMinHeight() override;
    int getMaxWidth() override;
    int getMaxHeight() override;
    bool placeAt(CRect& rect) override;
    bool isShown(bool bShown) override;

protected:
    friend class LayoutDescription;

    void describe(LayoutDescription& description) override;

    int m_sizeX;
    int m_sizeY;
    int m_sizeXMin;
    int m_sizeYMin;
    HWND m_hWnd;
    bool m_bIsComboBox;

private:
    void describeItem(LayoutDescription& description);
    bool isThere() const;
    void takeSizes();
    int measured(int parentExtent, bool isHeight, int what);
    bool move(const RECT& rect);
    bool moveSimpleCombo(const RECT& rect);

    HWND m_hWndParent;
    RECT m_rectSlot;  ///< what a combo box with an open list was given last
    RECT m_rectTaken; ///< and what it took of it
};

/// An inner node: children one after the other.
class VORNCOMMON_API LayoutMgr::Pane : public LayoutMgr::PaneBase
{
public:
    Pane(LayoutMgr* pMgr, Orientation orientation, ResizeMode modeResize, int sizeSpacing, int sizeBorder,
         int sizeSecondary);

    int getWidth(int parentExtent) override;
    int getHeight(int parentExtent) override;
    int getMinWidth() override;
    int getMinHeight() override;
    int getMaxWidth() override;
    int getMaxHeight() override;
    bool placeAt(CRect& rect) override;
    bool isShown(bool bShown) override;

    Orientation orientation() const;
    int count() const;
    /// Throws the invalid-argument exception for an index outside the children.
    CPaneBase child(int index) const;
    /// False, with nothing appended, for a null handle and for one whose tree holds this pane.
    bool append(const CPaneBase& child);
    void setBorders(const CRect& borders);

protected:
    void describe(LayoutDescription& description) override;
    /// What the pane's control adds. @return the control, null for none
    virtual HWND describeFrame(vorn::PaneSpec& shape, const LayoutDescription& description);

    Orientation m_orientation;
    CArray<CPaneBase, const CPaneBase&> m_children;
    int m_sizeSecondary;
    int m_sizeSpacing;
    int m_borderLeft;
    int m_borderTop;
    int m_borderRight;
    int m_borderBottom;

private:
    void describePane(LayoutDescription& description);
    int measured(int parentExtent, bool isHeight, int what);
    bool holds(const PaneBase* node) const;
};

/// A pane inside a control that is moved with it.
class VORNCOMMON_API LayoutMgr::PaneCtrl : public LayoutMgr::Pane
{
public:
    PaneCtrl(LayoutMgr* pMgr, HWND hWnd, Orientation orientation, ResizeMode modeResize, int sizeSpacing,
             int sizeBorder, int sizeTopExtra, int sizeSecondary);

protected:
    HWND describeFrame(vorn::PaneSpec& shape, const LayoutDescription& description) override;

    HWND m_hWnd;
    int m_sizeTopExtra;

private:
    HWND m_hWndParent;
};

/// A pane in the display area of a tab control.
class VORNCOMMON_API LayoutMgr::PaneTab : public LayoutMgr::Pane
{
public:
    /// @param pTab null for a plain pane
    PaneTab(LayoutMgr* pMgr, CTabCtrl* pTab, Orientation orientation, ResizeMode modeResize, int sizeSpacing,
            int sizeBorder, int sizeSecondary);

protected:
    HWND describeFrame(vorn::PaneSpec& shape, const LayoutDescription& description) override;

    CTabCtrl* m_pTab;

private:
    HWND m_hWndTab;
    HWND m_hWndParent;
};

} // namespace LayoutManagement
