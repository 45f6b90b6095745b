#include "apps/vorntool/DbfTable.h"

#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolFailure.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <algorithm>
#include <charconv>
#include <climits>

namespace vorn::tool
{

namespace
{

constexpr int kReadAheadRecords = 500;

UINT ModeOf(DbfAccess access)
{
    return access == DbfAccess::Write ? CFile::modeReadWrite : CFile::modeRead;
}

std::string FromHex(const std::string& digits)
{
    std::string bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2)
    {
        unsigned char byte = 0;
        const char* const end = digits.data() + std::min(i + 2, digits.size());
        const auto result = std::from_chars(digits.data() + i, end, byte, 16);
        if (result.ptr != digits.data() + i + 2 || result.ec != std::errc())
        {
            throw ToolWrongUse(Quoted(digits) + " is no row of bytes of two hexadecimal digits");
        }
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

} // namespace

CString DbfPath(const std::string& name)
{
    const std::optional<CString> path = LibraryFromUtf8(name);
    if (!path || name.empty())
    {
        throw ToolWrongUse(Quoted(name) + " cannot be the name of a table");
    }
    return *path;
}

CString DbfMemoPath(const CString& table, const char* ending)
{
    CString memo = table;
    memo.Replace(table.Right(4), ending);
    return memo;
}

DbfTable::DbfTable(const Invocation& call, DbfAccess access)
    : m_name(call.values.at(0)), m_path(DbfPath(m_name)), m_table(access == DbfAccess::Scan ? kReadAheadRecords : 0)
{
    TakeKey(call);
    TakeOffset(call);
    m_table.SetDecodeString(m_key.data(), static_cast<int>(m_key.size()));
    m_table.SetBaseOffset(m_offset);
    if (m_table.Open(m_path, static_cast<int>(ModeOf(access))) == 0)
    {
        FailToOpen(ModeOf(access));
    }
    ReadLayout();
}

void DbfTable::TakeKey(const Invocation& call)
{
    if (!call.Has("key") && !call.Has("key-hex"))
    {
        return;
    }
    if (call.Has("key") && call.Has("key-hex"))
    {
        throw ToolWrongUse("--key and --key-hex exclude each other");
    }
    const std::optional<CString> text = LibraryFromUtf8(call.ValueOf("key", ""));
    if (!text)
    {
        throw ToolWrongUse("the key has characters that no table can be coded with");
    }
    m_key = call.Has("key") ? text->GetString() : FromHex(call.ValueOf("key-hex", ""));
    if (m_key.empty())
    {
        throw ToolWrongUse("the key is empty");
    }
}

void DbfTable::TakeOffset(const Invocation& call)
{
    const std::string given = call.ValueOf("offset", "0");
    const std::optional<std::int64_t> offset = ParseWhole(given);
    if (!offset || *offset < 0 || *offset > INT_MAX)
    {
        throw ToolWrongUse(Quoted(given) + " is no offset from 0 to 2147483647");
    }
    m_offset = static_cast<int>(*offset);
}

// The library only says that it did not open; the system says why.
void DbfTable::FailToOpen(UINT mode)
{
    CFile file;
    CFileException error;
    if (file.Open(m_path, mode | CFile::shareDenyWrite, &error) != FALSE)
    {
        throw ToolFailure(Quoted(m_name) + (m_offset > 0 ? " holds no table there" : " is no table") +
                          ": its header is damaged or cut off");
    }
    switch (error.m_lOsError)
    {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
        throw ToolFailure("there is no file " + Quoted(m_name));
    case ERROR_SHARING_VIOLATION:
        throw ToolFailure("another program has " + Quoted(m_name) + " open");
    case ERROR_ACCESS_DENIED:
        throw ToolFailure("access to " + Quoted(m_name) + " is denied");
    default:
        throw ToolFailure(Quoted(m_name) + " could not be opened: error " + std::to_string(error.m_lOsError));
    }
}

std::vector<std::uint8_t> DbfBytesAt(CFile& file, LONGLONG place, std::size_t count)
{
    std::vector<std::uint8_t> bytes(count);
    file.Seek(place, CFile::begin);
    bytes.resize(file.Read(bytes.data(), static_cast<UINT>(count)));
    return bytes;
}

void DbfTable::ReadLayout()
{
    CFile& file = *m_table.FP();
    const std::vector<std::uint8_t> fixed = DbfBytesAt(file, m_offset, kDbfHeaderSize);
    const int length = std::max(ReadDbfLayout(fixed).headerLength, static_cast<int>(kDbfHeaderSize));
    m_layout = ReadDbfLayout(DbfBytesAt(file, m_offset, static_cast<std::size_t>(length)));
    const std::int64_t behind = static_cast<std::int64_t>(file.GetLength()) - PlaceOf(0);
    m_held = HeldRecords(m_layout, static_cast<std::uint64_t>(std::max<std::int64_t>(behind, 0)));
}

std::int64_t DbfTable::PlaceOf(std::uint32_t record) const
{
    return std::int64_t{m_offset} + m_layout.headerLength + std::int64_t{m_layout.recordLength} * record;
}

} // namespace vorn::tool
