#include "tests/support/UserCount.h"

#include <windows.h>

namespace vorn::test
{
namespace
{

BOOL CALLBACK CountChild(HWND, LPARAM count)
{
    ++*reinterpret_cast<unsigned*>(count);
    return TRUE;
}

BOOL CALLBACK CountWithChildren(HWND window, LPARAM count)
{
    ++*reinterpret_cast<unsigned*>(count);
    ::EnumChildWindows(window, CountChild, count);
    return TRUE;
}

unsigned CountMenus()
{
    constexpr UINT_PTR kHandles = 0x10000; // a menu answers to the lower half of its handle
    unsigned count = 0;
    for (UINT_PTR handle = 1; handle < kHandles; ++handle)
    {
        count += ::IsMenu(reinterpret_cast<HMENU>(handle)) != FALSE ? 1 : 0;
    }
    return count;
}

} // namespace

unsigned CountUserObjects()
{
    if (const DWORD counted = ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS))
    {
        return counted;
    }
    unsigned windows = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), CountWithChildren, reinterpret_cast<LPARAM>(&windows));
    return windows + CountMenus();
}

} // namespace vorn::test
