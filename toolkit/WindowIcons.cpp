#include "toolkit/WindowIcons.h"

namespace vorn
{

namespace
{
HICON LoadIconOfSize(HINSTANCE module, UINT id, int size)
{
    return static_cast<HICON>(
        ::LoadImage(module, MAKEINTRESOURCE(id), IMAGE_ICON, ::GetSystemMetrics(size), ::GetSystemMetrics(size), 0));
}
} // namespace

WindowIcons::WindowIcons() = default;

WindowIcons::~WindowIcons()
{
    Take(m_large, nullptr);
    Take(m_small, nullptr);
}

void WindowIcons::Put(CWnd& window, UINT id)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_GROUP_ICON);
    const HICON large = LoadIconOfSize(module, id, SM_CXICON);
    const HICON little = LoadIconOfSize(module, id, SM_CXSMICON);
    if (large != nullptr)
    {
        window.SetIcon(large, TRUE);
        Take(m_large, large);
    }
    if (little != nullptr)
    {
        window.SetIcon(little, FALSE);
        Take(m_small, little);
    }
}

void WindowIcons::Take(HICON& icon, HICON loaded)
{
    if (icon != nullptr)
    {
        ::DestroyIcon(icon);
    }
    icon = loaded;
}

} // namespace vorn
