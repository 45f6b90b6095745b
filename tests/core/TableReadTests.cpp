#include "files/core/CDBFFile.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
using vorn::test::Scrambled;
using vorn::test::ScratchFolder;
using vorn::test::TableBytes;

/// Identifiers of live records by reading on from the current one.
std::vector<std::string> RestOf(CDBFFile& table, int field = 0)
{
    std::vector<std::string> values;
    while (table.ReadRecord(-1) == 1)
        values.emplace_back(table.GetFieldValue(field).GetString());
    return values;
}

TableBytes Stations()
{
    TableBytes table;
    table.Field("IDENT", 'C', 4).Field("NAME", 'C', 12).Field("FREQ", 'N', 6);
    table.Record("SEA Seattle     116800").Record("PDX Portland    111800", '*').Record("GEG Spokane     115500");
    table.Record("YKM Yakima      116000").Record("EUG Eugene      112900", '*');
    return table;
}

/// Every case runs without read-ahead, with blocks that end inside the table, and with one block for all of it.
class TableRead : public testing::TestWithParam<int>
{
protected:
    std::string Write(const TableBytes& bytes, const char* name = "t.dbf") const
    {
        return m_folder.Write(name, bytes.Bytes());
    }
    void Open(const TableBytes& bytes)
    {
        ASSERT_EQ(m_table.Open(Write(bytes).c_str(), CFile::modeRead), 1);
    }
    std::string Value(int field)
    {
        return m_table.GetFieldValue(field).GetString();
    }

