#include "toolkit/layout/core/PaneTree.h"

#include <algorithm>

namespace vorn
{

bool PaneMoves::PlaceForeign(std::size_t, const RECT&)
{
    return true;
}

void PaneTree::Clear()
{
    m_nodes.clear();
    m_panes.clear();
    m_paneNodes.clear();
    m_controls.clear();
    m_open.clear();
    m_isMeasured = false;
}

void PaneTree::Reserve(std::size_t nodes)
{
    m_nodes.reserve(nodes);
    m_controls.reserve(nodes);
}

PaneTree::Node& PaneTree::Append(Kind kind, unsigned mode, int width, int height)
{
    Node& node = m_nodes.emplace_back();
    node.mode = static_cast<std::uint16_t>(mode);
    node.kind = kind;
    node.size[0] = width;
    node.size[1] = height;
    m_isMeasured = false;
    return node;
}

std::size_t PaneTree::OpenPane(const PaneSpec& pane)
{
    Node& node = Append(Kind::Pane, pane.mode, pane.ownSize, pane.ownSize);
    node.isVertical = pane.isVertical;
    node.detail = static_cast<std::int32_t>(m_panes.size());
    m_panes.push_back(pane);
    m_paneNodes.push_back(m_nodes.size() - 1);
    m_open.push_back(m_nodes.size() - 1);
    return m_open.back();
}

void PaneTree::ClosePane()
{
    if (!m_open.empty())
    {
        m_nodes[m_open.back()].span = static_cast<std::uint32_t>(m_nodes.size() - m_open.back());
        m_open.pop_back();
    }
}

void PaneTree::CloseAll()
{
    while (!m_open.empty())
    {
        ClosePane();
    }
}

void PaneTree::LimitItem(Node& node, PaneAxis axis, int minimum)
{
    const int a = static_cast<int>(axis);
    const bool isFixed = (node.mode & BitsOf(axis).fixed) != 0;
    node.least[a] = isFixed ? node.size[a] : std::max(minimum, kLeastExtent);
    node.most[a] = isFixed ? node.size[a] : kUnbounded;
}

std::size_t PaneTree::Add(const PaneItemSpec& item)
{
    Node& node = Append(Kind::Item, item.mode, item.width, item.height);
    LimitItem(node, PaneAxis::Width, item.minimumWidth);
    LimitItem(node, PaneAxis::Height, item.minimumHeight);
    node.countsAsControl = item.hasControl;
    node.isShown = item.isShown || !item.hasControl;
    if (item.hasControl)
    {
        node.detail = static_cast<std::int32_t>(m_controls.size());
        m_controls.push_back({item.present, item.keepsHeight});
    }
    return m_nodes.size() - 1;
}

std::size_t PaneTree::Add(const PaneForeignSpec& foreign)
{
    Node& node = Append(Kind::Foreign, foreign.mode, foreign.width, foreign.height);
    for (const int axis : {0, 1})
    {
        node.least[axis] = foreign.least[axis];
        node.most[axis] = foreign.most[axis];
    }
    node.countsAsControl = foreign.countsAsControl;
    node.isShown = foreign.isShown;
    return m_nodes.size() - 1;
}

void PaneTree::Show(std::size_t node, bool isShown)
{
    if (m_nodes[node].kind == Kind::Item && m_nodes[node].countsAsControl)
    {
        m_nodes[node].isShown = isShown;
        m_isMeasured = false;
    }
}

bool PaneTree::IsShown(std::size_t node) const
{
    return m_nodes[node].isShown;
}

int PaneTree::Least(std::size_t node, PaneAxis axis) const
{
    return m_nodes[node].isShown ? m_nodes[node].least[static_cast<int>(axis)] : 0;
}

int PaneTree::Most(std::size_t node, PaneAxis axis) const
{
    return m_nodes[node].isShown ? m_nodes[node].most[static_cast<int>(axis)] : 0;
}

} // namespace vorn
