#include "tests/support/GdiCount.h"

#include <windows.h>

namespace vorn::test
{

unsigned CountGdiObjects()
{
    constexpr UINT_PTR kHandles = 0x10000;
    if (const DWORD counted = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS))
    {
        return counted;
    }
    // Where the system does not count them, each possible handle is asked for its type.
    unsigned count = 0;
    for (UINT_PTR handle = 1; handle < kHandles; ++handle)
    {
        count += ::GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0 ? 1 : 0;
    }
    return count;
}

} // namespace vorn::test
