#pragma once

#include "framework/include/afxwin.h"

#ifdef EXTENSION_BUILD
#define EXTENSION_API __declspec(dllexport)
#else
#define EXTENSION_API __declspec(dllimport)
#endif

/// A window class of an extension library: hosts derive from it.
class EXTENSION_API ExtensionWindow : public CWnd
{
public:
    int extensionCalls = 0;

protected:
    afx_msg LRESULT OnExtension(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnShared(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

inline constexpr UINT kExtensionMessage = WM_APP + 11;
inline constexpr UINT kSharedMessage = WM_APP + 12;

/// The extension's record, to take it out of the resource chain and back.
EXTENSION_API void LeaveChain();
EXTENSION_API void JoinChain();
EXTENSION_API HINSTANCE ExtensionModule();
