#include "tests/windows/small_controls/IconFacts.h"

#include "tests/support/Canvas.h"
#include "tests/windows/small_controls/resource.h"

#include <string>

namespace vorn::test
{
namespace
{

/// Every pixel of an icon on white.
std::string LookOf(HICON icon)
{
    const CSize size = SizeOfIcon(icon);
    Canvas canvas(static_cast<int>(size.cx), static_cast<int>(size.cy));
    ::DrawIconEx(canvas.dc.m_hDC, 0, 0, icon, size.cx, size.cy, 0, nullptr, DI_NORMAL);
    std::string look;
    for (int y = 0; y < size.cy; ++y)
    {
        for (int x = 0; x < size.cx; ++x)
        {
            look.append(std::to_string(canvas.At(x, y))).append(1, ' ');
        }
    }
    return look;
}

bool HasHostIcon(const CWnd& window, BOOL isLarge)
{
    const int side = ::GetSystemMetrics(isLarge ? SM_CXICON : SM_CXSMICON);
    const HICON given = window.GetIcon(isLarge);
    const HANDLE own =
        ::LoadImage(::GetModuleHandle(nullptr), MAKEINTRESOURCE(IDI_TEST_HOST), IMAGE_ICON, side, side, 0);
    const bool isSame =
        given != nullptr && SizeOfIcon(given) == CSize(side, side) && LookOf(given) == LookOf(static_cast<HICON>(own));
    ::DestroyIcon(static_cast<HICON>(own));
    return isSame;
}

} // namespace

CSize SizeOfIcon(HICON icon)
{
    ICONINFO info{};
    ::GetIconInfo(icon, &info);
    BITMAP bitmap{};
    ::GetObject(info.hbmMask, sizeof(bitmap), &bitmap);
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
    return CSize(bitmap.bmWidth, info.hbmColor != nullptr ? bitmap.bmHeight : bitmap.bmHeight / 2);
}

bool HasHostIcons(const CWnd& window)
{
    return HasHostIcon(window, TRUE) && HasHostIcon(window, FALSE);
}

} // namespace vorn::test
