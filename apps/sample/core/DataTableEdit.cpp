#include "apps/sample/core/DataTable.h"

#include <algorithm>

namespace vorn
{

namespace
{

constexpr std::size_t kMemoBlock = 512;
constexpr std::size_t kMemoHeader = 8;

std::string ToTheRight(const std::string& text, int length)
{
    const std::size_t width = static_cast<std::size_t>(std::max(length, 0));
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

// A number as the table reads it back: without zeros at its beginning, "0" for none.
std::string AsRead(const std::string& digits)
{
    const std::size_t first = digits.find_first_not_of('0');
    return first == std::string::npos ? "0" : digits.substr(first);
}

} // namespace

TableResult DataTable::Check(int field, const std::string& value) const
{
    if (!m_open || field < 0 || static_cast<std::size_t>(field) >= m_fields.size())
        return TableResult::NotWritten;
    if (IsReadOnly())
        return TableResult::ReadOnly;
    const FieldFacts& description = m_fields[static_cast<std::size_t>(field)];
    if (description.type == 'M')
        return TableResult::Done;
    if (value.size() > static_cast<std::size_t>(description.length))
        return TableResult::TooLong;
    const bool digits = value.find_first_not_of("0123456789") == std::string::npos;
    return description.type == 'N' && !digits ? TableResult::NotDigits : TableResult::Done;
}

TableResult DataTable::SetValue(int row, int field, const std::string& value)
{
    if (const TableResult check = Check(field, value); check != TableResult::Done)
        return check;
    if (!MakeCurrent(row))
        return TableResult::NotWritten;
    std::string text = FieldText(field, value);
    if (m_fields[static_cast<std::size_t>(field)].type == 'M' && !value.empty())
    {
        if (!m_file.WriteDBTHeader(nullptr))
            return TableResult::NoMemoFile;
        const long block = WriteMemo(value);
        if (block == 0)
            return TableResult::NotWritten;
        text = ToTheRight(std::to_string(block), m_fields[static_cast<std::size_t>(field)].length);
    }
    m_file.SetFieldValue(field, text.c_str());
    return WriteCurrentRecord(m_file.CurRecIndex(), field, value);
}

std::string DataTable::FieldText(int field, const std::string& value) const
{
    const FieldFacts& description = m_fields[static_cast<std::size_t>(field)];
    if (description.type == 'M')
        return {};
    return description.type == 'N' && !value.empty() ? ToTheRight(value, description.length) : value;
}

// The number of the memo's first block, 0 on failure. The call answers the next free block behind the memo.
long DataTable::WriteMemo(const std::string& text)
{
    const long next = m_file.WriteDBTRecord(nullptr, text.c_str());
    if (next == 0 || !m_file.WriteDBTHeader(nullptr))
        return 0;
    return next - static_cast<long>((text.size() + kMemoHeader + kMemoBlock - 1) / kMemoBlock);
}

TableResult DataTable::WriteCurrentRecord(int record, int field, const std::string& value)
{
    m_cache.Clear();
    m_sorted.assign(m_fields.size(), std::nullopt);
    try
    {
        m_file.FP()->Seek(m_file.HeaderSize() + LONGLONG{m_file.RecordLength()} * record, CFile::begin);
        if (!m_file.WriteRecord(nullptr))
            return TableResult::NotWritten;
    }
    catch (CException* failure)
    {
        failure->Delete();
        return TableResult::NotWritten;
    }
    std::string expected = IsNumber(field) ? AsRead(value) : value;
    if (m_fields[static_cast<std::size_t>(field)].type != 'M')
        expected.erase(expected.find_last_not_of(" \t") + 1);
    return Value(m_rows.RowOf(record), field) == expected ? TableResult::Done : TableResult::NotWritten;
}

TableResult DataTable::Delete(int row)
{
    if (IsReadOnly())
        return TableResult::ReadOnly;
    const int record = m_rows.RecordOf(row);
    if (!m_open || !MakeCurrent(row))
        return TableResult::NotWritten;
    m_file.DeleteRecord();
    m_cache.Clear();
    if (m_file.ReadRecord(record) && m_file.CurRecIndex() == record)
        return TableResult::NotWritten;
    m_rows.Delete(record);
    return TableResult::Done;
}

TableResult DataTable::Pack()
{
    if (IsReadOnly())
        return TableResult::ReadOnly;
    if (!m_open || m_file.Pack() != 0)
        return TableResult::NotWritten;
    return Open(std::string(m_path));
}

} // namespace vorn
