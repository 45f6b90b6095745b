#pragma once

#include "toolkit/layout/core/PaneTree.h"

#include <algorithm>
#include <climits>
#include <span>
#include <string>
#include <vector>

// Layouts made of any bytes, and what holds for every one of them.
namespace vorn::fuzz
{

/// Bytes as numbers; zeros after their end.
class PaneBytes
{
public:
    explicit PaneBytes(std::span<const unsigned char> bytes) : m_bytes(bytes)
    {
    }
    bool IsEmpty() const
    {
        return m_bytes.empty();
    }
    int Byte()
    {
        if (m_bytes.empty())
        {
            return 0;
        }
        const int byte = m_bytes.front();
        m_bytes = m_bytes.subspan(1);
        return byte;
    }
    /// Any int: short ones, ends of the range and what four bytes give.
    int Wild()
    {
        const int kind = Byte();
        if (kind < 200)
        {
            return kind - 60;
        }
        unsigned number = 0;
        for (int i = 0; i < 4; ++i)
        {
            number = number << 8 | static_cast<unsigned>(Byte());
        }
        return static_cast<int>(number);
    }
    RECT WildRect()
    {
        RECT rect{};
        rect.left = Wild();
        rect.top = Wild();
        rect.right = Wild();
        rect.bottom = Wild();
        return rect;
    }

private:
    std::span<const unsigned char> m_bytes;
};

/// A tree of any numbers. It must end, stay within the numbers' range and turn nothing inside out.
class WildPanes : private PaneMoves
{
public:
    /// What is wrong, empty for nothing.
    std::string Try(std::span<const unsigned char> bytes)
    {
        PaneBytes input(bytes);
        const RECT area = input.WildRect();
        m_failsAt = static_cast<std::size_t>(input.Byte());
        while (!input.IsEmpty())
        {
            AddNode(input);
        }
        m_tree.Place(area, *this);
        for (std::size_t node = 0; node < m_tree.Count(); ++node)
        {
            m_tree.Wanted(node, PaneAxis::Width, area.right);
            m_tree.Show(node, node % 3 != 0);
        }
        m_tree.Place(area, *this);
        return m_complaint;
    }

private:
    void AddNode(PaneBytes& input)
    {
        const int kind = input.Byte();
        const int mode = input.Byte() | (input.Byte() & 3) << 8;
        if (kind < 60)
        {
            m_tree.ClosePane();
        }
        else if (kind < 120)
        {
            AddPane(input, kind, mode);
        }
        else if (kind < 140)
        {
            AddForeign(input, kind, mode);
        }
        else
        {
            AddItem(input, kind, mode);
        }
    }

    void AddPane(PaneBytes& input, int kind, int mode)
    {
        PaneSpec pane;
        pane.mode = static_cast<unsigned>(mode);
        pane.isVertical = kind % 2 != 0;
        pane.frame = static_cast<PaneFrame>(kind % 3);
        pane.hasControl = kind % 5 != 0;
        pane.isShownAlone = kind % 7 == 0;
        pane.ownSize = input.Wild();
        pane.spacing = input.Wild();
        pane.borders = input.WildRect();
        pane.insets = input.WildRect();
        m_tree.OpenPane(pane);
    }

    void AddForeign(PaneBytes& input, int kind, int mode)
    {
        PaneForeignSpec foreign;
        foreign.mode = static_cast<unsigned>(mode);
        foreign.width = input.Wild();
        foreign.height = input.Wild();
        foreign.least[0] = input.Wild();
        foreign.most[0] = input.Wild();
        foreign.isShown = kind % 3 != 0;
        foreign.countsAsControl = kind % 2 != 0;
        m_tree.Add(foreign);
    }

    void AddItem(PaneBytes& input, int kind, int mode)
    {
        PaneItemSpec item;
        item.mode = static_cast<unsigned>(mode);
        item.hasControl = kind % 4 != 0;
        item.isShown = kind % 5 != 0;
        item.keepsHeight = kind % 7 == 0;
        item.width = input.Wild();
        item.height = input.Wild();
        item.minimumWidth = input.Wild();
        item.minimumHeight = input.Wild();
        item.present = kind % 11 == 0 ? input.WildRect() : RECT{0, 0, 30, 20};
        m_tree.Add(item);
    }

    bool Move(std::size_t node, const RECT& rect) override
    {
        if (rect.right < rect.left || rect.bottom < rect.top)
        {
            m_complaint = "a control is turned inside out";
        }
        return node != m_failsAt;
    }
    RECT DisplayArea(std::size_t, const RECT& rect) override
    {
        return rect;
    }

