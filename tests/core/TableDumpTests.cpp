#include "files/core/CDBFFile.h"
#include "files/core/TableBox.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
using vorn::test::Padded;
using vorn::test::ScratchFolder;
using vorn::test::TableBytes;

using Boxes = std::vector<std::string>;
Boxes boxes;

/// Collects "TITLE|TEXT" of every message box.
class TableDump : public testing::Test
{
protected:
    TableDump()
        : m_before(vorn::SetTableBox(
              [](const char* text, const char* title)
              {
                  boxes.push_back(std::string(title) + "|" + text);
              }))
    {
        boxes.clear();
    }
    ~TableDump() override
    {
        vorn::SetTableBox(m_before);
    }

    void Open(const std::string& bytes)
    {
        m_table.Close();
        ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", bytes).c_str(), CFile::modeRead), 1);
    }
    std::string Dump()
    {
        EXPECT_EQ(m_table.DumpToFile(m_folder.File("dump.txt").c_str()), 1);
        return m_folder.Read("dump.txt");
    }

    ScratchFolder m_folder;
    CDBFFile m_table{3};

private:
    vorn::ShowTableBox m_before;
};

TableBytes Table()
{
    TableBytes table;
    table.Field("IDENT", 'C', 4).Field("LENGTH12345", 'N', 5).Date(126, 11, 21);
    table.Record("SEA 11901").Record("PDX 11000", '*').Record("GEG  9002").Record("YKM  7604");
    return table;
}

TEST_F(TableDump, DumpHeader_ShowsABoxForEachFactAndField)
{
    Open(Table().Bytes());
    m_table.DumpHeader();
    EXPECT_EQ(boxes, (Boxes{"Header|dbt 3\n", "Header|date: 126 11 21\n", "Header|num records: 4\n",
                            "Header|record len:  10\n", "Header|header len:  97\n", "Header|num fields:  2\n",
                            "Header|IDENT type=C length=4 precision=0 offset=1\n",
                            "Header|LENGTH12345 type=N length=5 precision=0 offset=5\n"}));
}

TEST_F(TableDump, DumpHeader_ShowsDecimalsAndTheOffsetsThatTheyShift)
{
    Open(TableBytes().Field("A", 'N', 4, 2).Field("B", 'C', 3).Bytes());
    m_table.DumpHeader();
    ASSERT_EQ(boxes.size(), 8u);
    EXPECT_EQ(boxes[6], "Header|A type=N length=4 precision=2 offset=1\n");
    EXPECT_EQ(boxes[7], "Header|B type=C length=3 precision=0 offset=517\n");
}

TEST_F(TableDump, DumpCurrentRecord_ShowsTheFieldsInOneBoxWithoutTitle)
{
    Open(Table().Bytes());
    m_table.DumpCurrentRecord();
    EXPECT_TRUE(boxes.empty()) << "no record was read";
    ASSERT_EQ(m_table.ReadRecord(1), 1);
    m_table.DumpCurrentRecord();
    EXPECT_EQ(boxes, (Boxes{"|>GEG < > 9002< "}));
}

TEST_F(TableDump, DumpCurrentRecord_TakesEachFieldRightBehindTheOneBefore)
{
    // The decimals shift B's offset out of the record, not its place here.
    Open(TableBytes().Field("A", 'N', 2, 1).Field("B", 'C', 3).Record("12abc").Bytes());
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    m_table.DumpCurrentRecord();
    EXPECT_EQ(boxes, (Boxes{"|>12< >abc< "}));
}

TEST_F(TableDump, DumpCurrentRecord_StaysInsideTheRecordWhateverTheLengthsSay)
{
    TableBytes table;
    table.Field("A", 'C', 2).Field("BAD", 'C', 0xFE, 0xFF).Field("B", 'C', 90).Field("C", 'C', 5);
    Open(table.StateRecordLength(6).StateCount(1).Header() + " abcde");
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    m_table.DumpCurrentRecord();
    EXPECT_EQ(boxes, (Boxes{"|>ab< >< >cde< >< "}));
}

