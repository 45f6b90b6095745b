#include "apps/sample/LeftOver.h"

#include <windows.h>

#include <array>

namespace
{

constexpr DWORD kMostHeaps = 64;
constexpr UINT_PTR kGdiHandles = 0x10000;

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
    for (UINT_PTR handle = 1; handle < kGdiHandles; ++handle)
        count += GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0 ? 1 : 0;
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
    return left;
}
