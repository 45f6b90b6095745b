#pragma once

#include "apps/vorntool/core/DbfColumns.h"

#include <VornCommon.h>

#include <cstdint>
#include <string>
#include <vector>

namespace vorn::tool
{

/// A table that is made, with its memo file, under names of its own and then takes its place; what was there before
/// stays until then. What goes wrong is a ToolFailure, and nothing is left behind.
class DbfNewTable
{
public:
    /// @param name       the table's name in the end (UTF-8)
    /// @param mayReplace whether files of that name may go
    DbfNewTable(const std::string& name, const std::vector<DbfColumn>& columns, bool mayReplace);
    ~DbfNewTable();
    DbfNewTable(const DbfNewTable&) = delete;
    DbfNewTable& operator=(const DbfNewTable&) = delete;

    /// Adds a record: a value for each column, in the system's code page, that fits it.
    void Add(const std::vector<std::string>& values);

    int Records() const
    {
        return m_records;
    }

    /// Writes what is still missing and puts the files into their places.
    void Finish();

private:
    void CheckNames(bool mayReplace) const;
    void Create();
    std::string AddMemo(const std::string& text);
    void Close();
    void TakePlaces();
    [[noreturn]] void FailToWrite() const;

    std::string m_name;
    std::vector<DbfColumn> m_columns;
    bool m_hasMemos;
    CString m_path;
    CString m_memoPath;
    CString m_unfinished;
    CString m_unfinishedMemo;
    CDBFFile m_table{0};
    CFile m_memos;
    int m_records = 0;
};

} // namespace vorn::tool
