#include "framework/window/CWinApp.h"

#include "framework/window/ModuleState.h"

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const
{
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const
{
    return LoadIcon(MAKEINTRESOURCE(nIDResource));
}

HICON CWinApp::LoadStandardIcon(LPCTSTR lpszIconName) const
{
    return ::LoadIcon(nullptr, lpszIconName);
}

HICON CWinApp::LoadOEMIcon(UINT nIDIcon) const
{
    return ::LoadIcon(nullptr, MAKEINTRESOURCE(nIDIcon));
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const
{
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const
{
    return LoadCursor(MAKEINTRESOURCE(nIDResource));
}

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const
{
    return ::LoadCursor(nullptr, lpszCursorName);
}

HCURSOR CWinApp::LoadOEMCursor(UINT nIDCursor) const
{
    return ::LoadCursor(nullptr, MAKEINTRESOURCE(nIDCursor));
}
