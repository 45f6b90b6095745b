#pragma once

#include "apps/sample/core/LiveRows.h"
#include "apps/sample/core/RowCache.h"
#include "files/core/CDBFFile.h"

#include <optional>
#include <string>
#include <vector>

namespace vorn
{

struct FieldFacts
{
    std::string name;
    char type = 'C';
    int length = 0; ///< bytes in a record
};

/// What came of an attempt at a table.
enum class TableResult
{
    Done,
    NotFound,
    InUse,    ///< another program holds it
    Denied,   ///< the file may not be read
    NotTable, ///< no header, or one that is no table's
    ReadOnly, ///< the table is open for reading alone
    TooLong,  ///< the value does not fit into its field
    NotDigits,
    NoMemoFile,
    NotWritten, ///< the system refused; the table is as it was
};

/// A sentence for the user, without a full stop at its end.
const char* Explain(TableResult result);

enum class SearchMethod
{
    Linear, ///< every record in turn
    Binary, ///< halving; only where the table is sorted on the field
};

struct SearchTerms
{
    int field = 0;
    std::string value; ///< of the whole field
    SearchMethod method = SearchMethod::Linear;
    bool matchCase = true; ///< for the linear search; the binary one always does
};

/// A dBASE table as a list shows it: rows are live records, numbered from 0. The library reads, searches and writes;
/// this class keeps count of deleted records and holds the rows near those last asked for.
class DataTable : private RowCache::Source
{
public:
    DataTable();

    /// Opens a table for reading and writing or, where that cannot be, for reading alone, and counts its live records.
    /// What was open before is closed, also on failure.
    TableResult Open(const std::string& path);
    void Close();

    bool IsOpen() const;
    bool IsReadOnly() const;
    /// Why the table is open for reading alone: InUse or Denied. Done when it is not.
    TableResult WhyReadOnly() const;
    const std::string& Path() const;
    const std::vector<FieldFacts>& Fields() const;
    int RowCount() const;
    int DeletedCount() const;
    /// Bytes of a record.
    int RecordLength() const;

    /// The record of a row, from 0; -1 for a row that does not exist.
    int RecordOf(int row) const;
    /// The row of a record; -1 when it is deleted.
    int RowOf(int record) const;

    /// The row's values, of memos the beginning; null for a row that cannot be read. Control characters are blanks.
    /// Valid until the next call of this object.
    const TableRow* Row(int row);

    /// A value exactly as the table has it, of memos the whole text. Empty where there is none.
    std::string Value(int row, int field);

    /// The first field of memos; -1 for none.
    int MemoField() const;

    /// @name Searching
    /// @{

    /// Finds the first row that fits.
    std::optional<int> FindFirst(const SearchTerms& terms);
    /// Finds the next row behind `row` that fits the terms of the last FindFirst().
    std::optional<int> FindNext(int row);
    /// Finds a row whose field begins with a text, ASCII letters matching either way: from `row` on, then from the top.
    std::optional<int> FindBeginning(int field, const std::string& text, int row);
    /// True when the rows ascend by the field, as the binary search needs it. Reads the table once, then remembers.
    bool IsSortedBy(int field);
    /// @}

    /// @name Changing
    /// @{

    /// Whether a value may be written to a field.
    TableResult Check(int field, const std::string& value) const;
    /// Writes a value and reads it back. A memo's text goes to the end of the memo file.
    TableResult SetValue(int row, int field, const std::string& value);
    TableResult Delete(int row);
    /// Rewrites the table without its deleted records and opens it again.
    TableResult Pack();
    /// @}

private:
    void LoadRows(int first, std::vector<TableRow>& rows) override;
    TableResult OpenEitherWay();
    void ReadFields();
    int LengthOf(int field);
    void CountLiveRecords();
    bool MakeCurrent(int row);
    TableRow CurrentRow();
    std::optional<int> CurrentRowNumber() const;
    int FirstOfRun(int row, int field);
    bool Ascends(int field);
    std::string FieldText(int field, const std::string& value) const;
    TableResult WriteCurrentRecord(int record, int field, const std::string& value);
    long WriteMemo(const std::string& text);
    bool IsNumber(int field) const;

    CDBFFile m_file;
    std::string m_path;
    TableResult m_whyReadOnly = TableResult::Done;
    bool m_open = false;
    std::vector<FieldFacts> m_fields;
    LiveRows m_rows;
    RowCache m_cache;
    SearchTerms m_terms;
    std::vector<std::optional<bool>> m_sorted; // for each field, when it is known
    CString m_text;                            // keeps its memory from value to value
};

} // namespace vorn
