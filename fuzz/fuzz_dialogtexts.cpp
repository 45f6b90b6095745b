#include "framework/core/FileSelection.h"
#include "framework/core/NumberScan.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace
{
/// What is written with 17 digits reads as the same number.
void CheckRoundTrip(std::string_view text)
{
    const auto number = vorn::ScanReal(text);
    if (number && vorn::ScanReal(vorn::RealText(*number, 17)) != number)
        std::abort();
}

/// The walk through a selection ends, and within as many steps as there are bytes.
void CheckSelection(std::span<const char> buffer)
{
    const vorn::FileSelection selection(buffer);
    std::size_t steps = 0;
    for (std::size_t at = selection.First(); at != vorn::FileSelection::kNone; ++steps)
    {
        static_cast<void>(selection.Next(at));
        if (steps > buffer.size())
            std::abort();
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    CheckRoundTrip(text);
    CheckSelection(text);
    static_cast<void>(vorn::ScanWhole(text));
    static_cast<void>(vorn::ScanUnsigned(text));
    static_cast<void>(vorn::FileFilter(text));
    static_cast<void>(vorn::ExtensionOf(text));
    static_cast<void>(vorn::TitleOf(text));
    static_cast<void>(vorn::FolderOf(text));
    return 0;
}
