#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace vorn::tool
{

/// A field as its descriptor in the table's header tells, with the place that the library reads it from.
struct DbfField
{
    std::string name; ///< as it stands, up to 11 bytes
    char type = 'C';
    int length = 0;   ///< of a number one byte, of other types 16 bits with sign
    int decimals = 0; ///< of numbers only
    int offset = 0;   ///< within the record; 0 is the deletion mark
};

/// The header of a dBASE table.
struct DbfLayout
{
    int version = 0;
    int year = 0; ///< of the last change, with its century
    int month = 0;
    int day = 0;
    std::uint32_t records = 0;
    int headerLength = 0;
    int recordLength = 0; ///< with the deletion mark
    std::vector<DbfField> fields;
};

inline constexpr std::size_t kDbfHeaderSize = 32;
inline constexpr std::size_t kDbfDescriptorSize = 32;

/// Takes a header apart: 32 bytes, then descriptors as far as there are bytes and the header's length counts them. With
/// fewer than 32 bytes everything is 0.
DbfLayout ReadDbfLayout(std::span<const std::uint8_t> bytes);

/// The number of whole records in @p bytes bytes behind the header, at most as many as the header counts.
std::uint32_t HeldRecords(const DbfLayout& layout, std::uint64_t bytes);

/// The part of a field that lies within the record, in bytes.
int UsableLength(const DbfField& field, int recordLength);

} // namespace vorn::tool