    PaneTree m_tree;
    std::size_t m_failsAt = 0;
    std::string m_complaint;
};

/// A tree of sizes as windows have them, whose leaves tell their slots. More holds for it: minima, order, exact sums.
class SoundPanes : private PaneMoves
{
public:
    /// What is wrong, empty for nothing.
    std::string Try(std::span<const unsigned char> bytes)
    {
        PaneBytes input(bytes);
        const int width = input.Byte() * 8;
        const int height = input.Byte() * 8;
        Open(input);
        while (!input.IsEmpty() && m_nodes.size() < 4000)
        {
            AddNode(input);
        }
        if (!m_tree.Place({0, 0, width, height}, *this))
        {
            return "the placing did not go to its end";
        }
        for (std::size_t node = 0; node < m_nodes.size() && m_complaint.empty(); ++node)
        {
            CheckPane(node);
        }
        return m_complaint;
    }

private:
    struct Node
    {
        bool isPane = false;
        std::size_t parent = 0;
        unsigned mode = 0;
        int sizes[2]{}; ///< fixed or in percent, on each axis
        PaneSpec pane;
        std::vector<std::size_t> children;
    };

    /// What the shown children of a pane are along it.
    struct Kinds
    {
        long long fixed = 0; ///< pixels that fixed children took before they stretched
        bool hasPercents = false;
        bool hasGreedy = false;
        bool stretches = false;
        bool areFree = true;  ///< greedy children stand at no limit
        bool wantsFit = true; ///< what percent children want lies within their limits
        bool isWanted = true; ///< percent children have what they want
        bool mustBeFull = false;
        int smallest = INT_MAX; ///< greedy child
        int largest = INT_MIN;
    };

    void AddNode(PaneBytes& input)
    {
        const int kind = input.Byte();
        if (kind < 50 && m_open.size() > 1)
        {
            m_tree.ClosePane();
            m_open.pop_back();
        }
        else if (kind < 110)
        {
            Open(input);
        }
        else
        {
            AddLeaf(input);
        }
    }

    void Note(Node node)
    {
        if (!m_open.empty())
        {
            node.parent = m_open.back();
            m_nodes[node.parent].children.push_back(m_nodes.size());
        }
        m_nodes.push_back(std::move(node));
    }

    void Open(PaneBytes& input)
    {
        Node node;
        node.isPane = true;
        const int looks = input.Byte();
        node.pane.isVertical = looks % 2 != 0;
        node.pane.mode = node.mode = static_cast<unsigned>(input.Byte() & 0xF) | static_cast<unsigned>(looks & 0xC)
                                                                                     << 6;
        node.pane.ownSize = node.sizes[0] = node.sizes[1] = input.Byte() % 101;
        node.pane.spacing = looks >> 4;
        const int border = input.Byte() % 9;
        node.pane.borders = {border, border + 1, border + 2, border};
        m_tree.OpenPane(node.pane);
        Note(node);
        m_open.push_back(m_nodes.size() - 1);
    }

    void AddLeaf(PaneBytes& input)
    {
        const int looks = input.Byte();
        PaneForeignSpec leaf;
        leaf.mode = static_cast<unsigned>(looks & 0xF) | static_cast<unsigned>(looks & 0x30) << 4;
        leaf.isShown = looks < 0xE0;
        const int sizes[2]{input.Byte() % 101, input.Byte() % 101};
        for (const PaneAxis axis : {PaneAxis::Width, PaneAxis::Height})
        {
            const int a = static_cast<int>(axis);
            const bool isFixed = (leaf.mode & BitsOf(axis).fixed) != 0;
            leaf.least[a] = isFixed ? sizes[a] : std::max(kLeastExtent, input.Byte() / 2);
            leaf.most[a] = isFixed ? sizes[a] : input.Byte() % 4 == 0 ? leaf.least[a] + input.Byte() : kUnbounded;
            leaf.least[a] *= leaf.isShown;
            leaf.most[a] = leaf.isShown ? leaf.most[a] : 0;
        }
        leaf.width = sizes[0];
        leaf.height = sizes[1];
        m_tree.Add(leaf);
        Node node;
        node.mode = leaf.mode;
        node.sizes[0] = sizes[0];
        node.sizes[1] = sizes[1];
        Note(node);
    }

    bool Move(std::size_t, const RECT&) override
    {
        m_complaint = "something without a control was moved";
        return true;
    }
    RECT DisplayArea(std::size_t, const RECT& rect) override
    {
        return rect;
    }

    static int Near(const RECT& rect, bool isVertical)
    {
        return static_cast<int>(isVertical ? rect.top : rect.left);
    }
    static int Far(const RECT& rect, bool isVertical)
    {
        return static_cast<int>(isVertical ? rect.bottom : rect.right);
    }

    /// Children stand in order, one spacing apart, from border to border.
    void CheckPane(std::size_t index)
    {
        const Node& node = m_nodes[index];
        if (!node.isPane || !m_tree.IsShown(index))
        {
            return;
        }
        const bool isVertical = node.pane.isVertical;
        const RECT& area = m_tree.PlaceOf(index);
        const int start = Near(area, isVertical) + Near(node.pane.borders, isVertical);
        const int end = Far(area, isVertical) - Far(node.pane.borders, isVertical);
        int edge = start - node.pane.spacing;
        Kinds kinds = FixedOf(node);
        const long long gaps = (ShownOf(node) - 1LL) * node.pane.spacing;
        const int base = static_cast<int>(std::max(0LL, static_cast<long long>(end) - start - gaps - kinds.fixed));
        for (const std::size_t child : node.children)
        {
            if (m_tree.IsShown(child))
            {
                CheckChild(node, child, edge);
                edge = Far(m_tree.PlaceOf(child), isVertical);
                Include(kinds, child, isVertical, base);
            }
        }
        CheckSums(kinds, edge, end);
    }

