#pragma once

#include "toolkit/layout/core/PaneTree.h"

#include <algorithm>
#include <initializer_list>

// The trees of the layout benchmarks.
namespace vorn::bench
{

/// Writes nothing and refuses nothing: what is left is the layout itself.
class NoMoves : public PaneMoves
{
public:
    bool Move(std::size_t, const RECT&) override
    {
        ++moved;
        return true;
    }
    RECT DisplayArea(std::size_t, const RECT& rect) override
    {
        return rect;
    }
    long long moved = 0;
};

inline constexpr int kPaneDepth = 12;

/// Controls of every kind in turn.
inline PaneItemSpec Leaf(int number)
{
    using namespace panemode;
    constexpr unsigned kModes[] = {0, kFixedWidth | kFixedHeight, kFixedHeight, kPercentWidth,
                                   kFixedWidth | kAlignRight};
    PaneItemSpec leaf;
    leaf.mode = kModes[number % 5];
    leaf.width = 12 + number % 9;
    leaf.height = 8 + number % 5;
    leaf.minimumWidth = number % 7;
    leaf.hasControl = true;
    leaf.isShown = number % 50 != 49;
    leaf.present = {0, 0, leaf.width, leaf.height};
    return leaf;
}

/// So many leaves, the deepest `kPaneDepth` panes down: every pane holds some leaves and two smaller panes.
template <class Tree>
void Fill(Tree& tree, int& leaf, int leaves, int depth = 1)
{
    PaneSpec pane;
    pane.isVertical = depth % 2 != 0;
    pane.spacing = 3;
    pane.borders = {2, 2, 2, 2};
    tree.OpenPane(pane);
    const int here = depth == kPaneDepth ? leaves : std::min(leaves, 2);
    for (int i = 0; i < here; ++i)
    {
        tree.Add(Leaf(leaf++));
    }
    for (const int part : {(leaves - here) / 2, leaves - here - (leaves - here) / 2})
    {
        if (part != 0)
        {
            Fill(tree, leaf, part, depth + 1);
        }
    }
    tree.ClosePane();
}

/// A tree that is measured and placed into another size each time.
class ChangingTree
{
public:
    explicit ChangingTree(int leaves)
    {
        int leaf = 0;
        Fill(m_tree, leaf, leaves);
    }
    void Change()
    {
        ++m_step;
        m_tree.Measure();
        m_tree.Place({0, 0, 200000 + m_step % 100, 150000 - m_step % 90}, m_moves);
    }
    double Nodes() const
    {
        return static_cast<double>(m_tree.Count());
    }

private:
    PaneTree m_tree;
    NoMoves m_moves;
    int m_step = 0;
};

} // namespace vorn::bench
