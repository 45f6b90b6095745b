#pragma once

#include "toolkit/layout/core/PaneTree.h"

#include <array>
#include <ostream>
#include <vector>

// What the tests of layouts share: short declarations, and a window system that only writes down.
namespace vorn::test
{

inline RECT Rect(int left, int top, int right, int bottom)
{
    return {left, top, right, bottom};
}

/// A rectangle that can be compared and shown.
using Edges = std::array<int, 4>;

inline Edges EdgesOf(const RECT& rect)
{
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

/// Writes down what is moved; a tab control keeps 4 pixels at each side and 25 at the top.
class RecordedMoves : public PaneMoves
{
public:
    struct Moved
    {
        std::size_t node;
        Edges place;
        bool operator==(const Moved&) const = default;
    };

    bool Move(std::size_t node, const RECT& rect) override
    {
        if (node == failsAt)
        {
            return false;
        }
        moved.push_back({node, EdgesOf(rect)});
        return true;
    }

    RECT DisplayArea(std::size_t, const RECT& rect) override
    {
        return {rect.left + 4, rect.top + 25, rect.right - 4, rect.bottom - 4};
    }

    bool PlaceForeign(std::size_t node, const RECT& slot) override
    {
        foreign.push_back({node, EdgesOf(slot)});
        return node != failsAt;
    }

    std::size_t failsAt = static_cast<std::size_t>(-1);
    std::vector<Moved> moved;
    std::vector<Moved> foreign;
};

inline std::ostream& operator<<(std::ostream& out, const RecordedMoves::Moved& moved)
{
    return out << "node " << moved.node << " to " << moved.place[0] << ' ' << moved.place[1] << ' ' << moved.place[2]
               << ' ' << moved.place[3];
}

/// A control of 20 by 10 pixels in the corner.
inline PaneItemSpec Control(unsigned mode, int width = 20, int height = 10, int minimumWidth = 0, int minimumHeight = 0)
{
    PaneItemSpec item;
    item.mode = mode;
    item.width = width;
    item.height = height;
    item.minimumWidth = minimumWidth;
    item.minimumHeight = minimumHeight;
    item.hasControl = true;
    item.present = {0, 0, 20, 10};
    return item;
}

/// Room that grows along one axis.
inline PaneItemSpec Spacer(bool isVertical)
{
    PaneItemSpec item;
    item.mode = isVertical ? panemode::kFixedWidth : panemode::kFixedHeight;
    item.minimumWidth = item.minimumHeight = -5;
    return item;
}

inline PaneSpec Row(int spacing = 0, int border = 0)
{
    PaneSpec pane;
    pane.spacing = spacing;
    pane.borders = {border, border, border, border};
    return pane;
}

inline PaneSpec Column(int spacing = 0, int border = 0)
{
    PaneSpec pane = Row(spacing, border);
    pane.isVertical = true;
    return pane;
}

inline PaneItemSpec Hidden(PaneItemSpec item)
{
    item.isShown = false;
    return item;
}

} // namespace vorn::test
