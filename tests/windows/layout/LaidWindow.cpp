#include "tests/windows/layout/LaidWindow.h"

#include "framework/window/ModuleState.h"
#include "tests/windows/layout/ProfileApp.h"

#include <commctrl.h>

ProfileApp g_app;

LaidWindow::LaidWindow(int width, int height, DWORD style) : LayoutMgr(this)
{
    CreateEx(0, AfxRegisterWndClass(0), "laid out", style, 40, 30, width, height, nullptr, nullptr);
}

LaidWindow::~LaidWindow()
{
    if (m_hWnd != nullptr)
    {
        DestroyWindow();
    }
}

HWND LaidWindow::Add(const char* className, UINT id, DWORD style, const RECT& rect, const char* text)
{
    const HWND child = ::CreateWindowExA(0, className, text, WS_CHILD | style, rect.left, rect.top,
                                         rect.right - rect.left, rect.bottom - rect.top, m_hWnd,
                                         reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
    EXPECT_NE(nullptr, child) << className;
    ::SetWindowSubclass(child, CountMoves, 1, reinterpret_cast<DWORD_PTR>(&m_moves[child]));
    return child;
}

Edges LaidWindow::PlaceOf(HWND child) const
{
    RECT rect{};
    ::GetWindowRect(child, &rect);
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
    return EdgesOf(rect);
}

Edges LaidWindow::PlaceOf(UINT id) const
{
    return PlaceOf(::GetDlgItem(m_hWnd, static_cast<int>(id)));
}

int LaidWindow::MovesOf(HWND child) const
{
    return m_moves.at(child);
}

void LaidWindow::Resize(int width, int height)
{
    SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT CALLBACK LaidWindow::CountMoves(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                        DWORD_PTR count)
{
    if (message == WM_WINDOWPOSCHANGED)
    {
        ++*reinterpret_cast<int*>(count);
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}
