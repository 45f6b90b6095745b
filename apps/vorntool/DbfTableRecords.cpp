#include "apps/vorntool/DbfTable.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolFailure.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <algorithm>
#include <numeric>
#include <sstream>

namespace vorn::tool
{

namespace
{

constexpr std::size_t kMarksBlock = 65536;

bool Exists(const CString& path)
{
    return GetFileAttributesA(path) != INVALID_FILE_ATTRIBUTES;
}

} // namespace

int DbfTable::FieldNamed(const std::string& name)
{
    const std::optional<CString> known = LibraryFromUtf8(name);
    const int field = known ? m_table.GetFieldNumber(*known) : -1;
    if (field < 0 || field >= FieldCount())
    {
        throw ToolFailure("there is no field " + Quoted(name));
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
        throw ToolFailure(found == m_layout.fields.end() ? "the table has no memo field"
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
    if (fields.empty())
    {
        throw ToolWrongUse("--fields names no field");
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
        throw ToolWrongUse(Quoted(number) + " is no number of a record");
    }
    if (*record >= m_held)
    {
        throw ToolFailure("there is no record " + number + ": the table has " + std::to_string(m_held));
    }
    return static_cast<int>(*record);
}

int DbfTable::MakeCurrent(const std::string& number)
{
    const int index = RecordFrom(number);
    const int read = m_table.ReadRecord(index);
    if (read == 0 && m_table.CurRecIndex() == index)
    {
        throw ToolFailure("record " + number + " could not be read");
    }
    if (m_table.CurRecIndex() != index)
    {
        throw ToolFailure("record " + number + " is deleted");
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
        throw ToolFailure("record " + std::to_string(reached) + " could not be read");
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
        const auto bytes = DbfBytesAt(*m_table.FP(), PlaceOf(at), std::size_t{std::min(block, end - at)} * length);
        for (std::size_t i = 0; i < bytes.size(); i += length)
        {
            const int mark = bytes[i] ^ mask;
            ++(mark == '*' ? marks.deleted : mark == ' ' ? marks.live : marks.strange);
        }
    }
    return marks;
}

bool DbfTable::LacksMemos(int field)
{
    CString block = m_table.GetFieldValueRaw(m_table.GetFieldName(field));
    return Field(field).type == 'M' && MemoName().empty() && !block.Trim(" 0").IsEmpty();
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
