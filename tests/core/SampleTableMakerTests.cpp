#include "apps/maketables/core/CsvText.h"
#include "apps/maketables/core/TableMaker.h"
#include "files/core/CDBFFile.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

using vorn::CsvLine;
using vorn::MakeTable;
using vorn::ParseCsv;
using vorn::test::ScratchFolder;

TEST(ParseCsv, SplitsLinesAtCommasWhateverEndsThem)
{
    EXPECT_EQ(*ParseCsv("a,b\r\n\nc,,d"), (std::vector<CsvLine>{{"a", "b"}, {"c", "", "d"}}));
    EXPECT_EQ(*ParseCsv("a,\n"), (std::vector<CsvLine>{{"a", ""}}));
    EXPECT_TRUE(ParseCsv("")->empty());
}

TEST(ParseCsv, KeepsCommasQuotesAndLineEndsOfQuotedCells)
{
    EXPECT_EQ(*ParseCsv("\"11,901 ft\",\"he said \"\"no\"\"\",\"two\nlines\"\nx"),
              (std::vector<CsvLine>{{"11,901 ft", "he said \"no\"", "two\nlines"}, {"x"}}));
}

TEST(ParseCsv, RefusesAQuoteThatIsNotClosed)
{
    EXPECT_FALSE(ParseCsv("a,\"b\nc"));
}

TEST(MakeTable, WritesTextToTheLeftDigitsToTheRightAndMemosBesideThem)
{
    const ScratchFolder folder;
    const std::string longMemo(600, 'm');
    ASSERT_EQ(
        MakeTable("ID:C:4,FT:N:5,REMARK:M:10\nSEA,354,first\nYKM,,\nPDX,23," + longMemo + "\n", folder.File("t.dbf")),
        "");
    const std::string table = folder.Read("t.dbf");
    ASSERT_EQ(table.size(), 32u + 3 * 32 + 1 + 3 * 20);
    EXPECT_EQ(table.substr(4, 4), std::string("\3\0\0\0", 4));
    EXPECT_EQ(table.substr(129), " SEA   354         1"
                                 " YKM                "
                                 " PDX    23         2");
    const std::string memos = folder.Read("t.dbt");
    ASSERT_EQ(memos.size(), 4u * 512);
    EXPECT_EQ(memos.substr(0, 4), std::string("\4\0\0\0", 4)); // the next free block
    EXPECT_EQ(memos.substr(512, 14), std::string("\xFF\xFF\x08\0\x0D\0\0\0first\0", 14));
    EXPECT_EQ(memos.substr(1024, 8), std::string("\xFF\xFF\x08\0\x60\x02\0\0", 8)); // 608 bytes
    EXPECT_EQ(memos.substr(1032, 600), longMemo);
}

TEST(MakeTable, IsReadBackByTheTableClass)
{
    const ScratchFolder folder;
    ASSERT_EQ(MakeTable("ID:C:4,FT:N:5,REMARK:M:10\nSEA,354,\"On the field, 16L/34R\"\n", folder.File("T.DBF")), "");
    CDBFFile table(4);
    ASSERT_EQ(table.Open(folder.File("T.DBF").c_str(), CFile::modeRead), 1);
    ASSERT_EQ(table.ReadRecord(0), 1);
    EXPECT_EQ(table.GetFieldValue("ID"), "SEA");
    EXPECT_EQ(table.GetFieldValue("FT"), "354");
    EXPECT_EQ(table.ReadRecord(1), 0);
}

TEST(MakeTable, SaysWhatIsWrongAndWhere)
{
    const ScratchFolder folder;
    const std::string name = folder.File("t.dbf");
    EXPECT_EQ(MakeTable("A:C:4\nabcde\n", name), "line 2: A is longer than 4: abcde");
    EXPECT_EQ(MakeTable("A:N:4\n1\n-2\n", name), "line 3: A has other characters than digits: -2");
    EXPECT_EQ(MakeTable("A:C:4,B:C:2\nab\n", name), "line 2: 1 cells for 2 columns");
    EXPECT_EQ(MakeTable("A:X:4\n", name), "line 1: \"A:X:4\" has a type other than C, N and M");
    EXPECT_EQ(MakeTable("A:M:4\n", name), "line 1: \"A:M:4\" has a wrong length");
    EXPECT_EQ(MakeTable("A:C:0\n", name), "line 1: \"A:C:0\" has a wrong length");
    EXPECT_EQ(MakeTable("A:C:255\n", name), "line 1: \"A:C:255\" has a wrong length");
    EXPECT_EQ(MakeTable("ELEVENCHARS:C:4\n", name), "line 1: \"ELEVENCHARS:C:4\" is no NAME:TYPE:LENGTH");
    EXPECT_EQ(MakeTable("A,B\n", name), "line 1: \"A\" is no NAME:TYPE:LENGTH");
    EXPECT_EQ(MakeTable("", name), "line 1: there are no columns");
    EXPECT_EQ(MakeTable("\"", name), "a quote is not closed");
    EXPECT_EQ(folder.Read("t.dbf"), "");
    EXPECT_EQ(MakeTable("A:C:4\n", folder.File("t.txt")), folder.File("t.txt") + " does not end in .dbf");
    const std::string nowhere = (folder.Path() / "none" / "t.dbf").string();
    EXPECT_EQ(MakeTable("A:C:4\n", nowhere), "cannot make " + nowhere);
}