TEST_F(TableDump, DumpCurrentRecord_EndsTextsAtAZero)
{
    Open(TableBytes().Field("A", 'C', 4).Field("B", 'C', 2).Record(std::string("a\0xxbb", 6)).Bytes());
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    m_table.DumpCurrentRecord();
    EXPECT_EQ(boxes, (Boxes{"|>a< >bb< "}));
}

TEST_F(TableDump, DumpCurrentRecord_CutsLongTexts)
{
    Open(TableBytes().Field("A", 'C', 0x30, 0x75).Record(std::string(30000, 'x')).Bytes());
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    m_table.DumpCurrentRecord();
    EXPECT_EQ(boxes, (Boxes{"|>" + std::string(4095, 'x')}));
}

TEST_F(TableDump, DumpToFile_WritesHeaderFieldsAndALineForEachIndex)
{
    Open(Table().Bytes());
    EXPECT_EQ(Dump(), "dbt 3\r\n"
                      "date: 126 11 21\r\n"
                      "num records: 4\r\n"
                      "record len:  10\r\n"
                      "header len:  97\r\n"
                      "num fields:  2\r\n"
                      "IDENT type=C length=4 precision=0 offset=1\r\n"
                      "LENGTH12345 type=N length=5 precision=0 offset=5\r\n"
                      "\r\n"
                      ">SEA < >11901< \r\n"
                      ">GEG < > 9002< \r\n"
                      ">GEG < > 9002< \r\n"
                      ">YKM < > 7604< \r\n");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(TableDump, DumpToFile_StopsBehindTheLastLiveRecord)
{
    TableBytes table;
    table.Field("A", 'C', 1).Record("a").Record("b", '*').Record("c", '*');
    Open(table.Bytes());
    const std::string dump = Dump();
    EXPECT_EQ(dump.substr(dump.find("\r\n\r\n") + 4), ">a< \r\n");
    Open(table.StateCount(4000000000UL).Bytes());
    EXPECT_NE(Dump().find("num records: 2147483647\r\n"), std::string::npos);
}

TEST_F(TableDump, DumpToFile_ReportsOtherTypesInABoxForEachValue)
{
    Open(TableBytes().Field("A", 'C', 1).Field("M", 'M', 2).Field("B", 'C', 1).Record("a 1b").Record("c 2d").Bytes());
    const std::string dump = Dump();
    EXPECT_EQ(dump.substr(dump.find("\r\n\r\n") + 4), ">a< >b< \r\n>c< >d< \r\n");
    EXPECT_EQ(boxes, (Boxes{"|Unexpected DBG field type", "|Unexpected DBG field type"}));
}

TEST_F(TableDump, DumpToFile_DecodesAndLeavesTheCurrentRecordAlone)
{
    TableBytes table;
    table.Field("A", 'C', 3).StateCount(2);
    m_table.SetDecodeString("q", 0);
    Open(table.Header() + vorn::test::Scrambled(" one two", "q"));
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    const std::string dump = Dump();
    EXPECT_EQ(dump.substr(dump.find("\r\n\r\n") + 4), ">one< \r\n>two< \r\n");
    EXPECT_EQ(m_table.CurRecIndex(), 0);
    EXPECT_STREQ(m_table.GetFieldValue(0), "one");
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue(0), "two");
}

TEST_F(TableDump, DumpToFile_NeverOverwritesItsTable)
{
    const std::string bytes = Table().Bytes();
    Open(bytes);
    EXPECT_EQ(m_table.DumpToFile(m_folder.File("t.dbf").c_str()), 0);
    EXPECT_EQ(m_table.DumpToFile(m_folder.File("./t.dbf").c_str()), 0);
    EXPECT_EQ(m_table.DumpToFile(m_folder.File("no/such/folder.txt").c_str()), 0);
    EXPECT_EQ(m_table.DumpToFile(nullptr), 0);
    m_table.Close();
    EXPECT_EQ(m_folder.Read("t.dbf"), bytes);
}

TEST_F(TableDump, Dumps_WithoutATableShowNothing)
{
    m_table.DumpHeader();
    m_table.DumpCurrentRecord();
    EXPECT_EQ(m_table.DumpToFile(m_folder.File("dump.txt").c_str()), 0);
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(m_folder.Read("dump.txt"), "");
}
} // namespace
