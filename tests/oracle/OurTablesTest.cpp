#include "files/core/CDBFFile.h"
#include "tests/oracle/OurTable.h"
#include "tests/oracle/OutsideTool.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <sstream>

/// Tables that this library makes and changes: other programs read in them what was written.
namespace
{

using namespace vorn::test;

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

std::string WithoutBlanksAround(const std::string& text)
{
    const std::size_t begin = text.find_first_not_of(' ');
    return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

/// "Record: 0", then a line "NAME: value" for each field, an empty line, the next record.
std::vector<Row> RowsByDbfdump(const std::string& path, std::size_t columns)
{
    std::vector<Row> rows;
    for (const std::string& line : LinesOf(RunTool({"dbfdump", "-m", "-r", path})))
    {
        if (line.starts_with("Record: "))
        {
            rows.emplace_back();
        }
        else if (!rows.empty() && rows.back().size() < columns)
        {
            rows.back().push_back(WithoutBlanksAround(line.substr(line.find(": ") + 2)));
        }
    }
    return rows;
}

std::vector<Row> RowsByOgr(const std::string& path)
{
    std::vector<Row> rows = ParseCsv(RunTool({"ogr2ogr", "-f", "CSV", "/vsistdout/", path}));
    if (!rows.empty())
    {
        rows.erase(rows.begin()); // the names
    }
    return rows;
}

/// One line for each field, as `dbfdump -h` shows it.
std::vector<std::string> FieldLines(const TableFacts& facts)
{
    std::vector<std::string> lines;
    for (const Column& column : facts.columns)
    {
        lines.push_back("Field " + std::to_string(lines.size()) + ": Type=" + column.type +
                        (column.type == 'N' ? "/Integer" : "/String") + ", Title=`" + column.name +
                        "', Width=" + std::to_string(column.width) + ", Decimals=0");
    }
    return lines;
}

void ExpectOthersRead(const std::string& path, const TableFacts& facts)
{
    SCOPED_TRACE(path);
    auto lines = LinesOf(RunTool({"dbfdump", "-h", path}));
    lines.resize(facts.columns.size());
    EXPECT_EQ(FieldLines(facts), lines);
    EXPECT_EQ(facts.rows, RowsByDbfdump(path, facts.columns.size()));
    EXPECT_EQ(facts.rows, RowsByOgr(path));
}

std::string FilledFields(const TableFacts& facts, const Row& row)
{
    std::string text;
    for (std::size_t i = 0; i < row.size(); ++i)
    {
        text += Stored(facts.columns[i], row[i]);
    }
    return text;
}

TEST(OurTables, OthersReadInventedOnes)
{
    const ScratchFolder folder;
    for (unsigned seed = 41; seed <= 52; ++seed)
    {
        const TableFacts facts = InventFacts(seed, 2 + seed % 9, 1 + (seed - 41) * 30);
        const std::string path = folder.File("ours" + std::to_string(seed) + ".dbf");
        ASSERT_NO_FATAL_FAILURE(WriteOurTable(path, facts));
        ExpectOthersRead(path, facts);
        ExpectWeRead(path, facts, 5);
    }
}

TEST(OurTables, OthersReadNamesOfTenAndElevenCharacters)
{
    const ScratchFolder folder;
    const TableFacts facts{{{"TENLETTERS", 'C', 4}, {"ELEVENCHARS", 'C', 4}, {"N", 'N', 2}}, {{"one", "two", "3"}}};
    const std::string path = folder.File("names.dbf");
    ASSERT_NO_FATAL_FAILURE(WriteOurTable(path, facts));
    ExpectOthersRead(path, facts);
    ExpectWeRead(path, facts, 0);
}

TEST(OurTables, OthersReadTheWidestText)
{
    const ScratchFolder folder;
    const TableFacts facts{{{"A", 'C', 254}, {"B", 'C', 3}}, {{std::string(254, 'w'), "end"}, {"x", "end"}}};
    const std::string path = folder.File("widest.dbf");
    ASSERT_NO_FATAL_FAILURE(WriteOurTable(path, facts));
    ExpectOthersRead(path, facts);
}

TEST(OurTables, OthersReadAnEmptyOneAsEmpty)
{
    const ScratchFolder folder;
    const TableFacts facts{{{"A", 'C', 3}, {"B", 'N', 3}}, {}};
    const std::string path = folder.File("empty.dbf");
    ASSERT_NO_FATAL_FAILURE(WriteOurTable(path, facts));
    EXPECT_EQ("Info for " + path, LinesOf(RunTool({"dbfinfo", path})).front());
    EXPECT_EQ("2 Columns,  0 Records in file", LinesOf(RunTool({"dbfinfo", path})).at(1));
    EXPECT_NE(std::string::npos, RunTool({"ogrinfo", "-al", "-so", path}).find("Feature Count: 0\n"));
    ExpectWeRead(path, facts, 3);
}

TEST(OurTables, OthersReadTodayAsTheDateOfTheLastChange)
{
    const ScratchFolder folder;
    const std::string path = folder.File("today.dbf");
    const std::time_t before = std::time(nullptr);
    ASSERT_NO_FATAL_FAILURE(WriteOurTable(path, {{{"A", 'C', 3}, {"B", 'C', 1}}, {{"x", "y"}}}));
    const std::string info = RunTool({"ogrinfo", "-al", "-so", path});
    const auto dated = [&info](std::time_t time)
    {
        char text[64];
        std::strftime(text, sizeof text, "DBF_DATE_LAST_UPDATE=%Y-%m-%d\n", std::localtime(&time));
        return info.find(text) != std::string::npos;
    };
    EXPECT_TRUE(dated(before) || dated(std::time(nullptr))) << info;
}

TEST(OurTables, OthersReadBlankFieldsAsAbsent)
{
    const ScratchFolder folder;
    const TableFacts facts{{{"A", 'C', 3}, {"B", 'N', 3}, {"C", 'C', 1}}, {{"", "", "x"}}};
    const std::string path = folder.File("blank.dbf");
    ASSERT_NO_FATAL_FAILURE(WriteOurTable(path, facts));
    ExpectOthersRead(path, facts);
    EXPECT_NE(std::string::npos, RunTool({"dbfdump", path}).find("(NULL) (NULL) x"));
}

TEST(OurTables, OthersReadDatesTruthsAndFloats)
{
    const ScratchFolder folder;
    const std::string path = folder.File("types.dbf");
    const TableFacts facts{{{"DAY", 'D', 8}, {"YES", 'L', 1}, {"REAL", 'F', 9}, {"TEXT", 'C', 5}},
                           {{"20260131", "T", "12", "abc"}, {"19031217", "F", "-5", "xyz"}}};
    ASSERT_NO_FATAL_FAILURE(WriteOurTable(path, facts));
    EXPECT_EQ(facts.rows, RowsByDbfdump(path, 4));
    const std::vector<Row> rows = RowsByOgr(path);
    ASSERT_EQ(2u, rows.size());
    EXPECT_EQ("2026/01/31", rows[0][0]);
    EXPECT_EQ("1903/12/17", rows[1][0]);
    EXPECT_EQ("T", rows[0][1]);
    EXPECT_EQ("F", rows[1][1]);
    EXPECT_EQ("12", rows[0][2]);
    EXPECT_EQ("-5", rows[1][2]);
    EXPECT_EQ("abc", rows[0][3]);
    EXPECT_EQ("xyz", rows[1][3]);
}

/// Changes the text of every third record in place.
void ChangeEveryThird(const std::string& path, TableFacts& facts)
{
    CDBFFile table(0);
    ASSERT_EQ(1, table.Open(path.c_str(), CFile::modeReadWrite));
    for (std::size_t i = 0; i < facts.rows.size(); i += 3)
    {
        std::string& value = facts.rows[i].back();
        value = "changed" + std::to_string(i);
        ASSERT_EQ(1, table.ReadRecord(static_cast<int>(i)));
        table.SetFieldValue("TEXT", value.c_str());
        table.FP()->Seek(-table.RecordLength(), CFile::current);
        EXPECT_EQ(1, table.WriteRecord(nullptr));
    }
}

TEST(OurTables, OthersReadChangedRecords)
{
    const ScratchFolder folder;
    const std::string path = folder.File("changed.dbf");
    TableFacts facts = InventFacts(61, 4, 50);
    facts.columns.back() = {"TEXT", 'C', 20};
    for (Row& row : facts.rows)
    {
        row.back() = "old";
    }
    ASSERT_NO_FATAL_FAILURE(WriteOurTable(path, facts));
    ASSERT_NO_FATAL_FAILURE(ChangeEveryThird(path, facts));
    ExpectOthersRead(path, facts);
}

TEST(OurTables, OthersReadAppendedRecords)
{
    const ScratchFolder folder;
    const std::string path = folder.File("appended.dbf");
    TableFacts facts = InventFacts(62, 3, 20);
    const Row added = InventFacts(63, 3, 1).rows.front();
    ASSERT_NO_FATAL_FAILURE(WriteOurTable(path, facts));
    {
        CDBFFile table(10);
        ASSERT_EQ(1, table.Open(path.c_str(), CFile::modeReadWrite));
        ASSERT_EQ(1, table.ReadRecord(7));
        table.FP()->SeekToEnd();
        EXPECT_EQ(1, table.WriteRecord(nullptr));
        table.WriteNumRecords(nullptr, 21);
    }
    facts.rows.push_back(facts.rows[7]);
    ExpectOthersRead(path, facts);
}

void DeleteEveryFourth(const std::string& path, std::size_t count, int readAhead)
{
    CDBFFile table(readAhead);
    ASSERT_EQ(1, table.Open(path.c_str(), CFile::modeReadWrite));
    for (std::size_t i = 0; i < count; ++i)
    {
        ASSERT_EQ(1, table.ReadRecord(-1));
        if (i % 4 == 0)
        {
            table.DeleteRecord();
        }
    }
}

TableFacts WithoutEveryFourth(const TableFacts& facts)
{
    TableFacts live{facts.columns, {}};
    for (std::size_t i = 0; i < facts.rows.size(); ++i)
    {
        if (i % 4 != 0)
        {
            live.rows.push_back(facts.rows[i]);
        }
    }
    return live;
}

std::size_t CountOf(std::string_view word, const std::string& text)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
    {
        ++count;
    }
    return count;
}

TEST(OurTables, OthersReadOnlyLiveRecordsAfterDeletingAndAfterPacking)
{
    const ScratchFolder folder;
    for (const int readAhead : {0, 7})
    {
        const std::string path = folder.File("deleted" + std::to_string(readAhead) + ".dbf");
        const TableFacts facts = InventFacts(71, 5, 101);
        const TableFacts live = WithoutEveryFourth(facts);
        ASSERT_NO_FATAL_FAILURE(WriteOurTable(path, facts));
        const auto fullSize = std::filesystem::file_size(path);
        ASSERT_NO_FATAL_FAILURE(DeleteEveryFourth(path, facts.rows.size(), readAhead));
        EXPECT_EQ(fullSize, std::filesystem::file_size(path));
        EXPECT_EQ(live.rows, RowsByOgr(path));
        EXPECT_EQ(26u, CountOf("(DELETED)", RunTool({"dbfdump", "-m", path})));
        {
            CDBFFile table(readAhead);
            ASSERT_EQ(1, table.Open(path.c_str(), CFile::modeReadWrite));
            ASSERT_EQ(0, table.Pack());
        }
        EXPECT_EQ(fullSize - 26 * static_cast<unsigned>(RecordLengthOf(facts)), std::filesystem::file_size(path));
        ExpectOthersRead(path, live);
        ExpectWeRead(path, live, readAhead);
    }
}

/// A table of another program keeps its header, its code page mark included, when it is packed.
TEST(OurTables, PackingKeepsTheHeaderOfAForeignTable)
{
    const ScratchFolder folder;
    const std::string path = folder.File("foreign.dbf");
    RunTool({"dbfcreate", path, "-s", "NAME", "8", "-n", "VALUE", "8", "2"});
    for (const char* name : {"one", "two", "three"})
    {
        RunTool({"dbfadd", path, name, "1.25"});
    }
    const std::string before = folder.Read("foreign.dbf");
    {
        CDBFFile table(0);
        ASSERT_EQ(1, table.Open(path.c_str(), CFile::modeReadWrite));
        ASSERT_EQ(1, table.ReadRecord(1));
        table.DeleteRecord();
        ASSERT_EQ(0, table.Pack());
    }
    std::string header = before.substr(0, 97);
    header[4] = 2;
    EXPECT_EQ(header, folder.Read("foreign.dbf").substr(0, 97));
    const std::vector<Row> rows = RowsByOgr(path);
    EXPECT_EQ((std::vector<Row>{{"one", "1.25"}, {"three", "1.25"}}), rows);
}

TEST(OurTables, TheRecordsAreTheFilledFields)
{
    const ScratchFolder folder;
    const std::string path = folder.File("bytes.dbf");
    const TableFacts facts = InventFacts(81, 6, 3);
    ASSERT_NO_FATAL_FAILURE(WriteOurTable(path, facts));
    std::string records;
    for (const Row& row : facts.rows)
    {
        records += ' ' + FilledFields(facts, row);
    }
    EXPECT_EQ(records, folder.Read("bytes.dbf").substr(33 + 32 * 6));
}

} // namespace
