#include "framework/core/DialogInit.h"

#include <algorithm>
#include <cstddef>

namespace vorn
{
namespace
{
constexpr std::size_t kHeadSize = 8; // id, message, length of 32 bits

std::uint32_t Number(std::span<const std::uint8_t> bytes)
{
    std::uint32_t value = 0;
    for (std::size_t i = bytes.size(); i > 0; --i)
        value = value << 8 | bytes[i - 1];
    return value;
}

std::string TextOf(std::span<const std::uint8_t> bytes)
{
    return {bytes.begin(), std::find(bytes.begin(), bytes.end(), std::uint8_t{0})};
}
} // namespace

std::vector<DialogInitEntry> ReadDialogInit(std::span<const std::uint8_t> bytes)
{
    std::vector<DialogInitEntry> entries;
    while (bytes.size() >= kHeadSize)
    {
        DialogInitEntry entry;
        entry.controlId = static_cast<std::uint16_t>(Number(bytes.first(2)));
        entry.message = static_cast<std::uint16_t>(Number(bytes.subspan(2, 2)));
        const std::uint32_t length = Number(bytes.subspan(4, 4));
        bytes = bytes.subspan(kHeadSize);
        if (entry.controlId == 0 || length > bytes.size())
            break;
        entry.data = TextOf(bytes.first(length));
        entries.push_back(std::move(entry));
        bytes = bytes.subspan(length);
    }
    return entries;
}
} // namespace vorn
