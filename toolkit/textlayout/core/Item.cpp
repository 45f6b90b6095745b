#include "toolkit/textlayout/core/Item.h"

#include "files/core/NoThrow.h"
#include "toolkit/textlayout/core/LayoutNumber.h"

#include <algorithm>

namespace TextLayout
{

namespace
{
/// Puts what a node itself has in the place of what was measured.
void OwnSize(const Item& node, CSize& size)
{
    int own = 0;
    size.cx = node.Get("width", own) ? own : size.cx;
    size.cy = node.Get("height", own) ? own : size.cy;
}
} // namespace

Item::Item() = default;

Item::~Item() = default;

bool Item::Add(Item* child)
{
    if (child == nullptr || child->m_parent != nullptr)
    {
        return false;
    }
    for (const Item* node = this; node != nullptr; node = node->m_parent)
    {
        if (node == child)
        {
            return false;
        }
    }
    m_children.reserve(m_children.size() + 1); // so that keeping it cannot fail half way
    m_children.emplace_back(child);
    child->m_parent = this;
    return true;
}

bool Item::ComputeSize(CDC* dc)
{
    return LayChildren(
        [dc](Item& child, CSize& size)
        {
            return child.ComputeSize(dc) && SizeOf(child, dc, size);
        });
}

bool Item::ComputeLayout(CDC* dc)
{
    return LayChildren(
        [dc](Item& child, CSize& size)
        {
            return child.ComputeLayout(dc) && SizeOf(child, dc, size);
        });
}

bool Item::CalcSize(CDC* dc, CSize& size, int& fontHeight)
{
    int smallest = kNoFontHeight;
    const bool done = LayChildren(
        [dc, &smallest](Item& child, CSize& childSize)
        {
            return Measure(child, dc, childSize, smallest);
        });
    size = m_computed;
    fontHeight = smallest;
    return done;
}

void Item::SetSize(CSize& size, int& fontHeight)
{
    int x = 0;
    int y = 0;
    Get("x", x);
    Get("y", y);
    Set("width", size.cx);
    Set("height", size.cy);
    Set("fontHeight", fontHeight);
    Set("right", vorn::AddClamped(x, size.cx));
    Set("bottom", vorn::AddClamped(y, size.cy));
}

void Item::Draw(CDC* dc)
{
    for (const std::unique_ptr<Item>& child : m_children)
    {
        child->Draw(dc);
    }
}

const Item::Children& Item::GetChildren() const
{
    return m_children;
}

bool Item::LayChildren(const Lay& lay)
{
    return vorn::NoThrow(false,
                         [&]
                         {
                             CSize largest(0, 0);
                             for (const std::unique_ptr<Item>& child : m_children)
                             {
                                 HandDown(*child);
                                 CSize size(0, 0);
                                 if (!lay(*child, size))
                                 {
                                     return false;
                                 }
                                 largest.cx = std::max(largest.cx, size.cx);
                                 largest.cy = std::max(largest.cy, size.cy);
                             }
                             SetComputed(largest);
                             return true;
                         });
}

bool Item::Measure(Item& child, CDC* dc, CSize& size, int& smallest)
{
    int fontHeight = kNoFontHeight;
    if (!child.CalcSize(dc, size, fontHeight))
    {
        return false;
    }
    smallest = std::min(smallest, fontHeight);
    OwnSize(child, size);
    return true;
}

void Item::HandDown(Item& child) const
{
    if (Has("width") || !child.Has("maxWidth"))
    {
        ImposeSpace("width", "maxWidth", child);
    }
    if (Has("height") || !child.Has("maxHeight"))
    {
        ImposeSpace("height", "maxHeight", child);
    }
    HandDownFont(child);
}

void Item::HandDownFont(Item& child) const
{
    if (!child.Has("fontHeight"))
    {
        child.Copy("fontHeight", this);
    }
}

void Item::ImposeSpace(LPCSTR sizeKey, LPCSTR maxKey, Item& child) const
{
    if (!child.Copy(sizeKey, maxKey, this))
    {
        child.Copy(maxKey, this);
    }
}

bool Item::GetSpace(LPCSTR sizeKey, LPCSTR maxKey, int& space) const
{
    return Get(sizeKey, space) || Get(maxKey, space);
}

bool Item::SizeOf(Item& child, CDC* dc, CSize& size)
{
    int fontHeight = 0;
    if (child.m_hasComputed)
    {
        size = child.m_computed;
    }
    else if ((!child.Has("width") || !child.Has("height")) && !child.CalcSize(dc, size, fontHeight))
    {
        return false;
    }
    OwnSize(child, size);
    return true;
}

CSize Item::GetComputed() const
{
    return m_computed;
}

void Item::SetComputed(CSize size)
{
    m_computed = size;
    m_hasComputed = true;
}

} // namespace TextLayout
