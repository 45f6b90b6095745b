#include "tests/oracle/OurTable.h"
#include "files/core/CDBFFile.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace vorn::test
{
namespace
{

void ExpectHeader(CDBFFile& table, const TableFacts& facts)
{
    const int columns = static_cast<int>(facts.columns.size());
    ASSERT_EQ(columns, table.NumFields());
    EXPECT_EQ(static_cast<int>(facts.rows.size()), table.NumRecords());
    EXPECT_EQ(RecordLengthOf(facts), table.RecordLength());
    EXPECT_EQ(33 + 32 * columns, table.HeaderSize());
    for (int i = 0; i < columns; ++i)
    {
        const Column& column = facts.columns[static_cast<std::size_t>(i)];
        EXPECT_STREQ(column.name.c_str(), table.GetFieldName(i));
        EXPECT_EQ(column.type, table.GetFieldType(i));
        EXPECT_EQ(i, table.GetFieldNumber(column.name.c_str()));
    }
}

void ExpectRecord(CDBFFile& table, const std::vector<Column>& columns, const Row& row)
{
    CString value;
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        const char* name = columns[i].name.c_str();
        table.GetFieldValue(static_cast<int>(i), value);
        EXPECT_STREQ(row[i].c_str(), value) << name << " of record " << table.CurRecIndex();
        EXPECT_STREQ(row[i].c_str(), table.GetFieldValue(name));
        EXPECT_STREQ(Stored(columns[i], row[i]).c_str(), table.GetFieldValueRaw(name));
    }
}

} // namespace

void WriteOurTable(const std::string& path, const TableFacts& facts)
{
    CDBFFile table(0);
    for (const Column& column : facts.columns)
    {
        table.AddNewField(column.name.c_str(), column.type, column.width);
    }
    ASSERT_EQ(1, table.Create(path.c_str()));
    for (const Row& row : facts.rows)
    {
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            table.SetFieldValue(static_cast<int>(i), Stored(facts.columns[i], row[i]).c_str());
        }
        table.WriteRecord(nullptr);
    }
    table.WriteNumRecords(nullptr, static_cast<int>(facts.rows.size()));
    EXPECT_EQ(static_cast<int>(facts.rows.size()), table.NumRecords());
}

void ExpectWeRead(const std::string& path, const TableFacts& facts, int readAhead)
{
    SCOPED_TRACE(path + " with read-ahead of " + std::to_string(readAhead));
    CDBFFile table(readAhead);
    ASSERT_EQ(1, table.Open(path.c_str(), CFile::modeRead));
    ASSERT_NO_FATAL_FAILURE(ExpectHeader(table, facts));
    int index = 0;
    for (const Row& row : facts.rows)
    {
        ASSERT_EQ(1, table.ReadRecord(-1));
        ASSERT_EQ(index, table.CurRecIndex());
        ExpectRecord(table, facts.columns, row);
        ++index;
    }
    EXPECT_EQ(0, table.ReadRecord(-1));
}

TableFacts Numbered(TableFacts facts)
{
    facts.columns.insert(facts.columns.begin(), Column{"NUMBER", 'C', 6});
    char number[24];
    for (std::size_t i = 0; i < facts.rows.size(); ++i)
    {
        std::snprintf(number, sizeof number, "%06zu", i);
        facts.rows[i].insert(facts.rows[i].begin(), number);
    }
    return facts;
}

} // namespace vorn::test
