#include "toolkit/layout/core/PaneTree.h"

#include <algorithm>

namespace vorn
{
namespace
{

/// What the children of a pane come to on one axis.
struct Along
{
    int least = 0;
    int most = 0;
    int counted = 0;  ///< children that have a minimum
    int withMost = 0; ///< children whose maximum is not 0
    bool isBounded = true;

    void Include(int childLeast, int childMost)
    {
        least = SumOf(least, childLeast > 0 ? std::max(childLeast, kLeastExtent) : 0);
        counted += childLeast > 0;
        most = SumOf(most, childMost);
        withMost += childMost != 0;
        isBounded = isBounded && childMost != kUnbounded;
    }
};

struct AcrossThem
{
    int least = 0;
    int most = 0;
    bool isEmpty = true;
    bool isBounded = true;

    void Include(int childLeast, int childMost)
    {
        least = isEmpty ? childLeast : std::max(least, childLeast);
        most = isEmpty ? childMost : std::max(most, childMost);
        isEmpty = false;
        isBounded = isBounded && childMost != kUnbounded;
    }
};

/// The borders and what the pane's control keeps for itself.
long long EdgesOf(const PaneSpec& pane, PaneAxis axis)
{
    const RECT& border = pane.borders;
    const RECT& inset = pane.insets;
    return axis == PaneAxis::Width ? static_cast<long long>(border.left) + border.right + inset.left + inset.right
                                   : static_cast<long long>(border.top) + border.bottom + inset.top + inset.bottom;
}

int LeastAlong(const Along& sum, int spacing, long long edges)
{
    return sum.counted == 0 ? 0 : ClampToInt((sum.counted - 1LL) * spacing + sum.least + edges);
}

/// One less than the plain sum, which windows have been sized by for as long as there are layouts.
int MostAlong(const Along& sum, int spacing, long long edges)
{
    if (!sum.isBounded)
    {
        return kUnbounded;
    }
    const long long most = sum.most - 1LL;
    return most < 0 ? 0 : ClampToInt(most + (sum.withMost - 1LL) * spacing + edges);
}

int LeastAcross(const AcrossThem& them, int fixedSize, long long edges)
{
    if (fixedSize != 0)
    {
        return fixedSize;
    }
    return them.least >= 1 ? ClampToInt(them.least + edges) : them.least;
}

/// Without the borders, which a bounded pane therefore does not get beyond its largest child.
int MostAcross(const AcrossThem& them, int fixedSize)
{
    if (fixedSize > 0)
    {
        return fixedSize;
    }
    return them.isBounded ? them.most : kUnbounded;
}

} // namespace

void PaneTree::Measure()
{
    CloseAll();
    // Backwards, what a pane holds comes before it.
    for (std::size_t pane = m_paneNodes.size(); pane-- != 0;)
    {
        MeasurePane(m_paneNodes[pane]);
    }
    m_isMeasured = true;
}

void PaneTree::MeasurePane(std::size_t index)
{
    Node& node = m_nodes[index];
    const PaneSpec& pane = m_panes[static_cast<std::size_t>(node.detail)];
    const PaneAxis main = node.isVertical ? PaneAxis::Height : PaneAxis::Width;
    const int m = static_cast<int>(main);
    const int x = 1 - m;
    Along along;
    AcrossThem across;
    bool hasControl = false;
    bool showsControl = false;
    bool showsAny = false;
    for (std::size_t i = index + 1; i < index + node.span; i += m_nodes[i].span)
    {
        const Node& child = m_nodes[i];
        hasControl |= child.countsAsControl;
        showsControl |= child.countsAsControl && child.isShown;
        showsAny |= child.isShown;
        along.Include(child.isShown ? child.least[m] : 0, child.isShown ? child.most[m] : 0);
        across.Include(child.isShown ? child.least[x] : 0, child.isShown ? child.most[x] : 0);
    }
    node.isShown = (hasControl ? showsControl : showsAny) || pane.isShownAlone;
    node.countsAsControl = hasControl || (pane.frame == PaneFrame::Tab && pane.hasControl);
    const bool isFixedAcross = (node.mode & BitsOf(Across(main)).fixed) != 0;
    const int fixedSize = isFixedAcross ? pane.ownSize : 0;
    node.least[m] = LeastAlong(along, pane.spacing, EdgesOf(pane, main));
    node.most[m] = MostAlong(along, pane.spacing, EdgesOf(pane, main));
    node.least[x] = LeastAcross(across, fixedSize, EdgesOf(pane, Across(main)));
    node.most[x] = MostAcross(across, fixedSize);
}

int PaneTree::Wanted(std::size_t node, PaneAxis axis, int parentExtent) const
{
    const Node& of = m_nodes[node];
    const int a = static_cast<int>(axis);
    const bool isFixed = (of.mode & BitsOf(axis).fixed) != 0;
    const bool isPercent = (of.mode & BitsOf(axis).percent) != 0;
    if (!of.isShown)
    {
        return 0;
    }
    const bool isPane = of.kind == Kind::Pane;
    if (isPercent && (isPane || !isFixed))
    {
        return PercentOf(parentExtent, of.size[a]);
    }
    return isFixed ? of.size[a] : isPane ? 0 : -1;
}

} // namespace vorn
