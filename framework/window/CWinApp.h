#pragma once

/// @file
/// The application object.
#include "framework/core/CString.h"
#include "framework/window/CWinThread.h"

/// What the command line asked for, as CWinApp::ParseCommandLine reads it.
class HOSTFRAMEWORK_API CCommandLineInfo : public CObject
{
public:
    CCommandLineInfo();
    ~CCommandLineInfo() override;

    /// Called for each argument. Flags ('-' or '/' stripped): "p" print, "pt" print to the
    /// printer named next, "dde", "Automation", "Embedding", "Unregister", "Register". The first other argument
    /// is the file name.
    virtual void ParseParam(const char* pszParam, BOOL bFlag, BOOL bLast);

    BOOL m_bShowSplash;
    BOOL m_bRunEmbedded;
    BOOL m_bRunAutomated;
    enum
    {
        FileNew,
        FileOpen,
        FilePrint,
        FilePrintTo,
        FileDDE,
        AppRegister,
        AppUnregister,
        FileNothing = -1
    } m_nShellCommand;
    CString m_strFileName;
    CString m_strPrinterName;
    CString m_strDriverName;
    CString m_strPortName;

protected:
    void ParseParamFlag(const char* pszParam);
    void ParseParamNotFlag(const char* pszParam);
    void ParseLast(BOOL bLast);
};

/// The application: there is one in a process, usually a static object of the host. It is
/// the main thread's CWinThread. A program that never calls AfxWinInit (a tool, a test) may
/// use everything that needs its name, its main thread or its resources.
class HOSTFRAMEWORK_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    /// @param lpszAppName name; null takes the executable's at start-up
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance;
    LPTSTR m_lpCmdLine;        ///< command line without the program, set at start-up
    int m_nCmdShow;            ///< how to show the main window, set at start-up
    LPCTSTR m_pszAppName;      ///< name for messages and settings; null until start-up if none was given
    LPCTSTR m_pszExeName;      ///< module name without folder and extension
    LPCTSTR m_pszHelpFilePath; ///< module path with extension .HLP
    LPCTSTR m_pszProfileName;  ///< INI file name, or the product's part of the registry path
    LPCTSTR m_pszRegistryKey;  ///< company's part of the registry path; null: settings are in the INI file

    BOOL InitInstance() override;
    int Run() override;
    BOOL OnIdle(LONG lCount) override;
    int ExitInstance() override;
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;
    /// First-instance initialisation; TRUE here.
    virtual BOOL InitApplication();
    /// Shows a message box for AfxMessageBox. Without icon in @p nType the type of buttons chooses one.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /// Shows (1), hides (-1) or restores (0) the hourglass.
    virtual void DoWaitCursor(int nCode);
    /// Saves modified documents; TRUE: may close.
    virtual BOOL SaveAllModified();
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);

    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const;
    HICON LoadOEMIcon(UINT nIDIcon) const;
    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;
    HCURSOR LoadOEMCursor(UINT nIDCursor) const;

    /// Feeds each argument of the command line to @p rCmdInfo.
    void ParseCommandLine(CCommandLineInfo& rCmdInfo);

    /// Settings go to HKEY_CURRENT_USER\\Software\\key\\profile name from now on. Call once.
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    virtual UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    virtual BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    virtual CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    /// A null entry deletes the section, a null value the entry.
    virtual BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// @param ppData receives a new[] array that the caller releases with delete[]; null on failure
    /// @param pBytes receives its size
    virtual BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    virtual BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    /// HKEY_CURRENT_USER\\Software\\registry key\\profile name, made if missing; the caller closes it.
    HKEY GetAppRegistryKey();
    /// A section's key below it, made if missing; the caller closes it.
    HKEY GetSectionKey(LPCTSTR lpszSection);

    /// Puts main window and application away at the end of the main window.
    void HideApplication();
    void CloseAllDocuments(BOOL bEndSession);

protected:
    afx_msg void OnAppExit();

    /// Completes names and paths that start-up owes.
    void SetCurrentHandles();
    friend struct AfxStartup;

    DECLARE_MESSAGE_MAP()
};

/// The application object, or null.
HOSTFRAMEWORK_API CWinApp* AfxGetApp();
/// Its name; the executable's name when it has none yet; "" without application.
HOSTFRAMEWORK_API LPCTSTR AfxGetAppName();

/// Start-up of a program that has its own main function. Sets instance, command line and names.
HOSTFRAMEWORK_API BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// The whole life of a windowed program: start-up, InitInstance, Run. A host that links the framework's import library
/// together with HostFrameworkMain (the CMake targets do so by themselves) and has no main function of its own starts
/// here.
/// @return exit status
HOSTFRAMEWORK_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
HOSTFRAMEWORK_API void AfxWinTerm();

/// Message box of the application. Works without an application object.
HOSTFRAMEWORK_API int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
/// The same with a text of the string table; @p nIDHelp of -1 means nIDPrompt.
HOSTFRAMEWORK_API int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));
/// Posts WM_QUIT.
HOSTFRAMEWORK_API void AfxPostQuitMessage(int nExitCode);
HOSTFRAMEWORK_API BOOL AfxPumpMessage();
