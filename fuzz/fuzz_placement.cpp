#include "frame/core/FixedFileInfo.h"
#include "frame/core/PlacementText.h"
#include "frame/core/VersionResource.h"

#include <cstdlib>

/// Any text as placement: what was understood comes back the same from its own text. The same bytes serve as a
/// version resource and as a program file.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (const auto placement = vorn::ParsePlacement(text))
    {
        if (vorn::ParsePlacement(vorn::PlacementText(*placement)) != placement)
        {
            std::abort();
        }
        vorn::KeptOnScreen(placement->normal, 1024);
    }
    const vorn::Bytes bytes = std::as_bytes(std::span(data, size));
    vorn::ProductVersion(bytes);
    vorn::ProductVersion(vorn::VersionResourceOf(bytes));
    return 0;
}
