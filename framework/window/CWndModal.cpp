#include "framework/window/CWnd.h"

#include "framework/core/Exception.h"
#include "framework/dialog/CDataExchange.h"
#include "framework/window/CCmdUI.h"
#include "framework/window/MessageLoop.h"
#include "framework/window/ThreadState.h"
#include "framework/window/WindowAccess.h"

namespace
{

/// WM_SYSTIMER, by which the system blinks carets and scrolls menus; the header has no name for it.
constexpr UINT kSystemTimer = 0x0118;

/// One run of a modal loop. Touches the window's object only while it lives.
class ModalLoop
{
public:
    ModalLoop(CWnd& window, DWORD flags)
        : m_state(vorn::CurrentThreadState()), m_frame{&window, m_state.modal}, m_flags(flags),
          m_parent(::GetParent(window.m_hWnd)),
          m_showWhenIdle((flags & MLF_SHOWONIDLE) != 0 && !(window.GetStyle() & WS_VISIBLE))
    {
        AfxWindowAccess::Flags(window) |= kMarks;
        m_state.modal = &m_frame;
    }
    ModalLoop(const ModalLoop&) = delete;
    ModalLoop& operator=(const ModalLoop&) = delete;
    /// On every way out, WM_QUIT and exceptions included, a living object may run a loop again.
    ~ModalLoop()
    {
        m_state.modal = m_frame.outer;
        if (m_frame.window)
        {
            AfxWindowAccess::Flags(*m_frame.window) &= ~kMarks;
        }
    }

    /// Whether the loop ended by EndModalLoop with the object alive.
    bool Run()
    {
        const vorn::LoopScope scope;
        for (;;)
        {
            DoIdleWork();
            do
            {
                if (!GoesOn() || !vorn::PumpMessage())
                {
                    return EndEarly();
                }
                ShowIfAsked();
                if (!GoesOn())
                {
                    return m_frame.window != nullptr;
                }
                if (vorn::IsIdleMessage(vorn::LastPumpedMessage()))
                {
                    m_idle = true;
                    m_idleCount = 0;
                }
            } while (vorn::HasMessage());
        }
    }

private:
    static constexpr UINT kMarks = CWnd::kStateModalLoop | CWnd::kStateContinueModal;

    bool GoesOn() const
    {
        return m_frame.window && m_frame.window->ContinueModal();
    }

    /// WM_QUIT is for the outermost loop: it is handed on.
    bool EndEarly()
    {
        if (!GoesOn())
        {
            return m_frame.window != nullptr;
        }
        ::PostQuitMessage(static_cast<int>(vorn::LastPumpedMessage().wParam));
        return false;
    }

    void Show()
    {
        m_showWhenIdle = false;
        m_frame.window->ShowWindow(SW_SHOWNORMAL);
        if (m_frame.window) // unless its handlers ended it
        {
            m_frame.window->UpdateWindow();
        }
    }

    void ShowIfAsked()
    {
        const UINT message = vorn::LastPumpedMessage().message;
        if (m_showWhenIdle && m_frame.window && (message == kSystemTimer || message == WM_SYSKEYDOWN))
        {
            Show();
        }
    }

    void DoIdleWork()
    {
        while (m_idle && GoesOn() && !vorn::HasMessage())
        {
            if (m_showWhenIdle)
            {
                Show();
            }
            m_idle = GoesOn() && KickIdle();
        }
        vorn::FreeTemporaryObjects();
    }

    /// @return whether the window asks for more idle time
    bool KickIdle()
    {
        const HWND window = m_frame.window->m_hWnd;
        if (!(m_flags & MLF_NOIDLEMSG) && m_parent && m_idleCount == 0)
        {
            ::SendMessage(m_parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(window));
        }
        return !(m_flags & MLF_NOKICKIDLE) && ::SendMessage(window, WM_KICKIDLE, MSGF_DIALOGBOX, m_idleCount++) != 0;
    }

    vorn::ThreadState& m_state;
    vorn::ModalFrame m_frame;
    DWORD m_flags;
    HWND m_parent;
    bool m_showWhenIdle;
    bool m_idle = true;
    LPARAM m_idleCount = 0;
};

} // namespace

int CWnd::RunModalLoop(DWORD dwFlags)
{
    if (!m_hWnd || (m_nFlags & kStateModalLoop))
    {
        return -1;
    }
    m_nModalResult = -1;
    // Without a proper end the object may be gone.
    return ModalLoop(*this, dwFlags).Run() ? m_nModalResult : -1;
}

BOOL CWnd::ContinueModal()
{
    return (m_nFlags & kStateContinueModal) != 0;
}

void CWnd::EndModalLoop(int nResult)
{
    m_nModalResult = nResult;
    if (m_nFlags & kStateContinueModal)
    {
        m_nFlags &= ~static_cast<UINT>(kStateContinueModal);
        PostMessage(WM_NULL); // wakes a loop that waits for a message
    }
}

void CWnd::DoDataExchange(CDataExchange*)
{
}

namespace
{

bool Exchange(CWnd& window, BOOL save)
{
    try
    {
        CDataExchange exchange(&window, save);
        window.DoDataExchange(&exchange);
        return true;
    }
    catch (CUserException* exception)
    {
        exception->Delete(); // the user was told already
    }
    catch (CException* exception)
    {
        exception->ReportError(MB_ICONEXCLAMATION);
        exception->Delete();
    }
    return false;
}

} // namespace

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    /// Holds control notifications back for a scope, which an exception of another family may leave.
    struct Hold
    {
        ~Hold()
        {
            flags = (flags & ~static_cast<UINT>(kStateUpdatingData)) | before;
        }
        UINT& flags;
        UINT before;
    };
    const Hold hold{m_nFlags, m_nFlags & kStateUpdatingData};
    m_nFlags |= kStateUpdatingData;
    return Exchange(*this, bSaveAndValidate);
}

namespace
{

/// Only plain push buttons are disabled for want of a handler: other controls keep state.
bool MayBeDisabled(HWND control)
{
    const LRESULT code = ::SendMessage(control, WM_GETDLGCODE, 0, 0);
    return (code & DLGC_BUTTON) != 0 && (code & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON)) != 0;
}

} // namespace

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CCmdUI state;
        state.m_nID = static_cast<UINT>(::GetDlgCtrlID(child));
        state.m_pOther = FromHandle(child);
        CWnd* permanent = FromHandlePermanent(child);
        const int reflected = static_cast<int>(MAKELONG(0xFFFF, WM_REFLECT_BASE + WM_COMMAND));
        if (permanent && permanent->OnCmdMsg(0, reflected, &state, nullptr))
        {
            continue; // the control updates itself
        }
        if (CCmdTarget::OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr))
        {
            continue; // this window, a bar for instance, knows its controls better than the target does
        }
        state.DoUpdate(pTarget, bDisableIfNoHndler && MayBeDisabled(child));
    }
}
