#include "toolkit/layout/LayoutDescription.h"
#include "toolkit/layout/Panes.h"

#include "framework/core/Exception.h"

#include <typeinfo>

namespace LayoutManagement
{

LayoutMgr::Pane::Pane(LayoutMgr* pMgr, Orientation orientation, ResizeMode modeResize, int sizeSpacing, int sizeBorder,
                      int sizeSecondary)
    : PaneBase(pMgr, modeResize), m_orientation(orientation), m_sizeSecondary(sizeSecondary),
      m_sizeSpacing(sizeSpacing), m_borderLeft(sizeBorder), m_borderTop(sizeBorder), m_borderRight(sizeBorder),
      m_borderBottom(sizeBorder)
{
}

LayoutMgr::Orientation LayoutMgr::Pane::orientation() const
{
    return m_orientation;
}

int LayoutMgr::Pane::count() const
{
    return static_cast<int>(m_children.GetSize());
}

LayoutMgr::CPaneBase LayoutMgr::Pane::child(int index) const
{
    if (index < 0 || index >= count())
    {
        AfxThrowInvalidArgException();
    }
    return m_children[index];
}

bool LayoutMgr::Pane::append(const CPaneBase& child)
{
    const Pane* inner = dynamic_cast<Pane*>(child.GetPane());
    if (!child || child.GetPane() == this || (inner != nullptr && inner->holds(this)))
    {
        return false;
    }
    m_children.Add(child);
    return true;
}

bool LayoutMgr::Pane::holds(const PaneBase* node) const
{
    for (int i = 0; i < count(); ++i)
    {
        const PaneBase* child = m_children[i].GetPane();
        const Pane* inner = dynamic_cast<const Pane*>(child);
        if (child == node || (inner != nullptr && inner->holds(node)))
        {
            return true;
        }
    }
    return false;
}

void LayoutMgr::Pane::setBorders(const CRect& borders)
{
    m_borderLeft = static_cast<int>(borders.left);
    m_borderTop = static_cast<int>(borders.top);
    m_borderRight = static_cast<int>(borders.right);
    m_borderBottom = static_cast<int>(borders.bottom);
}

void LayoutMgr::Pane::describe(LayoutDescription& description)
{
    // A derived class may measure and place in its own way.
    const std::type_info& kind = typeid(*this);
    if (kind == typeid(Pane) || kind == typeid(PaneCtrl) || kind == typeid(PaneTab))
    {
        describePane(description);
    }
    else
    {
        PaneBase::describe(description);
    }
}

void LayoutMgr::Pane::describePane(LayoutDescription& description)
{
    vorn::PaneSpec shape;
    shape.isVertical = m_orientation == Vertical;
    shape.mode = static_cast<unsigned>(m_modeResize);
    shape.ownSize = m_sizeSecondary;
    shape.spacing = m_sizeSpacing;
    shape.borders = {m_borderLeft, m_borderTop, m_borderRight, m_borderBottom};
    const HWND frame = describeFrame(shape, description);
    description.OpenPane(*this, shape, frame);
    for (int i = 0; i < count(); ++i)
    {
        m_children[i]->describe(description);
    }
    description.ClosePane();
}

HWND LayoutMgr::Pane::describeFrame(vorn::PaneSpec&, const LayoutDescription&)
{
    return nullptr;
}

bool LayoutMgr::Pane::placeAt(CRect& rect)
{
    LayoutDescription description(window(), LayoutPass::Place);
    describePane(description);
    return description.Place(rect);
}

bool LayoutMgr::Pane::isShown(bool)
{
    LayoutDescription description(window(), LayoutPass::Measure);
    describePane(description);
    description.Tree().Measure();
    return description.Tree().IsShown(0);
}

int LayoutMgr::Pane::measured(int parentExtent, bool isHeight, int what)
{
    LayoutDescription description(window(), LayoutPass::Measure);
    describePane(description);
    return MeasuredOf(description.Tree(), parentExtent, isHeight, what);
}

int LayoutMgr::Pane::getWidth(int parentExtent)
{
    return measured(parentExtent, false, kWanted);
}

int LayoutMgr::Pane::getHeight(int parentExtent)
{
    return measured(parentExtent, true, kWanted);
}

int LayoutMgr::Pane::getMinWidth()
{
    return measured(0, false, kLeast);
}

int LayoutMgr::Pane::getMinHeight()
{
    return measured(0, true, kLeast);
}

int LayoutMgr::Pane::getMaxWidth()
{
    return measured(0, false, kMost);
}

int LayoutMgr::Pane::getMaxHeight()
{
    return measured(0, true, kMost);
}

} // namespace LayoutManagement
