#pragma once

/// @file
/// The head of a dBASE III table: 32 bytes of facts and 32 for each field, to and from bytes.
#include <cstdint>
#include <ctime>
#include <span>
#include <string_view>
#include <vector>

namespace vorn
{
inline constexpr int kHeaderSize = 32;
inline constexpr int kDescriptorSize = 32;
inline constexpr int kFieldNameSize = 11;
inline constexpr int kCountOffset = 4;
/// Longest record and longest head: both lengths are signed 16-bit numbers.
inline constexpr int kMaxTableLength = 32767;

/// One field of a table.
struct TableField
{
    char name[kFieldNameSize + 1] = "";
    int length = 0;    ///< As declared; negative in damaged tables.
    int precision = 0; ///< Decimals; 'N' only.
    int offset = 0;    ///< As declared, from the deletion flag on; may lie outside the record.
    char type = 0;
    bool isPlain = false; ///< The text is the bytes without those that pad it.
    int start = 0;        ///< Where the part inside the record begins.
    int size = 0;         ///< Bytes inside the record.
};

/// What a table's head says.
struct TableLayout
{
    std::vector<char> head; ///< As read or made, `headerLength` bytes; empty without a table.
    std::vector<TableField> fields;
    int headerLength = 0;
    int recordLength = 0; ///< Below 1 in damaged tables, which have no readable record.
    int records = 0;
    int baseOffset = 0; ///< Where the table begins in its file.

    bool IsTable() const
    {
        return !head.empty();
    }
    /// Where a record begins in the file.
    std::int64_t PositionOf(std::int64_t index) const
    {
        return std::int64_t{baseOffset} + headerLength + index * recordLength;
    }
    /// Sets the count here and in the head.
    void SetRecords(int count);
};

/// The header length that the first 32 bytes state, below 0 for damaged ones.
int StatedHeaderLength(std::span<const char, kHeaderSize> header);

/// Takes over a head of the stated length of which `available` bytes were read; false, with nothing changed, when the
/// descriptors are not all there.
bool ReadLayout(std::vector<char> head, std::size_t available, TableLayout& layout);

/// A field behind the others. The name is cut to 11 characters.
void AppendField(std::vector<TableField>& fields, std::string_view name, char type, int length);

/// The head of a new table, with the date of `now` (null: zeros); empty when it cannot be, see kMaxTableLength.
std::vector<char> MakeHead(const std::vector<TableField>& fields, const std::tm* now);

/// A little-endian number of 2 or 4 bytes.
std::int16_t Int16At(const char* bytes);
std::uint32_t UInt32At(const char* bytes);
void PutUInt32(char* bytes, std::uint32_t value);
} // namespace vorn
