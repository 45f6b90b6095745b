#include "frame/core/FixedFileInfo.h"

#include <cstdint>

namespace vorn
{
namespace
{
constexpr std::size_t kHeaderSize = 6;
constexpr std::size_t kFixedSize = 52;
constexpr std::size_t kProductVersionOffset = 16; // of the more significant double word
constexpr std::uint32_t kSignature = 0xFEEF04BD;

using Bytes = std::span<const std::byte>;

/// The two bytes at `offset`; beyond the end, zero.
std::uint32_t wordAt(Bytes bytes, std::size_t offset)
{
    if (offset + 2 > bytes.size())
    {
        return 0;
    }
    return std::to_integer<std::uint32_t>(bytes[offset]) | std::to_integer<std::uint32_t>(bytes[offset + 1]) << 8;
}

std::uint32_t doubleWordAt(Bytes bytes, std::size_t offset)
{
    return wordAt(bytes, offset) | wordAt(bytes, offset + 2) << 16;
}

/// Offset of the value behind the key's terminator, aligned to 4 bytes.
std::size_t valueOffset(Bytes block)
{
    std::size_t end = kHeaderSize;
    while (wordAt(block, end) != 0)
    {
        end += 2;
    }
    return (end + 2 + 3) & ~std::size_t{3};
}
} // namespace

std::optional<ProgramVersion> productVersion(Bytes resource)
{
    const Bytes block = resource.first(std::min<std::size_t>(resource.size(), wordAt(resource, 0)));
    const std::size_t value = valueOffset(block);
    if (wordAt(block, 2) < kFixedSize || value + kFixedSize > block.size() || doubleWordAt(block, value) != kSignature)
    {
        return std::nullopt;
    }
    return ProgramVersion{static_cast<int>(wordAt(block, value + kProductVersionOffset + 2)),
                          static_cast<int>(wordAt(block, value + kProductVersionOffset))};
}
} // namespace vorn
