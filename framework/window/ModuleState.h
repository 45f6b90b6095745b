#pragma once

/// @file
/// Which modules make up the program, and where resources are looked up: first in the
/// application's resource module, then in the extension modules, newest first, then in the
/// framework itself.
#include "framework/core/CString.h"
#include "framework/core/Export.h"
#include "framework/core/Object.h"

#include <windows.h>

/// State of an extension module: one static, zero-initialised object in each.
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource; ///< where its resources are: the module itself unless changed
    CRuntimeClass* pFirstSharedClass;
    void* pFirstSharedFactory;
};

/// Called from DllMain at DLL_PROCESS_ATTACH. Fills the record in.
/// @return FALSE when the record cannot be used
HOSTFRAMEWORK_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// Called at DLL_PROCESS_DETACH. Takes the module out of the resource chain and deletes its CDynLinkLibrary objects.
/// @param bAll TRUE: those of all extension modules
HOSTFRAMEWORK_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// An extension module's link in the resource chain. Made with new in DllMain; deleted by
/// AfxTermExtensionModule.
class HOSTFRAMEWORK_API CDynLinkLibrary : public CObject
{
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    /// @param bSystem TRUE puts the module behind all others
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
};

/// Module of the program (its executable, unless changed at start-up).
HOSTFRAMEWORK_API HINSTANCE AfxGetInstanceHandle();
/// Names another module, whose resources the application has too unless AfxSetResourceHandle() says otherwise; null for
/// the executable again.
HOSTFRAMEWORK_API void AfxSetInstanceHandle(HINSTANCE hInstance);
/// Module where the application's resources are: the program unless changed.
HOSTFRAMEWORK_API HINSTANCE AfxGetResourceHandle();
HOSTFRAMEWORK_API void AfxSetResourceHandle(HINSTANCE hInstResource);
/// The module of the resource chain that holds a resource; AfxGetResourceHandle when none does.
/// @param lpszType RT_... or the name of a type of one's own
HOSTFRAMEWORK_API HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
/// The module of the resource chain that holds a string-table entry; null when none does.
HOSTFRAMEWORK_API HINSTANCE AfxFindStringResourceHandle(UINT nID);
/// Loads a text from one module or, with null, from the whole chain into a buffer.
/// @return length; 0 and an empty text when there is none
HOSTFRAMEWORK_API int AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf = 256);
/// Loads a text of any length from the resource chain.
HOSTFRAMEWORK_API BOOL AfxLoadString(UINT nID, CString& text);

/// Replaces "%1" and "%2" (up to "%9") in a text by the given texts; a missing one becomes "?".
HOSTFRAMEWORK_API void AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
HOSTFRAMEWORK_API void AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);
HOSTFRAMEWORK_API void AfxFormatStrings(CString& rString, LPCTSTR lpszFormat, const LPCTSTR* rglpsz, int nString);
/// Part of a text between separators. FALSE when there is no such part.
HOSTFRAMEWORK_API BOOL AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                           TCHAR chSep = '\n');

/// Registers a window class with these features, once, and returns its name, which stays
/// valid until the next call on the same thread. Throws CResourceException on failure.
HOSTFRAMEWORK_API LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                              HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
/// Registers a window class, TRUE also when it exists. A library's classes should be
/// unregistered when it goes: classes registered here are, when the framework goes.
HOSTFRAMEWORK_API BOOL AfxRegisterClass(WNDCLASS* lpWndClass);
/// Window procedure of all windows of the framework.
HOSTFRAMEWORK_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
