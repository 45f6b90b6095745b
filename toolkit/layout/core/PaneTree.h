#pragma once

/// @file
/// A layout as numbers: panes and items in the order in which they were declared, measured from the leaves up and
/// placed from the root down. It knows no windows: their sizes and whether they are shown are told when the tree is
/// built, and what must move is told to a PaneMoves.
#include "toolkit/layout/core/PaneMode.h"
#include "toolkit/layout/core/ShareExtent.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorn
{

/// A leaf: one control, or a spacer without one.
struct PaneItemSpec
{
    unsigned mode = 0;        ///< panemode bits
    int width = 0;            ///< fixed: pixels; percent: 0 to 100
    int height = 0;           ///< likewise
    int minimumWidth = 0;     ///< where the width is not fixed; less than 5 counts as 5
    int minimumHeight = 0;    ///< likewise
    bool hasControl = false;  ///< a spacer is always shown and never placed
    bool isShown = true;      ///< of the control
    bool keepsHeight = false; ///< the control's height stays as it is (a combo box whose list drops down)
    RECT present{};           ///< where the control is now
};

/// What stands around the children of a pane.
enum class PaneFrame : unsigned char
{
    None,
    Box, ///< a group box or similar; its insets are what it keeps for its caption
    Tab  ///< a tab control, which is asked for the area that it leaves
};

/// An inner node: children one after the other.
struct PaneSpec
{
    bool isVertical = false;
    unsigned mode = 0; ///< panemode bits
    int ownSize = 0;   ///< pixels where the pane is fixed, a percentage where it has a percent bit, on both axes
    int spacing = 0;   ///< between shown children
    RECT borders{};    ///< left, top, right and bottom, in pixels
    RECT insets{};     ///< what the pane's control keeps for itself on each side, beyond the borders
    PaneFrame frame = PaneFrame::None;
    bool hasControl = false;   ///< the frame exists and is moved with the pane
    bool isShownAlone = false; ///< shown even when no child is: a visible tab control
    RECT present{};            ///< where the control is now
};

/// A node that measures and places itself.
struct PaneForeignSpec
{
    unsigned mode = 0;
    int width = 0; ///< its answer for a fixed width, or the percentage
    int height = 0;
    int least[2]{};                      ///< minimum width and height
    int most[2]{kUnbounded, kUnbounded}; ///< maximum width and height
    bool isShown = true;
    bool countsAsControl = true;
};

/// What a placing moves. Nodes are numbered in the order of their declaration, from 0.
class PaneMoves
{
public:
    virtual ~PaneMoves() = default;

    /// The node's control goes to `rect`, which differs from where it was; never inside out.
    /// @return false to end the placing.
    virtual bool Move(std::size_t node, const RECT& rect) = 0;

    /// Where in a tab control that stands at `rect` the children go.
    virtual RECT DisplayArea(std::size_t node, const RECT& rect) = 0;

    /// A node that places itself gets its slot.
    /// @return false to end the placing.
    virtual bool PlaceForeign(std::size_t node, const RECT& slot);
};

/// The tree. Built with OpenPane(), Add() and ClosePane(); one root.
class PaneTree
{
public:
    void Clear();
    /// Room for so many nodes, most of them controls, before the tree has to grow.
    void Reserve(std::size_t nodes);

    /// @return the node's number. What follows until its ClosePane() is its children.
    std::size_t OpenPane(const PaneSpec& pane);
    void ClosePane();
    std::size_t Add(const PaneItemSpec& item);
    std::size_t Add(const PaneForeignSpec& foreign);

    std::size_t Count() const
    {
        return m_nodes.size();
    }

    /// Shown states and limits of every node. Placing does it when it has not been done since the tree was changed.
    void Measure();

    /// After Measure(): a node that is not shown measures 0.
    bool IsShown(std::size_t node) const;
    int Least(std::size_t node, PaneAxis axis) const;
    int Most(std::size_t node, PaneAxis axis) const;

    /// What the node answers for a parent of so many pixels: -1 for a greedy item, 0 for a greedy pane.
    int Wanted(std::size_t node, PaneAxis axis, int parentExtent) const;

    /// Places the root into the area.
    /// @return false when a move failed; what would have followed has stayed where it was.
    bool Place(const RECT& area, PaneMoves& moves);

    /// Where the last placing put the node: the slot of a pane, the control's place of an item. Empty for what was not
    /// placed.
    const RECT& PlaceOf(std::size_t node) const
    {
        return m_nodes[node].place;
    }

    /// Hides or shows an item's control.
    void Show(std::size_t node, bool isShown);

private:
    enum class Kind : std::uint8_t
    {
        Item,
        Foreign,
        Pane
    };

    /// What every node has; a cache line of it, as large trees are walked on every change of size.
    struct Node
    {
        std::uint16_t mode = 0;
        Kind kind = Kind::Item;
        bool isVertical : 1 = false;
        bool countsAsControl : 1 = false; ///< it or something below it is a control
        bool isShown : 1 = false;         ///< of a pane as measured
        std::uint32_t span = 1;           ///< nodes from this one to its last descendant
        std::int32_t detail = -1;         ///< index of its pane or control
        int size[2]{};
        int least[2]{}; ///< of an item and a foreign node: while it is shown
        int most[2]{};
        RECT place{};
    };

    struct Control
    {
        RECT present;
        bool keepsHeight;
    };

    Node& Append(Kind kind, unsigned mode, int width, int height);
    static void LimitItem(Node& node, PaneAxis axis, int minimum);
    void MeasurePane(std::size_t index);
    bool PlaceNode(std::size_t index, PaneMoves& moves);
    bool PlaceItem(std::size_t index, PaneMoves& moves);
    bool PlacePane(std::size_t index, PaneMoves& moves);
    RECT FrameOf(const Node& node) const;
    void PlaceChildren(std::size_t index, RECT area);
    void ReadShares(std::size_t index, PaneAxis axis);
    void WritePlaces(std::size_t index, PaneAxis axis, const RECT& area, int start);
    static ExtentShare ShareOf(const Node& node, const PaneAxisBits& bits, int axis);
    bool PlaceFrame(std::size_t index, PaneMoves& moves);
    void CloseAll();
    void ForgetPlaces(std::size_t first, std::size_t end);

    std::vector<Node> m_nodes;
    std::vector<PaneSpec> m_panes;
    std::vector<std::size_t> m_paneNodes; ///< the node of each pane
    std::vector<Control> m_controls;
    std::vector<std::size_t> m_open;   ///< panes without their end
    std::vector<ExtentShare> m_shares; ///< of the pane being placed
    bool m_isMeasured = false;
};

} // namespace vorn
