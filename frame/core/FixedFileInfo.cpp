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
std::uint32_t WordAt(Bytes bytes, std::size_t offset)
{
    if (offset + 2 > bytes.size())
    {
        return 0;
    }
    return std::to_integer<std::uint32_t>(bytes[offset]) | std::to_integer<std::uint32_t>(bytes[offset + 1]) << 8;
}

std::uint32_t DoubleWordAt(Bytes bytes, std::size_t offset)
{
    return WordAt(bytes, offset) | WordAt(bytes, offset + 2) << 16;
}

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
