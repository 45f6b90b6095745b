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

/// The time during which a modal window runs.
class ModalTime
{
public:
    ModalTime(CWnd& window, ModalOwner*& running, ModalOwner& owner)
        : m_window(window), m_running(running), m_owner(owner)
    {
        m_running = &m_owner;
        m_owner.Disable();
    }
    ~ModalTime()
    {
        m_owner.Restore();
        if (!m_owner.IsDialogDeleted() && m_window.m_hWnd)
        {
            if (::GetActiveWindow() == m_window.m_hWnd)
                m_owner.Activate();
            m_window.DestroyWindow(); // which may delete the object
        }
        if (!m_owner.IsDialogDeleted())
            m_running = nullptr;
    }
    ModalTime(const ModalTime&) = delete;
    ModalTime& operator=(const ModalTime&) = delete;

private:
    CWnd& m_window;
    ModalOwner*& m_running;
    ModalOwner& m_owner;
};
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

bool RunModally(CWnd& window, ModalOwner*& running, ModalOwner& owner, const std::function<void()>& run)
{
    {
        const ModalTime time(window, running, owner);
        run();
    }
    return !owner.IsDialogDeleted();
}
} // namespace vorn
