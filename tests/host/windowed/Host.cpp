#include <VornCommon.h>

#include <cstdio>

// A host of the usual kind: a global application object, no main function. It opens its main
// window, says so, closes it, and lets the message loop end.
namespace
{

class Host : public CWinApp, public VornCommonApp
{
public:
    Host() : CWinApp("WindowedHostTest")
    {
        VornCommonApp::Inst(this);
    }

    BOOL InitInstance() override
    {
        const CRect place(40, 40, 440, 240);
        if (!m_window.CreateEx(0, AfxRegisterWndClass(0), "A host of three lines", WS_OVERLAPPEDWINDOW, place, nullptr,
                               0))
        {
            return FALSE;
        }
        m_pMainWnd = &m_window;
        m_window.ShowWindow(SW_SHOW);
        CString title;
        m_window.GetWindowText(title);
        std::printf("opened: %s, visible %d\n", title.GetString(), m_window.IsWindowVisible());
        std::fflush(stdout);
        m_window.PostMessage(WM_CLOSE);
        return TRUE;
    }

    int ExitInstance() override
    {
        std::printf("closed\n");
        std::fflush(stdout);
        CWinApp::ExitInstance();
        return 7;
    }

private:
    CWnd m_window;
};

Host theHost;

} // namespace
