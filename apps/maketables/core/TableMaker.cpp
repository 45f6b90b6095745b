#include "apps/maketables/core/TableMaker.h"

#include "apps/maketables/core/CsvText.h"
#include "files/core/CDBFFile.h"

#include <algorithm>
#include <charconv>

namespace vorn
{

namespace
{

constexpr int kMemoNumberDigits = 10;
constexpr std::size_t kMaxNameLength = 10; // as dBASE has it, so that other programs can read the table

struct Column
{
    std::string name;
    char type = 'C';
    int length = 0;
};

struct Problem
{
    std::string text;
};

[[noreturn]] void Fail(std::size_t line, const std::string& text)
{
    throw Problem{"line " + std::to_string(line) + ": " + text};
}

// NAME:TYPE:LENGTH
Column ParseColumn(const std::string& cell)
{
    const std::size_t first = cell.find(':');
    const std::size_t second = cell.find(':', first + 1);
    if (first == std::string::npos || second != first + 2 || first == 0 || first > kMaxNameLength)
        Fail(1, '"' + cell + "\" is no NAME:TYPE:LENGTH");
    Column column{cell.substr(0, first), cell[first + 1], 0};
    const char* const end = cell.data() + cell.size();
    const auto [stop, error] = std::from_chars(cell.data() + second + 1, end, column.length);
    const bool isMemo = column.type == 'M';
    if (error != std::errc() || stop != end || column.length < 1 || column.length > 254 ||
        (isMemo && column.length != kMemoNumberDigits))
        Fail(1, '"' + cell + "\" has a wrong length");
    if (!isMemo && column.type != 'C' && column.type != 'N')
        Fail(1, '"' + cell + "\" has a type other than C, N and M");
    return column;
}

void CheckCell(const Column& column, const std::string& cell, std::size_t line)
{
    if (column.type != 'M' && cell.size() > static_cast<std::size_t>(column.length))
        Fail(line, column.name + " is longer than " + std::to_string(column.length) + ": " + cell);
    if (column.type == 'N' && cell.find_first_not_of("0123456789") != std::string::npos)
        Fail(line, column.name + " has other characters than digits: " + cell);
}

std::string ToTheRight(const std::string& text, int length)
{
    return std::string(static_cast<std::size_t>(length) - text.size(), ' ') + text;
}

class Maker
{
public:
    Maker(const std::vector<CsvLine>& lines, const std::string& tableName) : m_lines(lines), m_name(tableName)
    {
        if (lines.empty())
            Fail(1, "there are no columns");
        std::transform(lines.front().begin(), lines.front().end(), std::back_inserter(m_columns), ParseColumn);
        for (std::size_t line = 1; line < lines.size(); ++line)
            CheckLine(line);
    }

    void Write()
    {
        for (const Column& column : m_columns)
            m_table.AddNewField(column.name.c_str(), column.type, column.length);
        if (!m_table.Create(m_name.c_str()))
            throw Problem{"cannot make " + m_name};
        OpenMemo();
        for (std::size_t line = 1; line < m_lines.size(); ++line)
            WriteLine(line);
        if (!m_table.WriteNumRecords(nullptr, static_cast<int>(m_lines.size()) - 1) || !m_table.WriteDBTHeader(&m_memo))
            throw Problem{"cannot finish " + m_name};
        m_memo.Close();
        m_table.Close();
    }

private:
    void CheckLine(std::size_t line) const
    {
        if (m_lines[line].size() != m_columns.size())
            Fail(line + 1,
                 std::to_string(m_lines[line].size()) + " cells for " + std::to_string(m_columns.size()) + " columns");
        for (std::size_t column = 0; column < m_columns.size(); ++column)
            CheckCell(m_columns[column], m_lines[line][column], line + 1);
    }

    void OpenMemo()
    {
        const std::string::size_type dot = m_name.size() - 4;
        const bool upper = m_name.ends_with("DBF");
        const std::string name = m_name.substr(0, dot) + (upper ? ".DBT" : ".dbt");
        if (!m_memo.Open(name.c_str(), CFile::modeReadWrite | CFile::modeCreate) || !m_table.WriteDBTHeader(&m_memo))
            throw Problem{"cannot make " + name};
        m_nextBlock = 1;
    }

    void WriteLine(std::size_t line)
    {
        for (std::size_t column = 0; column < m_columns.size(); ++column)
        {
            const std::string text = FieldText(m_columns[column], m_lines[line][column]);
            m_table.SetFieldValue(static_cast<int>(column), text.c_str());
        }
        if (!m_table.WriteRecord(nullptr))
            throw Problem{"cannot write " + m_name};
    }

    std::string FieldText(const Column& column, const std::string& cell)
    {
        if (column.type == 'C' || cell.empty())
            return cell;
        return ToTheRight(column.type == 'M' ? std::to_string(WriteMemo(cell)) : cell, column.length);
    }

    // The number of the memo's first block.
    long WriteMemo(const std::string& text)
    {
        const long block = m_nextBlock;
        m_nextBlock = m_table.WriteDBTRecord(&m_memo, text.c_str());
        if (m_nextBlock == 0)
            throw Problem{"cannot write a memo of " + m_name};
        return block;
    }

    const std::vector<CsvLine>& m_lines;
    const std::string& m_name;
    std::vector<Column> m_columns;
    CDBFFile m_table{0};
    CFile m_memo;
    long m_nextBlock = 0;
};

} // namespace

std::string MakeTable(std::string_view csv, const std::string& tableName)
{
    if (!tableName.ends_with(".dbf") && !tableName.ends_with(".DBF"))
        return tableName + " does not end in .dbf";
    const std::optional<std::vector<CsvLine>> lines = ParseCsv(csv);
    if (!lines)
        return "a quote is not closed";
    try
    {
        Maker(*lines, tableName).Write();
        return {};
    }
    catch (const Problem& problem)
    {
        return problem.text;
    }
}

} // namespace vorn
