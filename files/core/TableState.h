#pragma once

/// @file
/// What a table object holds.
#include "files/core/DecodeKey.h"
#include "files/core/FieldNames.h"
#include "files/core/Memo.h"
#include "files/core/RecordReader.h"
#include "files/core/TableFile.h"
#include "files/core/TableLayout.h"
#include "files/core/TableQuery.h"

#include <array>
#include <optional>
#include <string_view>

namespace vorn
{
/// Room for field texts that do not stand in the record as they are.
struct FieldScratch
{
    std::array<char, 512> digits;
    CString memo;
};

struct TableState
{
    CString name;
    UINT mode = 0; ///< Of the open table, without sharing.
    TableFile file;
    CFile memo;
    TableLayout layout;
    unsigned readableFields = 0; ///< Fields that the table's head has.
    DecodeKey key;
    RecordReader reader{file, layout, key};
    int readAhead = 0;
    TableQuery query;
    FieldNames names;

    bool IsField(int field) const
    {
        return field >= 0 && static_cast<std::size_t>(field) < layout.fields.size();
    }
    /// The field when its value is made of its bytes alone and a record was read; null otherwise.
    const TableField* PlainField(int field) const
    {
        if (static_cast<unsigned>(field) >= readableFields || reader.Record() == nullptr)
            return nullptr;
        const TableField& facts = Field(field);
        return facts.isPlain ? &facts : nullptr;
    }
    const TableField& Field(int field) const
    {
        return layout.fields[static_cast<std::size_t>(field)];
    }
    bool HasMemo() const
    {
        return memo.m_hFile != CFile::hFileNull;
    }

    /// Reads head and descriptors from the base offset; without them there are no fields and no records.
    bool ReadHead();
    /// Opens the memo file that belongs to the table's name.
    void OpenMemo();
    /// Closes the files; the layout stays.
    void CloseFiles();
    /// No fields, no records.
    void ForgetTable();

    /// The memo whose number stands in a field of a record.
    void ReadMemoOf(const TableField& field, const char* record, CString& text);
    /// A field of a record as text, in the record or in `scratch`. The record has kTrimMargin bytes in front.
    std::string_view TextOf(const TableField& field, const char* record, FieldScratch& scratch);
    /// The same of the current record; empty for a field that does not exist.
    std::string_view TextOf(int field, FieldScratch& scratch);
    bool IsMatch(FieldScratch& scratch);
};
} // namespace vorn
