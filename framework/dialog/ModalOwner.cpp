#include "framework/dialog/ModalOwner.h"

#include "framework/window/CWnd.h"

namespace vorn
{
namespace
{
/// Whether the window was enabled before.
bool DisableWindow(HWND window)
{
    if (!window || !::IsWindowEnabled(window))
        return false;
    ::EnableWindow(window, FALSE);
    return true;
}

void EnableAgain(HWND window, bool& disabled)
{
    if (disabled && ::IsWindow(window))
        ::EnableWindow(window, TRUE);
    disabled = false;
}
} // namespace

ModalOwner::ModalOwner(CWnd* parent)
{
    m_owner = CWnd::GetSafeOwner(parent, &m_top)->GetSafeHwnd();
    if (m_owner == ::GetDesktopWindow())
        m_owner = nullptr;
    if (m_top == m_owner)
        m_top = nullptr;
}

ModalOwner::~ModalOwner()
{
    Restore();
}

HWND ModalOwner::Handle() const
{
    return m_owner;
}

void ModalOwner::Disable()
{
    m_ownerDisabled = DisableWindow(m_owner);
    DisableTopOnly();
}

void ModalOwner::DisableTopOnly()
{
    m_topDisabled = DisableWindow(m_top);
}

void ModalOwner::Restore()
{
    EnableAgain(m_top, m_topDisabled);
    EnableAgain(m_owner, m_ownerDisabled);
}

void ModalOwner::Activate() const
{
    if (m_owner && ::IsWindow(m_owner))
        ::SetActiveWindow(m_owner);
}

void ModalOwner::NoteDialogDeleted()
{
    m_dialogDeleted = true;
}

bool ModalOwner::IsDialogDeleted() const
{
    return m_dialogDeleted;
}
} // namespace vorn
