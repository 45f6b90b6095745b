#include "apps/vorntool/DbfNewTable.h"

#include "apps/vorntool/DbfOutput.h"
#include "apps/vorntool/DbfTable.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolFailure.h"

#include <algorithm>
#include <climits>

namespace vorn::tool
{

namespace
{

constexpr ULONGLONG kMemoBlock = 512;

bool HasMemos(const std::vector<DbfColumn>& columns)
{
    return std::any_of(columns.begin(), columns.end(),
                       [](const DbfColumn& column)
                       {
                           return column.type == 'M';
                       });
}

bool Exists(const CString& path)
{
    return GetFileAttributesA(path) != INVALID_FILE_ATTRIBUTES;
}

CString UnusedFor(const std::string& name)
{
    return DbfPath(Utf8FromWide(UnusedBeside(PathFromUtf8(name)).wstring()));
}

bool Move(const CString& from, const CString& to)
{
    return MoveFileExA(from, to, MOVEFILE_REPLACE_EXISTING) != FALSE;
}

} // namespace

DbfNewTable::DbfNewTable(const std::string& name, const std::vector<DbfColumn>& columns, bool mayReplace)
    : m_name(name), m_columns(columns), m_hasMemos(HasMemos(columns)), m_path(DbfPath(name)),
      m_memoPath(DbfMemoPath(m_path, ".dbt"))
{
    CheckNames(mayReplace);
    m_unfinished = UnusedFor(name);
    m_unfinishedMemo = DbfMemoPath(m_unfinished, ".dbt");
    Create();
}

DbfNewTable::~DbfNewTable()
{
    m_table.Close();
    m_memos.Abort();
    DeleteFileA(m_unfinished);
    if (m_hasMemos)
    {
        DeleteFileA(m_unfinishedMemo);
    }
}

// The library finds the memo file by the table's last four characters, wherever they stand in its path.
void DbfNewTable::CheckNames(bool mayReplace) const
{
    if (m_hasMemos && (m_memoPath != m_path.Left(m_path.GetLength() - 4) + ".dbt" || m_path.Right(4)[0] != '.'))
    {
        throw ToolFailure(
            "a table with memos needs a name with an ending of three characters that is in its path once");
    }
    if (m_hasMemos && m_memoPath.CompareNoCase(m_path) == 0)
    {
        throw ToolFailure(Quoted(m_name) + " would be the name of its memo file too");
    }
    for (const CString& path : {m_path, m_memoPath})
    {
        if (!mayReplace && Exists(path) && (m_hasMemos || path == m_path))
        {
            throw ToolFailure(Quoted(Utf8FromLibrary(path.GetString())) + " exists; --force replaces it");
        }
    }
}

void DbfNewTable::Create()
{
    for (const DbfColumn& column : m_columns)
    {
        m_table.AddNewField(column.name.c_str(), column.type, column.length);
    }
    if (m_table.Create(m_unfinished) == 0)
    {
        throw ToolFailure(Quoted(m_name) + " cannot be written there");
    }
    const UINT mode = CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive;
    if (m_hasMemos && (m_memos.Open(m_unfinishedMemo, mode) == FALSE || m_table.WriteDBTHeader(&m_memos) == 0))
    {
        FailToWrite();
    }
    m_table.FP()->SeekToEnd();
}

void DbfNewTable::Add(const std::vector<std::string>& values)
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        const DbfColumn& column = m_columns[i];
        const std::string stored = column.type == 'M' ? AddMemo(values[i]) : values[i];
        const std::string placed = stored.empty() ? stored : Placed(column.type, column.length, stored);
        m_table.SetFieldValue(static_cast<int>(i), placed.c_str());
    }
    if (m_records == INT_MAX || m_table.WriteRecord(nullptr) == 0)
    {
        FailToWrite();
    }
    ++m_records;
}

// @return the number of the text's first block; none for an empty text
std::string DbfNewTable::AddMemo(const std::string& text)
{
    if (text.empty())
    {
        return {};
    }
    const ULONGLONG block = m_memos.GetPosition() / kMemoBlock;
    if (m_table.WriteDBTRecord(&m_memos, text.c_str()) == 0)
    {
        FailToWrite();
    }
    return std::to_string(block);
}

void DbfNewTable::Finish()
{
    const bool written =
        m_table.WriteNumRecords(nullptr, m_records) != 0 && (!m_hasMemos || m_table.WriteDBTHeader(&m_memos) != 0);
    if (!written)
    {
        FailToWrite();
    }
    m_table.Close();
    m_memos.Close();
    TakePlaces();
}

// An old memo file steps aside first, so that a new table never stands beside it.
void DbfNewTable::TakePlaces()
{
    const bool stepsAside = m_hasMemos && Exists(m_memoPath);
    const CString aside = stepsAside ? UnusedFor(Utf8FromLibrary(m_memoPath.GetString())) : CString();
    if (stepsAside && !Move(m_memoPath, aside))
    {
        throw ToolFailure(Quoted(Utf8FromLibrary(m_memoPath.GetString())) + " cannot be replaced");
    }
    if (!Move(m_unfinished, m_path))
    {
        if (stepsAside)
        {
            Move(aside, m_memoPath);
        }
        throw ToolFailure(Quoted(m_name) + (Exists(m_path) ? " cannot be replaced" : " cannot be written there"));
    }
    if (m_hasMemos && !Move(m_unfinishedMemo, m_memoPath))
    {
        FailToWrite();
    }
    if (stepsAside)
    {
        DeleteFileA(aside);
    }
}

void DbfNewTable::FailToWrite() const
{
    throw ToolFailure(Quoted(m_name) + " could not be written");
}

} // namespace vorn::tool
