#include "framework/window/CWinApp.h"

CCommandLineInfo::CCommandLineInfo()
    : m_bShowSplash(TRUE), m_bRunEmbedded(FALSE), m_bRunAutomated(FALSE), m_nShellCommand(FileNew)
{
}

CCommandLineInfo::~CCommandLineInfo() = default;

void CCommandLineInfo::ParseParam(const char* pszParam, BOOL bFlag, BOOL bLast)
{
    bFlag ? ParseParamFlag(pszParam) : ParseParamNotFlag(pszParam);
    ParseLast(bLast);
}

void CCommandLineInfo::ParseParamFlag(const char* pszParam)
{
    const CString flag(pszParam);
    if (flag == "pt")
    {
        m_nShellCommand = FilePrintTo;
    }
    else if (flag == "p")
    {
        m_nShellCommand = FilePrint;
    }
    else if (flag.CompareNoCase("Register") == 0 || flag.CompareNoCase("RegServer") == 0)
    {
        m_nShellCommand = AppRegister;
    }
    else if (flag.CompareNoCase("Unregister") == 0 || flag.CompareNoCase("UnregServer") == 0)
    {
        m_nShellCommand = AppUnregister;
    }
    else if (flag.CompareNoCase("dde") == 0)
    {
        m_nShellCommand = FileDDE;
    }
    else if (flag.CompareNoCase("Embedding") == 0)
    {
        m_bRunEmbedded = TRUE;
        m_bShowSplash = FALSE;
    }
    else if (flag.CompareNoCase("Automation") == 0)
    {
        m_bRunAutomated = TRUE;
        m_bShowSplash = FALSE;
    }
}

void CCommandLineInfo::ParseParamNotFlag(const char* pszParam)
{
    if (m_strFileName.IsEmpty())
    {
        m_strFileName = pszParam;
    }
    else if (m_nShellCommand == FilePrintTo && m_strPrinterName.IsEmpty())
    {
        m_strPrinterName = pszParam;
    }
    else if (m_nShellCommand == FilePrintTo && m_strDriverName.IsEmpty())
    {
        m_strDriverName = pszParam;
    }
    else if (m_nShellCommand == FilePrintTo && m_strPortName.IsEmpty())
    {
        m_strPortName = pszParam;
    }
}

void CCommandLineInfo::ParseLast(BOOL bLast)
{
    if (!bLast)
    {
        return;
    }
    if (m_nShellCommand == FileNew && !m_strFileName.IsEmpty())
    {
        m_nShellCommand = FileOpen;
    }
    m_bShowSplash = !m_bRunEmbedded && !m_bRunAutomated;
}

void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo)
{
    for (int i = 1; i < __argc; ++i)
    {
        const char* argument = __argv[i];
        const bool isFlag = argument[0] == '-' || argument[0] == '/';
        rCmdInfo.ParseParam(isFlag ? argument + 1 : argument, isFlag, i + 1 == __argc);
    }
}
