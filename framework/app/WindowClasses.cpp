#include "framework/app/AppState.h"
#include "framework/core/Exception.h"
#include "framework/window/ModuleState.h"
#include "framework/window/ThreadState.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

struct RegisteredClass
{
    std::string name;
    HINSTANCE module;
};

constinit SRWLOCK classesLock = SRWLOCK_INIT;

std::vector<RegisteredClass>& Classes()
{
    static auto* const classes = new std::vector<RegisteredClass>; // read when the library goes, after its objects
    return *classes;
}

void Remember(const WNDCLASS& windowClass)
{
    ::AcquireSRWLockExclusive(&classesLock);
    Classes().push_back({windowClass.lpszClassName, windowClass.hInstance});
    ::ReleaseSRWLockExclusive(&classesLock);
}

bool IsNumber(LPCTSTR name)
{
    return reinterpret_cast<ULONG_PTR>(name) < 0x10000;
}

} // namespace

void vorn::UnregisterClasses()
{
    for (const RegisteredClass& entry : Classes())
    {
        ::UnregisterClass(entry.name.c_str(), entry.module);
    }
    Classes().clear();
}

BOOL AfxRegisterClass(WNDCLASS* lpWndClass)
{
    WNDCLASS existing = {};
    if (::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &existing))
    {
        return TRUE;
    }
    if (!::RegisterClass(lpWndClass))
    {
        return ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS; // another thread was quicker
    }
    if (!IsNumber(lpWndClass->lpszClassName))
    {
        Remember(*lpWndClass);
    }
    return TRUE;
}

namespace
{

/// The name says what the class is, so that equal classes share one registration.
std::string NameOf(HINSTANCE module, UINT style, HCURSOR cursor, HBRUSH brush, HICON icon)
{
    char name[96];
    if (!cursor && !brush && !icon)
    {
        std::snprintf(name, sizeof(name), "Afx:%p:%x", static_cast<void*>(module), style);
    }
    else
    {
        std::snprintf(name, sizeof(name), "Afx:%p:%x:%p:%p:%p", static_cast<void*>(module), style,
                      static_cast<void*>(cursor), static_cast<void*>(brush), static_cast<void*>(icon));
    }
    return name;
}

} // namespace

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    std::string& name = vorn::CurrentThreadState().className;
    WNDCLASS windowClass = {};
    windowClass.style = nClassStyle;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hCursor = hCursor;
    windowClass.hbrBackground = hbrBackground;
    windowClass.hIcon = hIcon;
    name = NameOf(windowClass.hInstance, nClassStyle, hCursor, hbrBackground, hIcon);
    windowClass.lpszClassName = name.c_str();
    if (!AfxRegisterClass(&windowClass))
    {
        AfxThrowResourceException();
    }
    return name.c_str();
}
