#include "apps/sample/LeftOver.h"

#include <windows.h>

#include <array>

namespace
{

constexpr DWORD kMostHeaps = 64;
constexpr UINT_PTR kHandles = 0x10000; // of each kind, without the count of their uses in the upper word

unsigned BlocksIn(HANDLE heap)
{
    unsigned blocks = 0;
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
        blocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? 1 : 0;
    HeapUnlock(heap);
    return blocks;
}

// Each possible handle is asked for its type: not every system counts them.
unsigned CountGdiObjects()
{
    unsigned count = 0;
    for (UINT_PTR handle = 1; handle < kHandles; ++handle)
        count += GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0 ? 1 : 0;
    return count;
}

bool IsIcon(HICON handle)
{
    ICONINFO info{};
    if (!GetIconInfo(handle, &info))
        return false;
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    return true;
}

BOOL CALLBACK CountChild(HWND, LPARAM count)
{
    ++*reinterpret_cast<unsigned*>(count);
    return TRUE;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM count)
{
    CountChild(window, count);
    EnumChildWindows(window, CountChild, count);
    return TRUE;
}

unsigned CountUserObjects()
{
    if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS))
        return counted;
    unsigned count = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&count));
    for (UINT_PTR handle = 0; handle < kHandles; handle += 2) // an odd number is the same as the even one before
    {
        const bool isOne = IsMenu(reinterpret_cast<HMENU>(handle)) || IsIcon(reinterpret_cast<HICON>(handle)) ||
                           CopyAcceleratorTable(reinterpret_cast<HACCEL>(handle), nullptr, 0) != 0;
        count += isOne ? 1 : 0;
    }
    return count;
}

} // namespace

LeftOver CountLeftOver()
{
    std::array<HANDLE, kMostHeaps> heaps{};
    const DWORD count = GetProcessHeaps(kMostHeaps, heaps.data());
    LeftOver left;
    for (DWORD i = 0; i < count && i < kMostHeaps; ++i)
        left.heapBlocks += BlocksIn(heaps[i]);
    left.gdiObjects = CountGdiObjects();
    left.userObjects = CountUserObjects();
    return left;
}
