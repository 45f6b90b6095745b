#include "config/core/StoredValue.h"

#include "config/core/NumberText.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace vorn
{
namespace
{
std::string_view TextPart(std::span<const std::byte> bytes)
{
    const auto end = std::find(bytes.begin(), bytes.end(), std::byte{0});
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(end - bytes.begin())};
}

std::optional<std::int32_t> NumberPart(std::uint32_t type, std::span<const std::byte> bytes)
{
    if (type != kStoredNumber || bytes.size() != 4)
    {
        return std::nullopt;
    }
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
    {
        value |= std::to_integer<std::uint32_t>(bytes[i]) << (8 * i);
    }
    return static_cast<std::int32_t>(value);
}
} // namespace

std::string StoredAsText(std::uint32_t type, std::span<const std::byte> bytes)
{
    if (const auto number = NumberPart(type, bytes))
    {
        return std::to_string(*number);
    }
    return type == kStoredNumber ? std::string() : std::string(TextPart(bytes));
}

int StoredAsNumber(std::uint32_t type, std::span<const std::byte> bytes, int otherwise)
{
    if (const auto number = NumberPart(type, bytes))
    {
        return *number;
    }
    return type == kStoredText ? StoredNumber(TextPart(bytes), otherwise) : otherwise;
}
} // namespace vorn
