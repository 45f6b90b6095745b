#pragma once

#include "framework/include/afxwin.h"

#include <sstream>
#include <string>
#include <vector>

/// A window class of the system's own kind, so that tests can watch windows that no framework object made.
class PlainClass
{
public:
    PlainClass(LPCTSTR name, WNDPROC procedure) : m_name(name)
    {
        WNDCLASS windowClass = {};
        windowClass.lpfnWndProc = procedure;
        windowClass.hInstance = ::GetModuleHandle(nullptr);
        windowClass.lpszClassName = name;
        ::RegisterClass(&windowClass);
    }
    PlainClass(const PlainClass&) = delete;
    PlainClass& operator=(const PlainClass&) = delete;
    ~PlainClass()
    {
        ::UnregisterClass(m_name, ::GetModuleHandle(nullptr));
    }

    HWND Create(HWND parent = nullptr, int id = 0) const
    {
        return ::CreateWindowEx(0, m_name, "", parent ? WS_CHILD : WS_POPUP, 0, 0, 50, 40, parent,
                                reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ::GetModuleHandle(nullptr), nullptr);
    }

private:
    LPCTSTR m_name;
};

/// What happened, in order; shared by the windows of a test.
using Events = std::vector<std::string>;

/// A name and numbers with a blank before each.
template <class... Numbers>
std::string With(const char* name, Numbers... numbers)
{
    std::ostringstream text;
    text << name;
    ((text << ' ' << numbers), ...);
    return text.str();
}

/// Creates @p window as a hidden top-level window.
inline BOOL CreatePopup(CWnd& window, HWND owner = nullptr)
{
    return window.CreateEx(0, AfxRegisterWndClass(0), "popup", WS_POPUP, 10, 20, 200, 100, owner, nullptr);
}

/// Creates @p window as a child.
inline BOOL CreateChild(CWnd& window, CWnd& parent, UINT id = 1)
{
    return window.Create(nullptr, "child", WS_CHILD, CRect(0, 0, 30, 20), &parent, id);
}