    ScratchFolder m_folder;
    CDBFFile m_table{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(ReadAhead, TableRead, testing::Values(0, 1, 2, 3, 500));

TEST_P(TableRead, Open_TellsWhatTheHeaderSays)
{
    Open(Stations());
    EXPECT_EQ(m_table.NumFields(), 3);
    EXPECT_EQ(m_table.NumRecords(), 5);
    EXPECT_EQ(m_table.HeaderSize(), 32 + 3 * 32 + 1);
    EXPECT_EQ(m_table.RecordLength(), 23);
    EXPECT_EQ(m_table.FileLen(), 129 + 5 * 23);
    EXPECT_EQ(m_table.CurRecIndex(), -1);
    EXPECT_EQ(m_table.GetBufferSize(), GetParam());
    EXPECT_STREQ(m_table.GetFieldName(1), "NAME");
    EXPECT_EQ(m_table.GetFieldType(2), 'N');
    EXPECT_EQ(m_table.GetFieldType("ident"), 'C');
}

TEST_P(TableRead, ReadRecord_GivesEveryLiveRecordInOrder)
{
    Open(Stations());
    EXPECT_EQ(RestOf(m_table), (std::vector<std::string>{"SEA", "GEG", "YKM"}));
}

TEST_P(TableRead, ReadRecord_PastTheLastLiveRecordIsRefusedForGood)
{
    Open(Stations());
    RestOf(m_table);
    EXPECT_EQ(m_table.CurRecIndex(), 5);
    EXPECT_EQ(m_table.ReadRecord(-1), 0);
    EXPECT_EQ(m_table.NextRecord(), 0);
    EXPECT_EQ(m_table.CurRecIndex(), 5);
    EXPECT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(Value(0), "SEA");
}

TEST_P(TableRead, ReadRecord_OfADeletedRecordYieldsTheNextLiveOne)
{
    Open(Stations());
    EXPECT_EQ(m_table.ReadRecord(1), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 2);
    EXPECT_EQ(Value(1), "Spokane");
    EXPECT_EQ(m_table.ReadRecord(4), 0);
}

TEST_P(TableRead, ReadRecord_GoesBackAndForth)
{
    Open(Stations());
    EXPECT_EQ(m_table.ReadRecord(3), 1);
    EXPECT_EQ(Value(0), "YKM");
    EXPECT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(Value(0), "SEA");
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_EQ(Value(0), "GEG");
    EXPECT_EQ(m_table.ReadRecord(2), 1);
    EXPECT_EQ(Value(0), "GEG");
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_EQ(Value(0), "YKM");
}

TEST_P(TableRead, ReadRecord_BelowMinusOneChangesNothing)
{
    Open(Stations());
    ASSERT_EQ(m_table.ReadRecord(2), 1);
    EXPECT_EQ(m_table.ReadRecord(-2), 0);
    EXPECT_EQ(m_table.CurRecIndex(), 2);
    EXPECT_EQ(Value(0), "GEG");
}

TEST_P(TableRead, ReadRecord_AtOrPastTheCountGivesWhatTheFileHolds)
{
    Open(Stations().StateCount(2));
    EXPECT_EQ(m_table.ReadRecord(3), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 3);
    EXPECT_EQ(Value(0), "YKM");
    EXPECT_EQ(m_table.ReadRecord(-1), 0);
    EXPECT_EQ(m_table.CurRecIndex(), 2);
    EXPECT_EQ(m_table.ReadRecord(4), 0) << "deleted, and sequential reading stops at the count";
    EXPECT_EQ(m_table.ReadRecord(5), 0) << "the file ends";
}

TEST_P(TableRead, ReadRecord_BeginsAtTheHeaderLengthWhateverEndsTheHeader)
{
    Open(Stations().EndHeaderWith(std::string_view("\r\0", 2)));
    EXPECT_EQ(RestOf(m_table), (std::vector<std::string>{"SEA", "GEG", "YKM"}));
}

TEST_P(TableRead, ReadRecord_PassesVeryManyDeletedRecords)
{
    std::string bytes = TableBytes().Field("A", 'C', 1).StateCount(400002).Header();
    bytes += " a";
    for (int i = 0; i < 400000; ++i)
        bytes += "*x";
    bytes += " z";
    ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", bytes).c_str(), CFile::modeRead), 1);
    EXPECT_EQ(RestOf(m_table), (std::vector<std::string>{"a", "z"}));
}

TEST_P(TableRead, NextRecord_NeedsARecordReadBefore)
{
    Open(Stations());
    EXPECT_EQ(m_table.NextRecord(), 0);
    EXPECT_EQ(m_table.CurRecIndex(), -1);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(m_table.NextRecord(), 1);
    EXPECT_EQ(Value(0), "GEG");
}

TEST_P(TableRead, SetBufferSize_ReadingGoesOnBehindTheCurrentRecord)
{
    Open(Stations());
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    m_table.SetBufferSize(4);
    EXPECT_EQ(m_table.GetBufferSize(), 4);
    EXPECT_EQ(Value(0), "SEA") << "the current record stays";
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_EQ(Value(0), "GEG");
    m_table.SetBufferSize(-3);
    EXPECT_EQ(m_table.GetBufferSize(), 0);
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_EQ(Value(0), "YKM");
    m_table.SetBufferSize(2147483647);
    EXPECT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(Value(0), "SEA");
}

TEST_P(TableRead, DecodeString_DecodesFlagAndValuesFromTheKeysStartInEachRecord)
{
    const TableBytes plain = Stations();
    std::string bytes = plain.Header();
    const std::string records = plain.Bytes().substr(bytes.size());
    for (std::size_t at = 0; at < records.size(); at += 23)
        bytes += Scrambled(records.substr(at, 23), "K\xF0z");
    const std::string path = m_folder.Write("t.dbf", bytes);
    m_table.SetDecodeString("K\xF0z", 0);
    ASSERT_EQ(m_table.Open(path.c_str(), CFile::modeRead), 1);
    EXPECT_EQ(RestOf(m_table), (std::vector<std::string>{"SEA", "GEG", "YKM"}));
    ASSERT_EQ(m_table.ReadRecord(3), 1);
    EXPECT_EQ(Value(2), "116000");
}

TEST_P(TableRead, DecodeString_TakesTheGivenLengthAndNoneForNothing)
{
    std::string bytes = TableBytes().Field("A", 'C', 3).StateCount(1).Header();
    bytes += Scrambled(" abc", std::string_view("\0\x01", 2));
    const std::string path = m_folder.Write("t.dbf", bytes);
    m_table.SetDecodeString("\0\x01", 2);
    ASSERT_EQ(m_table.Open(path.c_str(), CFile::modeRead), 1);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(Value(0), "abc");
    m_table.SetDecodeString("", 0);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(Value(0), "`bb");
    m_table.SetDecodeString(nullptr, 0);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(Value(0), "`bb");
}

TEST_P(TableRead, BaseOffset_ReadsATableInsideALargerFile)
{
    const std::string path = m_folder.Write("big.bin", std::string(1000, '#') + Stations().Bytes() + "####");
    m_table.SetBaseOffset(1000);
    ASSERT_EQ(m_table.Open(path.c_str(), CFile::modeRead), 1);
    EXPECT_EQ(m_table.NumRecords(), 5);
    EXPECT_EQ(RestOf(m_table), (std::vector<std::string>{"SEA", "GEG", "YKM"}));
    EXPECT_EQ(m_table.ReadRecord(2), 1);
    EXPECT_EQ(Value(0), "GEG");
}

TEST_P(TableRead, BaseOffset_OfAnOpenTableReadsTheHeaderThere)
{
    const TableBytes second = TableBytes().Field("X", 'C', 2).Record("hi");
    const std::string first = Stations().Bytes();
    const std::string path = m_folder.Write("two.bin", first + second.Bytes());
    ASSERT_EQ(m_table.Open(path.c_str(), CFile::modeRead), 1);
    ASSERT_EQ(m_table.ReadRecord(3), 1);
    m_table.SetBaseOffset(static_cast<int>(first.size()));
    EXPECT_EQ(m_table.CurRecIndex(), -1);
    EXPECT_EQ(m_table.NumFields(), 1);
    EXPECT_EQ(Value(0), "");
    EXPECT_EQ(RestOf(m_table), (std::vector<std::string>{"hi"}));
    m_table.SetBaseOffset(static_cast<int>(first.size()) + 10000);
    EXPECT_EQ(m_table.NumFields(), 0);
    EXPECT_EQ(m_table.NumRecords(), 0);
    EXPECT_EQ(m_table.ReadRecord(0), 0);
    m_table.SetBaseOffset(0);
    EXPECT_EQ(m_table.NumFields(), 3);
    EXPECT_EQ(RestOf(m_table), (std::vector<std::string>{"SEA", "GEG", "YKM"}));
}

TEST_P(TableRead, BaseOffset_BelowZeroIsNoTable)
{
    const std::string path = Write(Stations());
    m_table.SetBaseOffset(-1);
    EXPECT_EQ(m_table.Open(path.c_str(), CFile::modeRead), 0);
}

TEST_P(TableRead, Open_OfAnotherTableStartsAfresh)
{
    Open(Stations());
    ASSERT_EQ(m_table.ReadRecord(2), 1);
    m_table.SetNextRecordParams("NAME", "Yakima", 1);
    const std::string wide = Write(TableBytes().Field("W", 'C', 200).Record("wide"), "w.dbf");
    ASSERT_EQ(m_table.Open(wide.c_str(), CFile::modeRead), 1);
    EXPECT_EQ(m_table.CurRecIndex(), -1);
    EXPECT_EQ(m_table.RecordLength(), 201);
    EXPECT_EQ(Value(0), "");
    EXPECT_EQ(m_table.GetLastQueryField(), 1);
    EXPECT_STREQ(m_table.GetLastQueryValue(), "Yakima");
    EXPECT_EQ(RestOf(m_table), (std::vector<std::string>{"wide"}));
}

TEST_P(TableRead, Close_LeavesNothingToRead)
{
    Open(Stations());
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(m_table.Close(), 1);
    EXPECT_EQ(m_table.Close(), 1);
    EXPECT_EQ(m_table.ReadRecord(-1), 0);
    EXPECT_EQ(m_table.ReadRecord(0), 0);
    EXPECT_EQ(m_table.NextRecord(), 0);
    EXPECT_EQ(Value(0), "");
    EXPECT_EQ(m_table.NumFields(), 0);
    EXPECT_EQ(m_table.NumRecords(), 0);
    EXPECT_EQ(m_table.FileLen(), 0);
}

TEST_P(TableRead, Fp_StandsBehindTheCurrentRecordAndMayBeMoved)
{
    Open(Stations());
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    CFile* file = m_table.FP();
    EXPECT_EQ(file->GetPosition(), 129u + 23u);
    file->Seek(7, CFile::begin);
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_EQ(Value(0), "GEG");
    EXPECT_EQ(m_table.FP()->GetPosition(), 129u + 3 * 23u);
    char byte = 0;
    file->Read(&byte, 1);
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_EQ(Value(0), "YKM");
}
} // namespace
