#include "apps/sample/BareWindows.h"

#include <array>

namespace
{

BareWindows* g_noting = nullptr; // of the hook, whose function gets no other hint

std::string ClassOf(HWND window)
{
    std::array<char, 64> name{};
    GetClassNameA(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

bool IsSystemClass(const std::string& name)
{
    WNDCLASSA facts{};
    return GetClassInfoA(nullptr, name.c_str(), &facts) != FALSE;
}

/// Part of a control, which makes it by itself.
bool IsPart(HWND parent)
{
    const std::string name = parent != nullptr ? ClassOf(parent) : "";
    return !name.empty() && name != "#32770" && IsSystemClass(name);
}

} // namespace

BareWindows::BareWindows() : m_hook(SetWindowsHookExA(WH_CBT, OnCreation, nullptr, GetCurrentThreadId()))
{
    g_noting = this;
}

BareWindows::~BareWindows()
{
    UnhookWindowsHookEx(m_hook);
    g_noting = nullptr;
}

void BareWindows::Clear()
{
    m_windows.clear();
}

int BareWindows::Count() const
{
    return static_cast<int>(m_windows.size());
}

LRESULT CALLBACK BareWindows::OnCreation(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HCBT_CREATEWND && g_noting != nullptr)
        g_noting->Note(reinterpret_cast<HWND>(wParam), *reinterpret_cast<CBT_CREATEWNDA*>(lParam)->lpcs);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// A handle may have been another window's before, which had no font then.
void BareWindows::NoteFonts()
{
    for (Window& noted : m_windows)
        noted.hasFont = noted.hasFont || (IsWindow(noted.window) && SendMessageA(noted.window, WM_GETFONT, 0, 0) != 0);
}

void BareWindows::Note(HWND window, const CREATESTRUCTA& create)
{
    const std::string name = ClassOf(window);
    if (IsSystemClass(name) && !IsPart(create.hwndParent))
        m_windows.push_back({window, name, static_cast<DWORD>(create.style), create.dwExStyle, false});
}

void BareWindows::MakeAgain() const
{
    constexpr int kSize = 20;
    const HWND parent = CreateWindowA("#32770", "", WS_POPUP, 0, 0, kSize, kSize, nullptr, nullptr, nullptr, nullptr);
    for (const Window& window : m_windows)
    {
        const bool isChild = (window.style & WS_CHILD) != 0;
        const HWND made =
            CreateWindowExA(window.extendedStyle, window.className.c_str(), "", window.style & ~WS_VISIBLE, 0, 0, kSize,
                            kSize, isChild ? parent : nullptr, nullptr, nullptr, nullptr);
        if (window.hasFont)
            SendMessageA(made, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
        DestroyWindow(made);
    }
    DestroyWindow(parent);
}
