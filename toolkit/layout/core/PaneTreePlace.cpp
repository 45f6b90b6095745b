#include "toolkit/layout/core/PaneTree.h"

#include <algorithm>

namespace vorn
{
namespace
{

bool operator==(const RECT& first, const RECT& second)
{
    return first.left == second.left && first.top == second.top && first.right == second.right &&
           first.bottom == second.bottom;
}

long long LengthOf(const RECT& rect, PaneAxis axis)
{
    return axis == PaneAxis::Width ? static_cast<long long>(rect.right) - rect.left
                                   : static_cast<long long>(rect.bottom) - rect.top;
}

LONG& NearEdge(RECT& rect, PaneAxis axis)
{
    return axis == PaneAxis::Width ? rect.left : rect.top;
}

LONG& FarEdge(RECT& rect, PaneAxis axis)
{
    return axis == PaneAxis::Width ? rect.right : rect.bottom;
}

void Add(LONG& edge, long long distance)
{
    edge = ClampToInt(edge + distance);
}

void SetLength(RECT& rect, PaneAxis axis, long long length)
{
    FarEdge(rect, axis) = ClampToInt(NearEdge(rect, axis) + length);
}

void Shrink(RECT& rect, const RECT& by, PaneAxis axis)
{
    RECT margins = by;
    Add(NearEdge(rect, axis), NearEdge(margins, axis));
    Add(FarEdge(rect, axis), -static_cast<long long>(FarEdge(margins, axis)));
}

/// A control is never turned inside out.
RECT Upright(RECT rect)
{
    rect.right = std::max(rect.left, rect.right);
    rect.bottom = std::max(rect.top, rect.bottom);
    return rect;
}

/// A fixed control keeps its present size and stands where its mode aligns it in the slot, sticking out of a slot that
/// is too small.
void AlignInSlot(RECT& slot, unsigned mode, const RECT& present, PaneAxis axis)
{
    const PaneAxisBits bits = BitsOf(axis);
    if ((mode & bits.fixed) == 0 || (mode & bits.stretch) != 0)
    {
        return;
    }
    const long long size = LengthOf(present, axis);
    const long long room = LengthOf(slot, axis) - size;
    if ((mode & bits.alignCenter) == bits.alignCenter)
    {
        Add(NearEdge(slot, axis), room / 2);
    }
    else if ((mode & bits.alignFar) != 0)
    {
        Add(NearEdge(slot, axis), room);
    }
    SetLength(slot, axis, size);
}

} // namespace

bool PaneTree::Place(const RECT& area, PaneMoves& moves)
{
    if (m_nodes.empty())
    {
        return true;
    }
    if (!m_isMeasured)
    {
        Measure();
    }
    m_nodes[0].place = area;
    std::size_t index = 0;
    while (index < m_nodes[0].span)
    {
        if (!m_nodes[index].isShown)
        {
            ForgetPlaces(index, index + m_nodes[index].span);
            index += m_nodes[index].span;
            continue;
        }
        if (!PlaceNode(index, moves))
        {
            return false;
        }
        ++index;
    }
    return true;
}

void PaneTree::ForgetPlaces(std::size_t first, std::size_t end)
{
    for (; first < end; ++first)
    {
        m_nodes[first].place = {};
    }
}

bool PaneTree::PlaceNode(std::size_t index, PaneMoves& moves)
{
    switch (m_nodes[index].kind)
    {
    case Kind::Item:
        return PlaceItem(index, moves);
    case Kind::Foreign:
        return moves.PlaceForeign(index, m_nodes[index].place);
    case Kind::Pane:
        break;
    }
    return PlacePane(index, moves);
}

bool PaneTree::PlaceItem(std::size_t index, PaneMoves& moves)
{
    Node& node = m_nodes[index];
    if (node.detail < 0)
    {
        return true;
    }
    Control& control = m_controls[static_cast<std::size_t>(node.detail)];
    if ((node.mode & (panemode::kFixedWidth | panemode::kFixedHeight)) != 0)
    {
        AlignInSlot(node.place, node.mode, control.present, PaneAxis::Width);
        AlignInSlot(node.place, node.mode, control.present, PaneAxis::Height);
    }
    if (control.keepsHeight)
    {
        SetLength(node.place, PaneAxis::Height, LengthOf(control.present, PaneAxis::Height));
    }
    node.place = Upright(node.place);
    if (node.place == control.present)
    {
        return true;
    }
    const bool isMoved = moves.Move(index, node.place);
    control.present = isMoved ? node.place : control.present;
    return isMoved;
}

/// Where a pane's own control goes: a box that is fixed along its orientation is held to its own size.
RECT PaneTree::FrameOf(const Node& node) const
{
    const bool isBox = m_panes[static_cast<std::size_t>(node.detail)].frame == PaneFrame::Box;
    const PaneAxis main = node.isVertical ? PaneAxis::Height : PaneAxis::Width;
    const int ownSize = node.size[0];
    RECT frame = node.place;
    if (isBox && (node.mode & BitsOf(main).fixed) != 0 && ownSize != 0)
    {
        SetLength(frame, main, ownSize);
    }
    return Upright(frame);
}

bool PaneTree::PlaceFrame(std::size_t index, PaneMoves& moves)
{
    Node& node = m_nodes[index];
    PaneSpec& pane = m_panes[static_cast<std::size_t>(node.detail)];
    node.place = FrameOf(node);
    if (!pane.hasControl || node.place == pane.present)
    {
        return true;
    }
    const bool isMoved = moves.Move(index, node.place);
    pane.present = isMoved ? node.place : pane.present;
    return isMoved;
}

bool PaneTree::PlacePane(std::size_t index, PaneMoves& moves)
{
    const Node& node = m_nodes[index];
    const PaneSpec& pane = m_panes[static_cast<std::size_t>(node.detail)];
    if (pane.frame != PaneFrame::None && !PlaceFrame(index, moves))
    {
        return false;
    }
    RECT area = node.place;
    if (pane.frame == PaneFrame::Tab && pane.hasControl)
    {
        area = moves.DisplayArea(index, area);
    }
    else
    {
        Shrink(area, pane.insets, PaneAxis::Width);
        Shrink(area, pane.insets, PaneAxis::Height);
    }
    PlaceChildren(index, area);
    return true;
}

void PaneTree::PlaceChildren(std::size_t index, RECT area)
{
    const Node& node = m_nodes[index];
    const PaneSpec& pane = m_panes[static_cast<std::size_t>(node.detail)];
    const PaneAxis main = node.isVertical ? PaneAxis::Height : PaneAxis::Width;
    ReadShares(index, main);
    if (m_shares.empty())
    {
        return;
    }
    Shrink(area, pane.borders, Across(main));
    RECT inner = area;
    RECT borders = pane.borders;
    const long long edges = static_cast<long long>(NearEdge(borders, main)) + FarEdge(borders, main);
    const long long gaps = (static_cast<long long>(m_shares.size()) - 1) * pane.spacing;
    ShareExtent(m_shares, LengthOf(area, main) - gaps - edges);
    WritePlaces(index, main, area, SumOf(NearEdge(inner, main), NearEdge(borders, main)));
}

void PaneTree::ReadShares(std::size_t index, PaneAxis axis)
{
    const PaneAxisBits bits = BitsOf(axis);
    m_shares.clear();
    for (std::size_t i = index + 1; i < index + m_nodes[index].span; i += m_nodes[i].span)
    {
        if (m_nodes[i].isShown)
        {
            m_shares.push_back(ShareOf(m_nodes[i], bits, static_cast<int>(axis)));
        }
    }
}

ExtentShare PaneTree::ShareOf(const Node& node, const PaneAxisBits& bits, int axis)
{
    ExtentShare share;
    share.least = node.least[axis];
    share.most = node.most[axis];
    if ((node.mode & bits.fixed) != 0)
    {
        share.role = ExtentShare::Role::Fixed;
        share.stretches = (node.mode & bits.stretch) != 0;
        share.size = node.kind == Kind::Pane && node.size[axis] == 0 ? share.least : node.size[axis];
    }
    else if ((node.mode & bits.percent) != 0)
    {
        share.role = ExtentShare::Role::Percent;
        share.percent = node.size[axis];
    }
    return share;
}

void PaneTree::WritePlaces(std::size_t index, PaneAxis axis, const RECT& area, int start)
{
    const ExtentShare* share = m_shares.data();
    const int spacing = m_panes[static_cast<std::size_t>(m_nodes[index].detail)].spacing;
    for (std::size_t i = index + 1; i < index + m_nodes[index].span; i += m_nodes[i].span)
    {
        Node& child = m_nodes[i];
        if (!child.isShown)
        {
            continue;
        }
        child.place = area;
        const int end = SumOf(start, share->size);
        NearEdge(child.place, axis) = start;
        FarEdge(child.place, axis) = end;
        start = SumOf(end, spacing);
        ++share;
    }
}

} // namespace vorn
