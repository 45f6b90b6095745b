#pragma once

#include "toolkit/layout/LayoutMgr.h"
#include "toolkit/layout/core/PaneTree.h"

#include <windows.h>

#include <vector>

namespace LayoutManagement
{

/// Whether a control that a node was declared for is still there: not gone, and in the parent it had then.
bool IsStillThere(HWND control, HWND parent);

/// Its own style says so, whether or not its parent is shown.
bool HasVisibleStyle(HWND control);

/// What a layout is described for. Limits do not depend on where the controls are: to measure them, no control is asked
/// for its place.
enum class LayoutPass
{
    Measure,
    Place
};

/// One pass over a layout: the nodes write themselves into a tree of numbers with the present places of their controls,
/// and what the tree moves goes back to the windows.
class LayoutDescription : private vorn::PaneMoves
{
public:
    /// @param window the one whose client coordinates the layout is in
    LayoutDescription(HWND window, LayoutPass pass);

    /// The controls of the items from a node down; null for none.
    static std::vector<HWND> ControlsOf(const LayoutMgr::PaneBase* node);

    /// The present place of a control in the layout's coordinates; empty while the layout is only measured.
    RECT PlaceOf(HWND control) const;

    void AddItem(LayoutMgr::PaneItem& pane, const vorn::PaneItemSpec& item, HWND control);
    void AddForeign(LayoutMgr::PaneBase& pane, const vorn::PaneForeignSpec& foreign);
    void OpenPane(LayoutMgr::Pane& pane, const vorn::PaneSpec& shape, HWND control);
    void ClosePane();

    vorn::PaneTree& Tree()
    {
        return m_tree;
    }
    /// @return false when a move failed
    bool Place(const RECT& area);

private:
    struct Target
    {
        LayoutMgr::PaneBase* pane;
        LayoutMgr::PaneItem* item;
        HWND control;
    };

    static void AppendControls(const LayoutMgr::PaneBase& node, std::vector<HWND>& controls);
    bool Move(std::size_t node, const RECT& rect) override;
    RECT DisplayArea(std::size_t node, const RECT& rect) override;
    bool PlaceForeign(std::size_t node, const RECT& slot) override;
    RECT InParentOf(HWND control, const RECT& rect) const;

    HWND m_window;
    LayoutPass m_pass;
    POINT m_origin; ///< of the window's client area on the screen
    bool m_isMirrored;
    vorn::PaneTree m_tree;
    std::vector<Target> m_targets;
};

/// Which of the first node's figures.
inline constexpr int kWanted = 0;
inline constexpr int kLeast = 1;
inline constexpr int kMost = 2;
int MeasuredOf(vorn::PaneTree& tree, int parentExtent, bool isHeight, int what);

} // namespace LayoutManagement
