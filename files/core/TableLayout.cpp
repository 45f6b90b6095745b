#include "files/core/TableLayout.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace vorn
{
namespace
{
constexpr int kHeaderLengthOffset = 8;
constexpr int kRecordLengthOffset = 10;
constexpr int kTypeOffset = 11;
constexpr int kLengthOffset = 16;
constexpr char kVersion = 3;
constexpr char kEndMark = 0x0D;

unsigned ByteAt(const char* bytes)
{
    return static_cast<unsigned char>(*bytes);
}

void PutInt16(char* bytes, int value)
{
    bytes[0] = static_cast<char>(value);
    bytes[1] = static_cast<char>(value >> 8);
}

// Only the bytes inside the record are ever looked at.
void FitIntoRecord(TableField& field, int recordLength)
{
    const int begin = std::max(field.offset, 0);
    const int end = std::min(field.offset + std::max(field.length, 0), recordLength);
    field.start = begin < end ? begin : 0;
    field.size = std::max(end - begin, 0);
}

TableField FieldOf(const char* descriptor, int offset)
{
    TableField field;
    std::memcpy(field.name, descriptor, kFieldNameSize);
    field.type = descriptor[kTypeOffset];
    const bool isNumeric = field.type == 'N';
    const char* length = descriptor + kLengthOffset;
    field.length = isNumeric ? static_cast<int>(ByteAt(length)) : Int16At(length);
    field.precision = isNumeric ? static_cast<int>(ByteAt(length + 1)) : 0;
    field.offset = offset;
    field.isPlain = !isNumeric && field.type != 'M';
    return field;
}

// The next offset adds the 16-bit value for numbers too: decimals shift what follows by 256 each, as the tables of
// this family's readers always did.
std::vector<TableField> FieldsOf(const std::vector<char>& head, int recordLength)
{
    std::vector<TableField> fields;
    int offset = 1;
    const std::size_t count = (head.size() - kHeaderSize) / kDescriptorSize;
    fields.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
    {
        const char* descriptor = head.data() + kHeaderSize + i * kDescriptorSize;
        fields.push_back(FieldOf(descriptor, offset));
        FitIntoRecord(fields.back(), recordLength);
        offset += Int16At(descriptor + kLengthOffset);
    }
    return fields;
}

void PutDate(char* head, const std::tm& now)
{
    head[1] = static_cast<char>(now.tm_year);
    head[2] = static_cast<char>(now.tm_mon + 1);
    head[3] = static_cast<char>(now.tm_mday);
}

// Lengths of a new table; a sum outside the limit stays outside it.
std::int64_t SumOfLengths(const std::vector<TableField>& fields)
{
    std::int64_t sum = 1;
    for (const TableField& field : fields)
    {
        if (field.length < 0)
            return std::numeric_limits<std::int64_t>::max();
        sum += field.length;
    }
    return sum;
}
} // namespace

std::int16_t Int16At(const char* bytes)
{
    return static_cast<std::int16_t>(ByteAt(bytes) | ByteAt(bytes + 1) << 8);
}

std::uint32_t UInt32At(const char* bytes)
{
    return ByteAt(bytes) | ByteAt(bytes + 1) << 8 | ByteAt(bytes + 2) << 16 | ByteAt(bytes + 3) << 24;
}

void PutUInt32(char* bytes, std::uint32_t value)
{
    for (int i = 0; i < 4; ++i)
        bytes[i] = static_cast<char>(value >> (8 * i));
}

void TableLayout::SetRecords(int count)
{
    records = count;
    PutUInt32(head.data() + kCountOffset, static_cast<std::uint32_t>(count));
}

int StatedHeaderLength(std::span<const char, kHeaderSize> header)
{
    return Int16At(header.data() + kHeaderLengthOffset);
}

bool ReadLayout(std::vector<char> head, std::size_t available, TableLayout& layout)
{
    const std::size_t descriptors = head.size() < kHeaderSize ? 1 : (head.size() - kHeaderSize) / kDescriptorSize;
    if (available < kHeaderSize + descriptors * kDescriptorSize)
        return false;
    const int recordLength = Int16At(head.data() + kRecordLengthOffset);
    layout.fields = FieldsOf(head, recordLength);
    layout.headerLength = static_cast<int>(head.size());
    layout.recordLength = recordLength;
    const std::uint32_t records = UInt32At(head.data() + kCountOffset);
    layout.records = static_cast<int>(std::min<std::uint32_t>(records, std::numeric_limits<int>::max()));
    layout.head = std::move(head);
    return true;
}

void AppendField(std::vector<TableField>& fields, std::string_view name, char type, int length)
{
    TableField field;
    std::copy_n(name.data(), std::min<std::size_t>(name.size(), kFieldNameSize), field.name);
    field.type = type;
    field.length = length;
    field.offset = fields.empty() ? 1 : fields.back().offset + static_cast<std::int16_t>(fields.back().length);
    fields.push_back(field);
}

std::vector<char> MakeHead(const std::vector<TableField>& fields, const std::tm* now)
{
    const std::int64_t recordLength = SumOfLengths(fields);
    const std::size_t headerLength = kHeaderSize + fields.size() * kDescriptorSize + 1;
    if (recordLength > kMaxTableLength || headerLength > kMaxTableLength)
        return {};
    std::vector<char> head(headerLength);
    head[0] = kVersion;
    if (now != nullptr)
        PutDate(head.data(), *now);
    PutInt16(head.data() + kHeaderLengthOffset, static_cast<int>(headerLength));
    PutInt16(head.data() + kRecordLengthOffset, static_cast<int>(recordLength));
    char* descriptor = head.data() + kHeaderSize;
    for (const TableField& field : fields)
    {
        std::memcpy(descriptor, field.name, kFieldNameSize);
        descriptor[kTypeOffset] = field.type;
        PutInt16(descriptor + kLengthOffset, field.length);
        descriptor += kDescriptorSize;
    }
    *descriptor = kEndMark;
    return head;
}
} // namespace vorn
