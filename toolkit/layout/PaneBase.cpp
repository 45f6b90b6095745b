#include "toolkit/layout/LayoutDescription.h"
#include "toolkit/layout/Panes.h"

#include "framework/window/CWnd.h"

namespace LayoutManagement
{

LayoutMgr::PaneBase::PaneBase(LayoutMgr* pMgr, ResizeMode modeResize)
    : m_pMgr(pMgr), m_modeResize(modeResize), m_handles(0)
{
}

LayoutMgr::PaneBase::~PaneBase() = default;

bool LayoutMgr::PaneBase::isShown(bool bShown)
{
    return bShown;
}

LayoutMgr::ResizeMode LayoutMgr::PaneBase::mode() const
{
    return m_modeResize;
}

HWND LayoutMgr::PaneBase::window() const
{
    return m_pMgr != nullptr ? m_pMgr->m_pWnd->GetSafeHwnd() : nullptr;
}

void LayoutMgr::PaneBase::describe(LayoutDescription& description)
{
    constexpr int kWhole = 100; // of which a percentage is itself
    vorn::PaneForeignSpec foreign;
    foreign.mode = static_cast<unsigned>(m_modeResize);
    foreign.isShown = isShown(true);
    foreign.width = getWidth(kWhole);
    foreign.height = getHeight(kWhole);
    foreign.least[0] = getMinWidth();
    foreign.least[1] = getMinHeight();
    foreign.most[0] = getMaxWidth();
    foreign.most[1] = getMaxHeight();
    if (dynamic_cast<Pane*>(this) != nullptr) // of which a fixed size of 0 is the minimum
    {
        foreign.width = foreign.width == 0 ? foreign.least[0] : foreign.width;
        foreign.height = foreign.height == 0 ? foreign.least[1] : foreign.height;
    }
    description.AddForeign(*this, foreign);
}

} // namespace LayoutManagement
