#include "toolkit/layout/Panes.h"

namespace LayoutManagement
{

LayoutMgr::CPaneBase::CPaneBase() : m_pane(nullptr)
{
}

LayoutMgr::CPaneBase::CPaneBase(PaneBase* pane) : m_pane(pane)
{
    if (m_pane != nullptr)
    {
        ++m_pane->m_handles;
    }
}

LayoutMgr::CPaneBase::CPaneBase(const CPaneBase& other) : CPaneBase(other.m_pane)
{
}

LayoutMgr::CPaneBase& LayoutMgr::CPaneBase::operator=(const CPaneBase& other)
{
    CPaneBase before(other);
    PaneBase* const pane = before.m_pane;
    before.m_pane = m_pane;
    m_pane = pane;
    return *this;
}

LayoutMgr::CPaneBase::~CPaneBase()
{
    if (m_pane != nullptr && --m_pane->m_handles == 0)
    {
        delete m_pane; // the last of the handles that share it
    }
}

bool LayoutMgr::CPaneBase::IsValid() const
{
    return m_pane != nullptr;
}

bool LayoutMgr::CPaneBase::operator!() const
{
    return m_pane == nullptr;
}

LayoutMgr::PaneBase* LayoutMgr::CPaneBase::operator->() const
{
    return m_pane;
}

LayoutMgr::PaneBase* LayoutMgr::CPaneBase::GetPane() const
{
    return m_pane;
}

bool LayoutMgr::CPaneBase::operator==(const CPaneBase& other) const
{
    return m_pane == other.m_pane;
}

LayoutMgr::CPane::CPane() = default;

LayoutMgr::CPane::CPane(Pane* pane) : m_base(pane)
{
}

LayoutMgr::CPane LayoutMgr::CPane::operator<<(CPaneBase child)
{
    if (Pane* const pane = GetPane())
    {
        pane->append(child);
    }
    return *this;
}

LayoutMgr::CPane LayoutMgr::CPane::operator<<(CPane child)
{
    return *this << child.ConvertBase();
}

LayoutMgr::CPaneBase LayoutMgr::CPane::ConvertBase() const
{
    return m_base;
}

LayoutMgr::CPane::operator CPaneBase() const
{
    return m_base;
}

bool LayoutMgr::CPane::IsValid() const
{
    return m_base.IsValid();
}

bool LayoutMgr::CPane::operator!() const
{
    return !m_base;
}

LayoutMgr::Pane* LayoutMgr::CPane::operator->() const
{
    return GetPane();
}

LayoutMgr::Pane* LayoutMgr::CPane::GetPane() const
{
    return static_cast<Pane*>(m_base.GetPane()); // made of a Pane and of nothing else
}

bool LayoutMgr::CPane::operator==(const CPane& other) const
{
    return m_base == other.m_base;
}

} // namespace LayoutManagement
