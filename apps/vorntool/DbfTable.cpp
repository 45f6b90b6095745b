#include "apps/vorntool/DbfTable.h"

#include "apps/vorntool/DbfFailure.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <numeric>
#include <sstream>

namespace vorn::tool
{

namespace
{

constexpr int kReadAheadRecords = 500;
constexpr std::size_t kMarksBlock = 65536;

UINT ModeOf(DbfAccess access)
{
    return access == DbfAccess::Write ? CFile::modeReadWrite : CFile::modeRead;
}

bool Exists(const CString& path)
{
    return GetFileAttributesA(path) != INVALID_FILE_ATTRIBUTES;
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
            throw DbfWrongUse(Quoted(digits) + " is no row of bytes of two hexadecimal digits");
        }
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

// Bytes of a file from a place on, fewer at its end.
std::vector<std::uint8_t> BytesAt(CFile& file, LONGLONG place, std::size_t count)
{
    std::vector<std::uint8_t> bytes(count);
    file.Seek(place, CFile::begin);
    bytes.resize(file.Read(bytes.data(), static_cast<UINT>(count)));
    return bytes;
}

} // namespace

CString DbfPath(const std::string& name)
{
    const std::optional<CString> path = LibraryFromUtf8(name);
    if (!path || name.empty())
    {
        throw DbfWrongUse(Quoted(name) + " cannot be the name of a table");
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
        throw DbfWrongUse("--key and --key-hex exclude each other");
    }
    const std::optional<CString> text = LibraryFromUtf8(call.ValueOf("key", ""));
    if (!text)
    {
        throw DbfWrongUse("the key has characters that no table can be coded with");
    }
    m_key = call.Has("key") ? text->GetString() : FromHex(call.ValueOf("key-hex", ""));
    if (m_key.empty())
    {
        throw DbfWrongUse("the key is empty");
    }
}

void DbfTable::TakeOffset(const Invocation& call)
{
    const std::string given = call.ValueOf("offset", "0");
    const std::optional<std::int64_t> offset = ParseWhole(given);
    if (!offset || *offset < 0 || *offset > INT_MAX)
    {
        throw DbfWrongUse(Quoted(given) + " is no offset from 0 to 2147483647");
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
        throw DbfFailure(Quoted(m_name) + (m_offset > 0 ? " holds no table there" : " is no table") +
                         ": its header is damaged or cut off");
    }
    switch (error.m_lOsError)
    {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
        throw DbfFailure("there is no file " + Quoted(m_name));
    case ERROR_SHARING_VIOLATION:
        throw DbfFailure("another program has " + Quoted(m_name) + " open");
    case ERROR_ACCESS_DENIED:
        throw DbfFailure("access to " + Quoted(m_name) + " is denied");
    default:
        throw DbfFailure(Quoted(m_name) + " could not be opened: error " + std::to_string(error.m_lOsError));
    }
}

void DbfTable::ReadLayout()
{
    CFile& file = *m_table.FP();
    const std::vector<std::uint8_t> fixed = BytesAt(file, m_offset, kDbfHeaderSize);
    const int length = std::max(ReadDbfLayout(fixed).headerLength, static_cast<int>(kDbfHeaderSize));
    m_layout = ReadDbfLayout(BytesAt(file, m_offset, static_cast<std::size_t>(length)));
    const std::int64_t behind = static_cast<std::int64_t>(file.GetLength()) - PlaceOf(0);
    m_held = HeldRecords(m_layout, static_cast<std::uint64_t>(std::max<std::int64_t>(behind, 0)));
}

std::int64_t DbfTable::PlaceOf(std::uint32_t record) const
{
    return std::int64_t{m_offset} + m_layout.headerLength + std::int64_t{m_layout.recordLength} * record;
}

int DbfTable::FieldNamed(const std::string& name)
{
    const std::optional<CString> known = LibraryFromUtf8(name);
    const int field = known ? m_table.GetFieldNumber(*known) : -1;
    if (field < 0 || field >= FieldCount())
    {
        throw DbfFailure("there is no field " + Quoted(name));
    }
    return field;
}

int DbfTable::OnlyMemoField() const
{
    const auto isMemo = [](const DbfField& field)
    {
        return field.type == 'M';
    };
    const auto found = std::find_if(m_layout.fields.begin(), m_layout.fields.end(), isMemo);
    if (std::count_if(m_layout.fields.begin(), m_layout.fields.end(), isMemo) != 1)
    {
        throw DbfFailure(found == m_layout.fields.end() ? "the table has no memo field"
                                                        : "the table has several memo fields: name one");
    }
    return static_cast<int>(found - m_layout.fields.begin());
}

std::vector<int> DbfTable::FieldsFrom(const Invocation& call)
{
    std::vector<int> fields;
    if (!call.Has("fields"))
    {
        fields.resize(m_layout.fields.size());
        std::iota(fields.begin(), fields.end(), 0);
        return fields;
    }
    std::istringstream names(call.ValueOf("fields", ""));
    for (std::string name; std::getline(names, name, ',');)
    {
        fields.push_back(FieldNamed(name));
    }
    return fields;
}

std::string DbfTable::FieldName(int field) const
{
    return Utf8FromLibrary(Field(field).name);
}

std::string DbfTable::DoubtAbout(const DbfField& field) const
{
    if (UsableLength(field, m_layout.recordLength) != field.length)
    {
        return "not within the record";
    }
    return field.decimals > 0 ? "decimals read as digits" : std::string();
}

int DbfTable::RecordFrom(const std::string& number) const
{
    const std::optional<std::int64_t> record = ParseWhole(number);
    if (!record || *record < 0)
    {
        throw DbfWrongUse(Quoted(number) + " is no number of a record");
    }
    if (*record >= m_held)
    {
        throw DbfFailure("there is no record " + number + ": the table has " + std::to_string(m_held));
    }
    return static_cast<int>(*record);
}

int DbfTable::MakeCurrent(const std::string& number)
{
    const int index = RecordFrom(number);
    const int read = m_table.ReadRecord(index);
    if (read == 0 && m_table.CurRecIndex() == index)
    {
        throw DbfFailure("record " + number + " could not be read");
    }
    if (m_table.CurRecIndex() != index)
    {
        throw DbfFailure("record " + number + " is deleted");
    }
    return index;
}

bool DbfTable::ReadNext()
{
    if (m_table.ReadRecord(-1) != 0)
    {
        return true;
    }
    const auto reached = static_cast<std::uint32_t>(m_table.CurRecIndex());
    if (reached < m_held)
    {
        throw DbfFailure("record " + std::to_string(reached) + " could not be read");
    }
    return false;
}

const std::string& DbfTable::Value(int field)
{
    m_table.GetFieldValue(field, m_value);
    const std::string_view value(m_value.GetString(), static_cast<std::size_t>(m_value.GetLength()));
    const bool isPlain = std::all_of(value.begin(), value.end(),
                                     [](char c)
                                     {
                                         return static_cast<unsigned char>(c) < 0x80;
                                     });
    isPlain ? m_text.assign(value) : m_text = Utf8FromLibrary(value);
    return m_text;
}

DbfMarks DbfTable::Marks(std::uint32_t first, std::uint32_t count)
{
    DbfMarks marks;
    const auto length = static_cast<std::uint32_t>(std::max(m_layout.recordLength, 1));
    const std::uint32_t block = std::max(static_cast<std::uint32_t>(kMarksBlock) / length, 1u);
    const int mask = m_key.empty() ? 0 : static_cast<unsigned char>(m_key[0]);
    const std::uint32_t end = first + std::min(count, m_held - std::min(first, m_held));
    for (std::uint32_t at = first; at < end; at += block)
    {
        const auto bytes = BytesAt(*m_table.FP(), PlaceOf(at), std::size_t{std::min(block, end - at)} * length);
        for (std::size_t i = 0; i < bytes.size(); i += length)
        {
            const int mark = bytes[i] ^ mask;
            ++(mark == '*' ? marks.deleted : mark == ' ' ? marks.live : marks.strange);
        }
    }
    return marks;
}

std::string DbfTable::MemoName() const
{
    for (const char* const ending : {".dbt", ".btd"})
    {
        const CString memo = DbfMemoPath(m_path, ending);
        if (Exists(memo))
        {
            return Utf8FromLibrary(memo.GetString());
        }
    }
    return {};
}

} // namespace vorn::tool
