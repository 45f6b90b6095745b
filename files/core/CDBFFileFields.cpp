#include "files/core/CDBFFile.h"

#include "files/core/FieldText.h"
#include "files/core/NoThrow.h"
#include "files/core/TableState.h"

#include <algorithm>
#include <cstring>

using vorn::NoThrow;
using vorn::TableField;
using vorn::TableState;

namespace
{
std::size_t TextSize(const char* bytes, const TableField& field)
{
    return vorn::TrimmedLength(bytes, static_cast<std::size_t>(field.size));
}

// Numbers, fields that do not exist, and texts that need a new block.
void AssignText(CString& out, TableState& state, int field)
{
    vorn::FieldScratch scratch;
    const std::string_view text = state.TextOf(field, scratch);
    const bool isPlain = state.PlainField(field) != nullptr;
    const std::size_t room = isPlain ? static_cast<std::size_t>(state.Field(field).size) : text.size();
    vorn::AssignText(out, text.data(), text.size(), room);
}

[[gnu::noinline]] void AssignOther(CString& out, TableState& state, int field)
{
    const bool isAssigned =
        NoThrow(false,
                [&]
                {
                    if (state.reader.Record() != nullptr && state.IsField(field) && state.Field(field).type == 'M')
                        state.ReadMemoOf(state.Field(field), state.reader.Record(), out);
                    else
                        AssignText(out, state, field);
                    return true;
                });
    if (!isAssigned)
        out.Empty();
}

// What does not fit the record stays away.
void SetValue(TableState& state, const TableField& field, std::string_view value)
{
    char* record = state.reader.RecordToFill();
    if (record == nullptr)
        return;
    std::memset(record + field.start, ' ', static_cast<std::size_t>(field.size));
    const int room = state.layout.recordLength - field.offset;
    if (field.offset >= 0 && room > 0)
        std::copy_n(value.data(), std::min(value.size(), static_cast<std::size_t>(room)), record + field.offset);
}
} // namespace

CString CDBFFile::GetFieldValue(int field)
{
    if (const TableField* plain = m_state->PlainField(field)) [[likely]]
    {
        const char* bytes = m_state->reader.Record() + plain->start;
        return NoThrow(CString(),
                       [&]
                       {
                           return CString(bytes, static_cast<int>(TextSize(bytes, *plain)));
                       });
    }
    CString value;
    AssignOther(value, *m_state, field);
    return value;
}

CString CDBFFile::GetFieldValue(const char* name)
{
    return GetFieldValue(GetFieldNumber(name));
}

void CDBFFile::GetFieldValue(int field, CString& out)
{
    if (const TableField* plain = m_state->PlainField(field)) [[likely]]
    {
        const char* bytes = m_state->reader.Record() + plain->start;
        if (vorn::AssignInPlace(out, bytes, TextSize(bytes, *plain))) [[likely]]
            return;
    }
    AssignOther(out, *m_state, field);
}

void CDBFFile::GetFieldValue(const char* name, CString& out)
{
    GetFieldValue(GetFieldNumber(name), out);
}

CString CDBFFile::GetFieldValueRaw(const char* name)
{
    const int field = GetFieldNumber(name);
    const char* record = m_state->reader.Record();
    if (field < 0 || record == nullptr)
        return {};
    const TableField& facts = m_state->Field(field);
    return NoThrow(CString(),
                   [&]
                   {
                       return CString(record + facts.start, facts.size);
                   });
}

void CDBFFile::SetFieldValue(int field, const char* value)
{
    if (m_state->layout.IsTable() && m_state->IsField(field))
        SetValue(*m_state, m_state->Field(field), value != nullptr ? value : "");
}

void CDBFFile::SetFieldValue(const char* name, const char* value)
{
    SetFieldValue(GetFieldNumber(name), value);
}

void CDBFFile::SetFieldValue(const char* name, long value)
{
    char digits[3 * sizeof(value) + 2];
    std::snprintf(digits, sizeof(digits), "%ld", value);
    SetFieldValue(name, digits);
}

int CDBFFile::GetFieldNumber(const char* name) const
{
    return m_state->names.Find(m_state->layout.fields, name);
}

CString CDBFFile::GetFieldName(int field) const
{
    return NoThrow(CString(),
                   [&]
                   {
                       return m_state->IsField(field) ? CString(m_state->Field(field).name) : CString();
                   });
}

char CDBFFile::GetFieldType(int field) const
{
    return m_state->IsField(field) ? m_state->Field(field).type : '\0';
}

char CDBFFile::GetFieldType(const char* name) const
{
    return GetFieldType(GetFieldNumber(name));
}

int CDBFFile::NumFields() const
{
    return static_cast<int>(m_state->layout.fields.size());
}

int CDBFFile::NumRecords() const
{
    return m_state->layout.records;
}

int CDBFFile::RecordLength() const
{
    return m_state->layout.recordLength;
}

int CDBFFile::HeaderSize() const
{
    return m_state->layout.headerLength;
}

int CDBFFile::CurRecIndex() const
{
    return m_state->reader.Current();
}

LONGLONG CDBFFile::FileLen() const
{
    return m_state->file.Length();
}

CFile* CDBFFile::FP()
{
    TableState& state = *m_state;
    if (state.file.IsOpen() && !state.reader.IsTouched())
        state.file.StandAt(state.reader.Position());
    return &state.file;
}
