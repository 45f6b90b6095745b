#include "apps/sample/core/DataTable.h"

#include <algorithm>
#include <array>

namespace vorn
{

namespace
{

constexpr int kReadAhead = 512;      // records; about 60 KB of an ordinary table
constexpr int kMemoBeginning = 160;  // characters of a memo that a list shows
constexpr LONGLONG kDescriptor = 32; // bytes of the header, and of each field's description behind it

std::string OneLine(const CString& text, int most)
{
    std::string line(text.GetString(), static_cast<std::size_t>(std::min(text.GetLength(), most)));
    std::replace_if(
        line.begin(), line.end(),
        [](char c)
        {
            return static_cast<unsigned char>(c) < ' ';
        },
        ' ');
    return line;
}

TableResult CauseOf(const std::string& path, UINT mode)
{
    CFile probe;
    CFileException failure;
    if (probe.Open(path.c_str(), mode | CFile::shareDenyWrite, &failure))
        return TableResult::NotTable;
    switch (failure.m_cause)
    {
    case CFileException::sharingViolation:
    case CFileException::lockViolation:
        return TableResult::InUse;
    case CFileException::accessDenied:
        return TableResult::Denied;
    default:
        return TableResult::NotFound;
    }
}

} // namespace

DataTable::DataTable() : m_file(kReadAhead), m_cache(*this)
{
}

TableResult DataTable::Open(const std::string& path)
{
    Close();
    m_path = path;
    const TableResult result = OpenEitherWay();
    if (result != TableResult::Done)
        return result;
    m_open = true;
    ReadFields();
    CountLiveRecords();
    return TableResult::Done;
}

TableResult DataTable::OpenEitherWay()
{
    if (m_file.Open(m_path.c_str(), CFile::modeReadWrite))
        return TableResult::Done;
    const TableResult why = CauseOf(m_path, CFile::modeReadWrite);
    if (why != TableResult::InUse && why != TableResult::Denied)
        return why;
    if (!m_file.Open(m_path.c_str(), CFile::modeRead))
        return CauseOf(m_path, CFile::modeRead);
    m_whyReadOnly = why;
    return TableResult::Done;
}

void DataTable::Close()
{
    m_file.Close();
    m_open = false;
    m_whyReadOnly = TableResult::Done;
    m_path.clear();
    m_fields.clear();
    m_sorted.clear();
    m_rows.Reset(0);
    m_cache.Clear();
}

void DataTable::ReadFields()
{
    for (int field = 0; field < m_file.NumFields(); ++field)
        m_fields.push_back({OneLine(m_file.GetFieldName(field), 11), m_file.GetFieldType(field), LengthOf(field)});
    m_sorted.resize(m_fields.size());
}

// The class tells no lengths, so they are taken from where it takes them: the descriptor's 16th byte and, unless the
// field is a number, the 17th above it.
int DataTable::LengthOf(int field)
{
    std::array<BYTE, 2> length{};
    try
    {
        m_file.FP()->Seek(kDescriptor * (field + 1) + 16, CFile::begin);
        if (m_file.FP()->Read(length.data(), 2) < 2)
            return 0;
    }
    catch (CException* failure)
    {
        failure->Delete();
        return 0;
    }
    const int high = IsNumber(field) || length[1] >= 0x80 ? 0 : length[1];
    return length[0] + 256 * high;
}

bool DataTable::IsNumber(int field) const
{
    return m_file.GetFieldType(field) == 'N';
}

// The count in the header may promise more than the file has.
void DataTable::CountLiveRecords()
{
    const LONGLONG bytes = m_file.FileLen() - m_file.HeaderSize();
    const LONGLONG stored = m_file.RecordLength() > 0 ? bytes / m_file.RecordLength() : 0;
    const int records = static_cast<int>(std::clamp<LONGLONG>(stored, 0, m_file.NumRecords()));
    m_rows.Reset(records);
    int next = 0;
    for (int found = m_file.ReadRecord(0); found && m_file.CurRecIndex() < records; found = m_file.ReadRecord(-1))
    {
        for (; next < m_file.CurRecIndex(); ++next)
            m_rows.Delete(next);
        ++next;
    }
    for (; next < records; ++next)
        m_rows.Delete(next);
}

bool DataTable::IsOpen() const
{
    return m_open;
}

bool DataTable::IsReadOnly() const
{
    return m_whyReadOnly != TableResult::Done;
}

TableResult DataTable::WhyReadOnly() const
{
    return m_whyReadOnly;
}

const std::string& DataTable::Path() const
{
    return m_path;
}

const std::vector<FieldFacts>& DataTable::Fields() const
{
    return m_fields;
}

int DataTable::RowCount() const
{
    return m_rows.Count();
}

int DataTable::DeletedCount() const
{
    return m_rows.DeletedCount();
}

int DataTable::RecordLength() const
{
    return m_file.RecordLength();
}

int DataTable::RecordOf(int row) const
{
    return m_rows.RecordOf(row);
}

int DataTable::RowOf(int record) const
{
    return m_rows.RowOf(record);
}

const TableRow* DataTable::Row(int row)
{
    return row < RowCount() ? m_cache.Row(row) : nullptr;
}

void DataTable::LoadRows(int first, std::vector<TableRow>& rows)
{
    const int end = std::min(first + RowCache::kBlockRows, RowCount());
    for (int row = first; row < end; ++row)
    {
        if (!(row == first ? MakeCurrent(row) : m_file.ReadRecord(-1) && CurrentRowNumber() == row))
            return;
        rows.push_back(CurrentRow());
    }
}

bool DataTable::MakeCurrent(int row)
{
    const int record = m_rows.RecordOf(row);
    return record >= 0 && m_file.ReadRecord(record) && m_file.CurRecIndex() == record;
}

std::optional<int> DataTable::CurrentRowNumber() const
{
    const int row = m_rows.RowOf(m_file.CurRecIndex());
    return row < 0 ? std::nullopt : std::optional<int>(row);
}

TableRow DataTable::CurrentRow()
{
    TableRow row;
    row.reserve(m_fields.size());
    for (std::size_t field = 0; field < m_fields.size(); ++field)
    {
        m_file.GetFieldValue(static_cast<int>(field), m_text);
        row.push_back(OneLine(m_text, m_fields[field].type == 'M' ? kMemoBeginning : m_text.GetLength()));
    }
    return row;
}

std::string DataTable::Value(int row, int field)
{
    if (!MakeCurrent(row))
        return {};
    m_file.GetFieldValue(field, m_text);
    return {m_text.GetString(), static_cast<std::size_t>(m_text.GetLength())};
}

int DataTable::MemoField() const
{
    const auto memo = std::find_if(m_fields.begin(), m_fields.end(),
                                   [](const FieldFacts& field)
                                   {
                                       return field.type == 'M';
                                   });
    return memo == m_fields.end() ? -1 : static_cast<int>(memo - m_fields.begin());
}

} // namespace vorn