    long long ShownOf(const Node& node) const
    {
        return std::count_if(node.children.begin(), node.children.end(),
                             [this](std::size_t child)
                             {
                                 return m_tree.IsShown(child);
                             });
    }

    Kinds FixedOf(const Node& node) const
    {
        Kinds kinds;
        const PaneAxisBits bits = BitsOn(node.pane.isVertical);
        const PaneAxis axis = node.pane.isVertical ? PaneAxis::Height : PaneAxis::Width;
        for (const std::size_t child : node.children)
        {
            const Node& kid = m_nodes[child];
            if (m_tree.IsShown(child) && (kid.mode & bits.fixed) != 0)
            {
                const int own = kid.sizes[static_cast<int>(axis)];
                kinds.fixed += kid.isPane && own == 0 ? m_tree.Least(child, axis) : own;
                kinds.stretches |= (kid.mode & bits.stretch) != 0;
            }
        }
        return kinds;
    }

    void Include(Kinds& kinds, std::size_t child, bool isVertical, int base) const
    {
        const PaneAxisBits bits = BitsOn(isVertical);
        const PaneAxis axis = isVertical ? PaneAxis::Height : PaneAxis::Width;
        const Node& kid = m_nodes[child];
        const RECT& place = m_tree.PlaceOf(child);
        const int size = Far(place, isVertical) - Near(place, isVertical);
        if ((kid.mode & bits.fixed) != 0)
        {
            return;
        }
        if ((kid.mode & bits.percent) != 0)
        {
            const long long want = static_cast<long long>(base) * kid.sizes[static_cast<int>(axis)] / 100;
            const int most = m_tree.Most(child, axis);
            kinds.hasPercents = true;
            kinds.wantsFit &= want >= m_tree.Least(child, axis) && (most < 0 || want <= most);
            kinds.isWanted &= want == size;
            return;
        }
        const bool isFree = m_tree.Most(child, axis) == kUnbounded && size > m_tree.Least(child, axis);
        kinds.hasGreedy = true;
        kinds.mustBeFull |= isFree; // it has taken whatever there was
        kinds.areFree &= isFree;
        kinds.smallest = std::min(kinds.smallest, size);
        kinds.largest = std::max(kinds.largest, size);
    }

    void CheckSums(const Kinds& kinds, int edge, int end)
    {
        if (kinds.mustBeFull && !kinds.hasPercents && edge != end)
        {
            m_complaint = "the sizes do not add up to the pane's length";
        }
        if (kinds.stretches && !kinds.hasPercents && !kinds.hasGreedy && edge < end)
        {
            m_complaint = "room is left although a child stretches";
        }
        if (kinds.hasGreedy && kinds.areFree && kinds.largest - kinds.smallest > 1)
        {
            m_complaint = "greedy children that stand at no limit do not share equally";
        }
        if (kinds.hasPercents && kinds.wantsFit && !kinds.isWanted)
        {
            m_complaint = "a child does not have the percentage that fits its limits";
        }
    }

    PaneAxisBits BitsOn(bool isVertical) const
    {
        return BitsOf(isVertical ? PaneAxis::Height : PaneAxis::Width);
    }
    /// A maximum below the minimum wins, as soon as there is room for the minimum.
    int LeastOf(std::size_t child, bool isVertical) const
    {
        const PaneAxis axis = isVertical ? PaneAxis::Height : PaneAxis::Width;
        const int least = m_tree.Least(child, axis);
        const int most = m_tree.Most(child, axis);
        return most == kUnbounded ? least : std::min(least, most);
    }

    void CheckChild(const Node& pane, std::size_t child, int edge)
    {
        const bool isVertical = pane.pane.isVertical;
        const RECT& place = m_tree.PlaceOf(child);
        const int size = Far(place, isVertical) - Near(place, isVertical);
        const bool isFixed = (m_nodes[child].mode & BitsOn(isVertical).fixed) != 0;
        if (Near(place, isVertical) != edge + pane.pane.spacing)
        {
            m_complaint = "a child does not stand one spacing after the one before";
        }
        if (!isFixed && size < LeastOf(child, isVertical))
        {
            m_complaint = "a child is smaller than its minimum";
        }
        if (size < 0)
        {
            m_complaint = "a child is turned inside out";
        }
        const RECT& area = m_tree.PlaceOf(m_nodes[child].parent);
        if (Near(place, !isVertical) != Near(area, !isVertical) + Near(pane.pane.borders, !isVertical) ||
            Far(place, !isVertical) != Far(area, !isVertical) - Far(pane.pane.borders, !isVertical))
        {
            m_complaint = "a child does not fill the pane across";
        }
    }

    PaneTree m_tree;
    std::vector<Node> m_nodes;
    std::vector<std::size_t> m_open;
    std::string m_complaint;
};

} // namespace vorn::fuzz
