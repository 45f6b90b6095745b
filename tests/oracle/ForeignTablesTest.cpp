#include "files/core/CDBFFile.h"
#include "tests/oracle/OurTable.h"
#include "tests/oracle/OutsideTool.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

/// Tables made by other programs: each header fact, field and value is read as they wrote it.
namespace
{

using namespace vorn::test;

void MakeByDbfcreate(const std::string& path, const TableFacts& facts)
{
    std::vector<std::string> words{"dbfcreate", path};
    for (const Column& column : facts.columns)
    {
        words.insert(words.end(), {column.type == 'N' ? "-n" : "-s", column.name, std::to_string(column.width)});
        if (column.type == 'N')
        {
            words.emplace_back("0");
        }
    }
    RunTool(words);
    for (const Row& row : facts.rows)
    {
        words = {"dbfadd", path};
        words.insert(words.end(), row.begin(), row.end());
        RunTool(words);
    }
}

Row NamesOf(const TableFacts& facts)
{
    Row names;
    for (const Column& column : facts.columns)
    {
        names.push_back(column.name);
    }
    return names;
}

std::string ColumnTypes(const TableFacts& facts)
{
    std::string types;
    for (const Column& column : facts.columns)
    {
        types += types.empty() ? "" : ",";
        types += column.type == 'N' ? "Integer(" : "String(";
        types += std::to_string(column.width) + ")";
    }
    return types;
}

/// Returns the table's path.
std::string MakeByOgr(const ScratchFolder& folder, const std::string& name, const TableFacts& facts)
{
    std::vector<Row> lines{NamesOf(facts)};
    lines.insert(lines.end(), facts.rows.begin(), facts.rows.end());
    const std::string csv = folder.Write(name + ".csv", CsvOf(lines));
    folder.Write(name + ".csvt", ColumnTypes(facts));
    const std::string path = folder.File(name + ".dbf");
    RunTool({"ogr2ogr", "-f", "ESRI Shapefile", "-lco", "ENCODING=CP1252", "-oo", "HEADERS=YES", path, csv});
    return path;
}

void ExpectLengthOfFile(const std::string& path, const TableFacts& facts)
{
    CDBFFile table(0);
    ASSERT_EQ(1, table.Open(path.c_str(), CFile::modeRead));
    const auto records = facts.rows.size() * static_cast<std::size_t>(RecordLengthOf(facts));
    const auto length = 33 + 32 * facts.columns.size() + records + 1; // these programs end a table with byte 0x1A
    EXPECT_EQ(length, std::filesystem::file_size(path));
    EXPECT_EQ(length, static_cast<std::size_t>(table.FileLen()));
}

TEST(ForeignTables, ReadsInventedTablesOfDbfcreate)
{
    const ScratchFolder folder;
    for (unsigned seed = 1; seed <= 6; ++seed)
    {
        const TableFacts facts = InventFacts(seed, 1 + seed, 4 * (seed - 1));
        const std::string path = folder.File("made" + std::to_string(seed) + ".dbf");
        MakeByDbfcreate(path, facts);
        for (const int readAhead : {0, 1, 3, 500})
        {
            ExpectWeRead(path, facts, readAhead);
        }
    }
}

TEST(ForeignTables, ReadsInventedTablesOfOgr)
{
    const ScratchFolder folder;
    for (unsigned seed = 11; seed <= 16; ++seed)
    {
        const TableFacts facts = InventFacts(seed, 2 + seed % 7, (seed - 11) * 60);
        const std::string path = MakeByOgr(folder, "made" + std::to_string(seed), facts);
        for (const int readAhead : {0, 1, 7, 500})
        {
            ExpectWeRead(path, facts, readAhead);
        }
        ExpectLengthOfFile(path, facts);
    }
}

TEST(ForeignTables, ReadsAWideTableOfOgr)
{
    const ScratchFolder folder;
    const TableFacts facts = InventFacts(21, 200, 25);
    ExpectWeRead(MakeByOgr(folder, "wide", facts), facts, 4);
}

TEST(ForeignTables, ReadsEmptyTablesAndOneRecord)
{
    const ScratchFolder folder;
    const TableFacts empty{{{"ONE", 'C', 1}, {"TWO", 'N', 3}}, {}};
    const TableFacts one{empty.columns, {{"x", "128"}}};
    MakeByDbfcreate(folder.File("empty.dbf"), empty);
    MakeByDbfcreate(folder.File("one.dbf"), one);
    ExpectWeRead(folder.File("empty.dbf"), empty, 10);
    ExpectWeRead(folder.File("one.dbf"), one, 10);
    ExpectWeRead(MakeByOgr(folder, "ogrempty", empty), empty, 10);
    ExpectWeRead(MakeByOgr(folder, "ogrone", one), one, 10);
}

TEST(ForeignTables, ReadsTheWidestTextAndAllItsCharacters)
{
    const ScratchFolder folder;
    const TableFacts facts{{{"TENLETTERS", 'C', 254}, {"B", 'C', 3}}, {{std::string(254, 'w'), "end"}, {"", "end"}}};
    ExpectWeRead(MakeByOgr(folder, "widest", facts), facts, 0);
}

TEST(ForeignTables, ReadsTextsOfTheWesternCodePage)
{
    const ScratchFolder folder;
    const TableFacts sent{{{"NAME", 'C', 12}, {"X", 'C', 1}}, {{"Z\xC3\xBCrich", "1"}, {"Montr\xC3\xA9\x61l", "2"}}};
    const TableFacts held{sent.columns, {{"Z\xFCrich", "1"}, {"Montr\xE9\x61l", "2"}}};
    ExpectWeRead(MakeByOgr(folder, "western", sent), held, 0);
}

TEST(ForeignTables, KeepsLeadingBlanksThatOthersTrim)
{
    const ScratchFolder folder;
    const TableFacts facts{{{"A", 'C', 6}, {"B", 'C', 6}}, {{"  x", " y z "}}};
    MakeByDbfcreate(folder.File("blanks.dbf"), facts);
    CDBFFile table(0);
    ASSERT_EQ(1, table.Open(folder.File("blanks.dbf").c_str(), CFile::modeRead));
    ASSERT_EQ(1, table.ReadRecord(0));
    EXPECT_STREQ("  x", table.GetFieldValue("A"));
    EXPECT_STREQ(" y z", table.GetFieldValue("b"));
    EXPECT_STREQ(" y z  ", table.GetFieldValueRaw("B"));
}

/// An absent number is a field of asterisks there; the low four bits of each are 10.
TEST(ForeignTables, ReadsTheDigitsOfAnAbsentNumber)
{
    const ScratchFolder folder;
    const TableFacts facts{{{"A", 'N', 3}, {"B", 'C', 2}}, {{"", "ok"}, {"7", "ok"}}};
    MakeByDbfcreate(folder.File("absent.dbf"), facts);
    CDBFFile table(0);
    ASSERT_EQ(1, table.Open(folder.File("absent.dbf").c_str(), CFile::modeRead));
    ASSERT_EQ(1, table.ReadRecord(0));
    EXPECT_STREQ("***", table.GetFieldValueRaw("A"));
    EXPECT_STREQ("101010", table.GetFieldValue("A"));
    ASSERT_EQ(1, table.NextRecord());
    EXPECT_STREQ("7", table.GetFieldValue("A"));
}

/// Decimals of a number move the fields behind it by 256 bytes each, here out of the record.
TEST(ForeignTables, DecimalsOfANumberMoveTheFieldsBehindIt)
{
    const ScratchFolder folder;
    const std::string path = folder.File("decimals.dbf");
    RunTool({"dbfcreate", path, "-s", "NAME", "8", "-n", "VALUE", "8", "2", "-s", "BEHIND", "5"});
    RunTool({"dbfadd", path, "Denver", "12.25", "lost"});
    CDBFFile table(0);
    ASSERT_EQ(1, table.Open(path.c_str(), CFile::modeRead));
    ASSERT_EQ(1, table.ReadRecord(0));
    EXPECT_STREQ("Denver", table.GetFieldValue("NAME"));
    EXPECT_STREQ("   12.25", table.GetFieldValueRaw("VALUE"));
    EXPECT_STREQ("121425", table.GetFieldValue("VALUE")); // the point's low four bits are 14
    EXPECT_STREQ("", table.GetFieldValue("BEHIND"));
    EXPECT_EQ(22, table.RecordLength());
}

TEST(ForeignTables, ReadsDatesAsTheirDigits)
{
    const ScratchFolder folder;
    const std::string csv = folder.Write("dates.csv", "ID,DAY\na,2026/01/31\nb,1903/12/17\n");
    folder.Write("dates.csvt", "String(3),Date");
    RunTool({"ogr2ogr", "-f", "ESRI Shapefile", folder.File("dates.dbf"), csv});
    CDBFFile table(2);
    ASSERT_EQ(1, table.Open(folder.File("dates.dbf").c_str(), CFile::modeRead));
    EXPECT_EQ('D', table.GetFieldType("DAY"));
    ASSERT_EQ(1, table.NextRecord() + table.ReadRecord(0));
    EXPECT_STREQ("20260131", table.GetFieldValue("DAY"));
    ASSERT_EQ(1, table.ReadRecord(-1));
    EXPECT_STREQ("19031217", table.GetFieldValue("DAY"));
}

TEST(ForeignTables, DumpsATableOfDbfcreateByteForByte)
{
    const ScratchFolder folder;
    const TableFacts facts{{{"NAME", 'C', 10}, {"COUNT", 'N', 5}}, {{"Denver", "42"}, {"full width", "99999"}}};
    MakeByDbfcreate(folder.File("a.dbf"), facts);
    CDBFFile table(0);
    ASSERT_EQ(1, table.Open(folder.File("a.dbf").c_str(), CFile::modeRead));
    table.DumpToFile(folder.File("a.txt").c_str());
    EXPECT_EQ("dbt 3\r\ndate: 95 7 26\r\nnum records: 2\r\nrecord len:  16\r\nheader len:  97\r\nnum fields:  2\r\n"
              "NAME type=C length=10 precision=0 offset=1\r\nCOUNT type=N length=5 precision=0 offset=11\r\n\r\n"
              ">Denver    < >   42< \r\n>full width< >99999< \r\n",
              folder.Read("a.txt"));
}

TEST(ForeignTables, FindsEachRecordByLinearAndBinarySearch)
{
    const ScratchFolder folder;
    const TableFacts facts = Numbered(InventFacts(31, 3, 200));
    const std::string path = MakeByOgr(folder, "search", facts);
    CDBFFile table(50);
    ASSERT_EQ(1, table.Open(path.c_str(), CFile::modeRead));
    for (int i = 0; i < 200; ++i)
    {
        const char* key = facts.rows[static_cast<std::size_t>(i)].front().c_str();
        EXPECT_EQ(1, table.Query("NUMBER", key, 1));
        EXPECT_EQ(i, table.CurRecIndex());
        EXPECT_EQ(1, table.QuerySortedStrData("NUMBER", key));
        EXPECT_EQ(i, table.CurRecIndex());
        EXPECT_EQ(1, table.QuerySortedIntData("NUMBER", key));
        EXPECT_EQ(i, table.CurRecIndex());
    }
    EXPECT_EQ(0, table.QuerySortedStrData("NUMBER", "000200"));
}

} // namespace
