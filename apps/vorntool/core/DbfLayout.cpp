#include "apps/vorntool/core/DbfLayout.h"

#include <algorithm>

namespace vorn::tool
{

namespace
{

constexpr std::size_t kNameSize = 11;
constexpr std::size_t kLengthAt = 16;

int Signed16(std::span<const std::uint8_t> bytes, std::size_t at)
{
    return static_cast<std::int16_t>(bytes[at] | bytes[at + 1] << 8);
}

std::uint32_t Unsigned32(std::span<const std::uint8_t> bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;)
    {
        value = value << 8 | bytes[at + i];
    }
    return value;
}

std::string NameIn(std::span<const std::uint8_t> descriptor)
{
    const auto end = std::find(descriptor.begin(), descriptor.begin() + kNameSize, 0);
    return {descriptor.begin(), end};
}

DbfField ReadField(std::span<const std::uint8_t> descriptor, int offset)
{
    const char type = static_cast<char>(descriptor[kNameSize]);
    const bool isNumber = type == 'N';
    return {NameIn(descriptor), type, isNumber ? descriptor[kLengthAt] : Signed16(descriptor, kLengthAt),
            isNumber ? descriptor[kLengthAt + 1] : 0, offset};
}

} // namespace

DbfLayout ReadDbfLayout(std::span<const std::uint8_t> bytes)
{
    DbfLayout layout;
    if (bytes.size() < kDbfHeaderSize)
    {
        return layout;
    }
    layout.version = bytes[0];
    layout.year = 1900 + bytes[1];
    layout.month = bytes[2];
    layout.day = bytes[3];
    layout.records = Unsigned32(bytes, 4);
    layout.headerLength = Signed16(bytes, 8);
    layout.recordLength = Signed16(bytes, 10);
    const std::size_t counted = static_cast<std::size_t>(std::max(layout.headerLength, 0));
    const std::size_t end = std::min(bytes.size(), counted);
    int offset = 1;
    for (std::size_t at = kDbfHeaderSize; at + kDbfDescriptorSize <= end; at += kDbfDescriptorSize)
    {
        const auto descriptor = bytes.subspan(at, kDbfDescriptorSize);
        layout.fields.push_back(ReadField(descriptor, offset));
        offset += Signed16(descriptor, kLengthAt); // with a number's decimals as high byte: so the library counts
    }
    return layout;
}

std::uint32_t HeldRecords(const DbfLayout& layout, std::uint64_t bytes)
{
    if (layout.recordLength < 1)
    {
        return 0;
    }
    const std::uint64_t whole = bytes / static_cast<std::uint64_t>(layout.recordLength);
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(whole, layout.records));
}

int UsableLength(const DbfField& field, int recordLength)
{
    const bool begins = field.offset >= 1 && field.offset < recordLength;
    return begins ? std::clamp(field.length, 0, recordLength - field.offset) : 0;
}

} // namespace vorn::tool
