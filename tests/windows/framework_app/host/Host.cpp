// A host without main function: an application object is all. It writes what it finds into the file that its command
// line names, one fact a line, and ends as the command line says.
#include "framework/include/afxwin.h"

#include <fstream>

namespace
{

class HostCommandLine : public CCommandLineInfo
{
public:
    CString flags;
    void ParseParam(const char* text, BOOL flag, BOOL last) override
    {
        if (flag)
        {
            flags = flags + "[" + text + "]";
        }
        CCommandLineInfo::ParseParam(text, flag, last);
    }
};

class HostWindow : public CWnd
{
    void PostNcDestroy() override
    {
        delete this;
    }
};

class HostApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        HostCommandLine line;
        ParseCommandLine(line);
        m_facts.open(line.m_strFileName.GetString());
        m_facts << "init\n"
                << "exe " << m_pszExeName << '\n'
                << "app " << m_pszAppName << '\n'
                << "profile " << m_pszProfileName << '\n'
                << "help " << m_pszHelpFilePath << '\n'
                << "show " << m_nCmdShow << '\n'
                << "instance " << (m_hInstance == ::GetModuleHandle(nullptr)) << '\n'
                << "command " << m_lpCmdLine << '\n'
                << "flags " << line.flags.GetString() << '\n';
        if (line.flags.Find("[refuse]") >= 0)
        {
            return FALSE;
        }
        if (line.flags.Find("[windowless]") < 0)
        {
            MakeMainWindow();
        }
        return TRUE;
    }
    int ExitInstance() override
    {
        m_facts << "exit main window " << (m_pMainWnd != nullptr) << '\n';
        return CWinApp::ExitInstance() + 40;
    }
    ~HostApp() override
    {
        m_facts << "gone\n";
    }

private:
    void MakeMainWindow()
    {
        auto* window = new HostWindow; // deletes itself in PostNcDestroy
        window->CreateEx(0, AfxRegisterWndClass(0), "host", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr);
        m_pMainWnd = window;
        window->PostMessage(WM_CLOSE);
    }
    std::ofstream m_facts;
};

HostApp theApp;

} // namespace
