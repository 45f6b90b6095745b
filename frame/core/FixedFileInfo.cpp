#include "frame/core/FixedFileInfo.h"

#include <algorithm>

namespace vorn
{
namespace
{
constexpr std::size_t kHeaderSize = 6;
constexpr std::size_t kFixedSize = 52;
constexpr std::size_t kProductVersionOffset = 16; // of the more significant double word
constexpr std::uint32_t kSignature = 0xFEEF04BD;

/// Offset of the value behind the key's terminator, aligned to 4 bytes.
std::size_t ValueOffset(Bytes block)
{
    std::size_t end = kHeaderSize;
    while (WordAt(block, end) != 0)
    {
        end += 2;
    }
    return (end + 2 + 3) & ~std::size_t{3};
}
} // namespace

std::optional<ProgramVersion> ProductVersion(Bytes resource)
{
    const Bytes block = resource.first(std::min<std::size_t>(resource.size(), WordAt(resource, 0)));
    const std::size_t value = ValueOffset(block);
    if (WordAt(block, 2) < kFixedSize || value + kFixedSize > block.size() || DoubleWordAt(block, value) != kSignature)
    {
        return std::nullopt;
    }
    return ProgramVersion{static_cast<int>(WordAt(block, value + kProductVersionOffset + 2)),
                          static_cast<int>(WordAt(block, value + kProductVersionOffset))};
}
} // namespace vorn
