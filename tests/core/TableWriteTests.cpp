#include "files/core/CDBFFile.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <string>

namespace
{
using vorn::test::LittleEndian;
using vorn::test::Padded;
using vorn::test::ScratchFolder;
using vorn::test::TableBytes;

TableBytes Small()
{
    TableBytes table;
    table.Field("A", 'C', 3).Field("B", 'N', 2);
    table.Record("one 1").Record("two 2").Record("tri 3").Record("for 4");
    return table;
}
constexpr int kSmallHead = 97;
constexpr int kSmallRecord = 6;

class TableWrite : public testing::TestWithParam<int>
{
protected:
    void OpenSmall()
    {
        m_table.Close();
        ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", Small().Bytes()).c_str(), CFile::modeReadWrite), 1);
    }
    /// The table's bytes after closing.
    std::string Bytes(const char* name = "t.dbf")
    {
        m_table.Close();
        return m_folder.Read(name);
    }
    /// The records' bytes after closing.
    std::string Records()
    {
        return Bytes().substr(kSmallHead);
    }

    ScratchFolder m_folder;
    CDBFFile m_table{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(ReadAhead, TableWrite, testing::Values(0, 1, 2, 500));

// --- Create ---

std::tm LocalTime(std::time_t moment)
{
    return *std::localtime(&moment);
}

TEST_P(TableWrite, Create_WritesAnEmptyTableOfTheAddedFields)
{
    m_table.AddNewField("NAME", 'C', 20);
    m_table.AddNewField("MUCH_TOO_LONG", 'N', 6);
    m_table.AddNewField("WIDE", 'C', 300);
    m_table.AddNewField(nullptr, 'M', 10);
    const std::tm before = LocalTime(std::time(nullptr));
    ASSERT_EQ(m_table.Create(m_folder.File("new.dbf").c_str()), 1);
    const std::tm after = LocalTime(std::time(nullptr));
    EXPECT_EQ(m_table.NumFields(), 4);
    EXPECT_EQ(m_table.NumRecords(), 0);
    EXPECT_EQ(m_table.RecordLength(), 1 + 20 + 6 + 300 + 10);
    EXPECT_EQ(m_table.HeaderSize(), 32 * 4 + 33);
    EXPECT_EQ(m_table.FileLen(), 32 * 4 + 33);
    EXPECT_STREQ(m_table.GetFieldName(1), "MUCH_TOO_LO");
    EXPECT_EQ(m_table.ReadRecord(0), 0);

    TableBytes expected;
    expected.Field("NAME", 'C', 20).Field("MUCH_TOO_LO", 'N', 6).Field("WIDE", 'C', 300 % 256, 1).Field("", 'M', 10);
    const std::string bytes = Bytes("new.dbf");
    const auto dated = [&](const std::tm& day)
    {
        return expected.Date(day.tm_year, day.tm_mon + 1, day.tm_mday).Bytes();
    };
    EXPECT_TRUE(bytes == dated(before) || bytes == dated(after));
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path() / "new.dbt"));
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path() / "new.dbf.tmp"));
}

TEST_P(TableWrite, Create_WithoutFieldsIsAHeaderAndItsEndMark)
{
    ASSERT_EQ(m_table.Create(m_folder.File("none.dbf").c_str()), 1);
    EXPECT_EQ(m_table.HeaderSize(), 33);
    EXPECT_EQ(m_table.RecordLength(), 1);
    EXPECT_EQ(m_table.NumFields(), 0);
    const std::string bytes = Bytes("none.dbf");
    ASSERT_EQ(bytes.size(), 33u);
    EXPECT_EQ(bytes[0], '\x03');
    EXPECT_EQ(bytes.substr(4),
              LittleEndian(0, 4) + LittleEndian(33, 2) + LittleEndian(1, 2) + std::string(20, '\0') + "\r");
}

TEST_P(TableWrite, Create_ThenWriteRecordsAndTheirCount)
{
    m_table.AddNewField("A", 'C', 3);
    m_table.AddNewField("B", 'N', 4);
    ASSERT_EQ(m_table.Create(m_folder.File("t.dbf").c_str()), 1);
    m_table.SetFieldValue("A", "x");
    EXPECT_EQ(m_table.WriteRecord(nullptr), 1);
    m_table.SetFieldValue("A", "yy");
    m_table.SetFieldValue("b", 42);
    EXPECT_EQ(m_table.WriteRecord(nullptr), 1);
    EXPECT_EQ(m_table.NumRecords(), 0);
    EXPECT_EQ(m_table.WriteNumRecords(nullptr, 2), 1);
    EXPECT_EQ(m_table.NumRecords(), 2);
    m_table.SetFieldValue("A", "zzz");
    EXPECT_EQ(m_table.WriteRecord(nullptr), 1) << "the count did not move the place";
    EXPECT_EQ(m_table.WriteNumRecords(nullptr, 3), 1);
    EXPECT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "x");
    EXPECT_STREQ(m_table.GetFieldValue("B"), "0");
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue("B"), "4200") << "values stand on the left, and a blank reads as 0";
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "zzz");
    EXPECT_EQ(m_table.ReadRecord(-1), 0);
    EXPECT_EQ(Bytes().substr(97), " x      "
                                  " yy 42  "
                                  " zzz42  ");
}

TEST_P(TableWrite, Create_ReplacesAnExistingFile)
{
    m_folder.Write("t.dbf", Small().Bytes());
    m_table.AddNewField("A", 'C', 3);
    ASSERT_EQ(m_table.Create(m_folder.File("t.dbf").c_str()), 1);
    EXPECT_EQ(Bytes().size(), 65u);
}

TEST_P(TableWrite, Create_RefusesWhatCannotBeAndKeepsTheFields)
{
    m_table.AddNewField("A", 'C', 32766);
    EXPECT_EQ(m_table.Create(m_folder.File("no/such/folder.dbf").c_str()), 0);
    EXPECT_EQ(m_table.Create(nullptr), 0);
    EXPECT_EQ(m_table.Create(""), 0);
    ASSERT_EQ(m_table.Create(m_folder.File("t.dbf").c_str()), 1) << "32,767 bytes a record";
    EXPECT_EQ(m_table.RecordLength(), 32767);
    m_table.Close();
    m_table.AddNewField("A", 'C', 32766);
    m_table.AddNewField("B", 'C', 1);
    EXPECT_EQ(m_table.Create(m_folder.File("u.dbf").c_str()), 0);
    m_table.Close();
    m_table.AddNewField("A", 'C', -5);
    m_table.AddNewField("B", 'C', 10);
    EXPECT_EQ(m_table.Create(m_folder.File("u.dbf").c_str()), 0);
    m_table.Close();
    for (int i = 0; i < 1022; ++i)
        m_table.AddNewField("F", 'C', 1);
    EXPECT_EQ(m_table.Create(m_folder.File("most.dbf").c_str()), 1) << "32 x 1022 + 33 = 32,737";
    m_table.Close();
    for (int i = 0; i < 1023; ++i)
        m_table.AddNewField("F", 'C', 1);
    EXPECT_EQ(m_table.Create(m_folder.File("u.dbf").c_str()), 0) << "32,769";
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path() / "u.dbf"));
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path() / "u.dbf.tmp"));
}

TEST_P(TableWrite, Create_WithABaseOffsetTouchesNothing)
{
    const std::string container = m_folder.Write("c.bin", "####" + Small().Bytes());
    m_table.SetBaseOffset(4);
    m_table.AddNewField("A", 'C', 3);
    EXPECT_EQ(m_table.Create(container.c_str()), 0);
    EXPECT_EQ(Bytes("c.bin"), "####" + Small().Bytes());
}

TEST_P(TableWrite, AddNewField_CountsBeforeTheTableIsMade)
{
    m_table.AddNewField("A", 'C', 3);
    m_table.AddNewField("B", 'N', 4);
    EXPECT_EQ(m_table.NumFields(), 2);
    EXPECT_EQ(m_table.GetFieldNumber("b"), 1);
    EXPECT_EQ(m_table.GetFieldType(1), 'N');
    m_table.SetFieldValue(0, "x");
    EXPECT_TRUE(m_table.GetFieldValue(0).IsEmpty()) << "there is no record yet";
    EXPECT_EQ(m_table.WriteRecord(nullptr), 0);
}

TEST_P(TableWrite, AddNewField_ToAnOpenTableReachesNoRecord)
{
    OpenSmall();
    m_table.AddNewField("C", 'C', 3);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_TRUE(m_table.GetFieldValue("C").IsEmpty());
    m_table.SetFieldValue("C", "xyz");
    EXPECT_TRUE(m_table.GetFieldValueRaw("C").IsEmpty());
    EXPECT_STREQ(m_table.GetFieldValue("B"), "1");
    EXPECT_EQ(m_table.WriteHeader(nullptr), 1);
    EXPECT_EQ(Bytes(), Small().Bytes());
}

// --- SetFieldValue ---

TEST_P(TableWrite, SetFieldValue_FillsTheFieldWithBlanksBehindTheValue)
{
    OpenSmall();
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    m_table.SetFieldValue(0, "x");
    EXPECT_STREQ(m_table.GetFieldValueRaw("A"), "x  ");
    m_table.SetFieldValue("a", "yz");
    EXPECT_STREQ(m_table.GetFieldValueRaw("A"), "yz ");
    m_table.SetFieldValue("A", static_cast<const char*>(nullptr));
    EXPECT_STREQ(m_table.GetFieldValueRaw("A"), "   ");
    EXPECT_STREQ(m_table.GetFieldValueRaw("B"), " 1");
    m_table.SetFieldValue("B", 7);
    EXPECT_STREQ(m_table.GetFieldValueRaw("B"), "7 ");
    m_table.SetFieldValue("A", -12L);
    EXPECT_STREQ(m_table.GetFieldValueRaw("A"), "-12");
    EXPECT_EQ(Bytes(), Small().Bytes()) << "nothing is written";
}

TEST_P(TableWrite, SetFieldValue_RunsIntoTheNextFieldUpToTheRecordsEnd)
{
    OpenSmall();
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    m_table.SetFieldValue(0, "abcd");
    EXPECT_STREQ(m_table.GetFieldValueRaw("B"), "d1");
    m_table.SetFieldValue(0, "abcdefghijklmnopqrstuvwxyz");
    EXPECT_STREQ(m_table.GetFieldValueRaw("A"), "abc");
    EXPECT_STREQ(m_table.GetFieldValueRaw("B"), "de");
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue(0), "two") << "the next record is whole";
}

TEST_P(TableWrite, SetFieldValue_OfNoFieldDoesNothing)
{
    OpenSmall();
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    m_table.SetFieldValue(-1, "x");
    m_table.SetFieldValue(2, "x");
    m_table.SetFieldValue("NOFIELD", "x");
    m_table.SetFieldValue("NOFIELD", 5L);
    EXPECT_STREQ(m_table.GetFieldValueRaw("A"), "one");
    EXPECT_STREQ(m_table.GetFieldValueRaw("B"), " 1");
    CDBFFile closed(0);
    closed.SetFieldValue(0, "x");
}

TEST_P(TableWrite, SetFieldValue_BeforeTheFirstReadBeginsWithBlanks)
{
    OpenSmall();
    m_table.SetFieldValue("B", "9");
    EXPECT_STREQ(m_table.GetFieldValueRaw("A"), "   ");
    m_table.FP()->SeekToEnd();
    EXPECT_EQ(m_table.WriteRecord(nullptr), 1);
    EXPECT_EQ(Records().substr(4 * kSmallRecord), "    9 ");
}

// --- WriteRecord ---

TEST_P(TableWrite, WriteRecord_GoesBehindTheCurrentRecord)
{
    OpenSmall();
    ASSERT_EQ(m_table.ReadRecord(1), 1);
    m_table.SetFieldValue("A", "new");
    EXPECT_EQ(m_table.WriteRecord(nullptr), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 1);
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "new") << "what was just written";
    EXPECT_EQ(m_table.CurRecIndex(), 2);
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "for");
    EXPECT_EQ(Records(), " one 1 two 2 new 2 for 4");
}

TEST_P(TableWrite, WriteRecord_GoesWhereTheFileWasMoved)
{
    OpenSmall();
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    m_table.SetFieldValue("A", "1st");
    m_table.FP()->Seek(kSmallHead, CFile::begin);
    EXPECT_EQ(m_table.WriteRecord(nullptr), 1);
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "two");
    m_table.FP()->SeekToEnd();
    EXPECT_EQ(m_table.WriteRecord(nullptr), 1);
    EXPECT_EQ(m_table.WriteNumRecords(nullptr, 5), 1);
    EXPECT_EQ(m_table.ReadRecord(4), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "two");
    EXPECT_EQ(Records(), " 1st 1 two 2 tri 3 for 4 two 2");
}

TEST_P(TableWrite, Fp_WhatIsWrittenThroughItIsReadNext)
{
    OpenSmall();
    CFile* file = m_table.FP();
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    file->Seek(kSmallHead + kSmallRecord + 1, CFile::begin);
    file->Write("T", 1);
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "Two");
    file->SetLength(kSmallHead + 2 * kSmallRecord);
    EXPECT_EQ(m_table.ReadRecord(-1), 0) << "nothing is left there";
    file->Close();
    EXPECT_EQ(m_table.ReadRecord(0), 0);
    EXPECT_EQ(m_table.WriteRecord(nullptr), 0);
    EXPECT_EQ(Records(), " one 1 Two 2");
}

TEST_P(TableWrite, WriteRecord_ToAnotherFileGoesToItsPosition)
{
    OpenSmall();
    CFile other(m_folder.File("o.bin").c_str(), CFile::modeCreate | CFile::modeReadWrite);
    EXPECT_EQ(m_table.WriteRecord(&other), 0) << "there is no record yet";
    ASSERT_EQ(m_table.ReadRecord(2), 1);
    other.Write("##", 2);
    EXPECT_EQ(m_table.WriteRecord(&other), 1);
    EXPECT_EQ(m_table.WriteRecord(&other), 1);
    EXPECT_EQ(other.GetPosition(), 2u + 2 * kSmallRecord);
    other.Close();
    EXPECT_EQ(m_folder.Read("o.bin"), "## tri 3 tri 3");
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "for");
    EXPECT_EQ(Bytes(), Small().Bytes());
}

TEST_P(TableWrite, WriteRecord_WithADecodeKeyWritesPlain)
{
    OpenSmall();
    const std::string plain = Small().Bytes();
    m_table.Close();
    const std::string coded = plain.substr(0, kSmallHead) + vorn::test::Scrambled(plain.substr(kSmallHead, 6), "ab") +
                              vorn::test::Scrambled(plain.substr(kSmallHead + 6, 6), "ab");
    m_table.SetDecodeString("ab", 0);
    ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", coded).c_str(), CFile::modeReadWrite), 1);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "one");
    m_table.DeleteRecord();
    EXPECT_EQ(Bytes().substr(kSmallHead, 6), "*one 1");
}

// --- DeleteRecord ---

TEST_P(TableWrite, DeleteRecord_FlagsTheCurrentRecordAndReadingGoesOn)
{
    OpenSmall();
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    m_table.DeleteRecord();
    EXPECT_EQ(m_table.CurRecIndex(), 1);
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "tri");
    EXPECT_EQ(m_table.ReadRecord(1), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "tri") << "it is passed over";
    EXPECT_EQ(m_table.NumRecords(), 4);
    EXPECT_EQ(Records(), " one 1*two 2 tri 3 for 4");
}

TEST_P(TableWrite, DeleteRecord_OfEveryRecordInALoop)
{
    OpenSmall();
    while (m_table.ReadRecord(-1) == 1)
        m_table.DeleteRecord();
    EXPECT_EQ(Records(), "*one 1*two 2*tri 3*for 4");
}

TEST_P(TableWrite, DeleteRecord_WritesTheRecordBufferAsItStands)
{
    OpenSmall();
    ASSERT_EQ(m_table.ReadRecord(3), 1);
    m_table.SetFieldValue("A", "xxx");
    m_table.DeleteRecord();
    EXPECT_EQ(Records(), " one 1 two 2 tri 3*xxx 4");
}

TEST_P(TableWrite, DeleteRecord_WithoutACurrentRecordDoesNothing)
{
    OpenSmall();
    m_table.DeleteRecord();
    while (m_table.ReadRecord(-1) == 1)
    {
    }
    m_table.DeleteRecord();
    EXPECT_EQ(m_table.ReadRecord(77), 0);
    m_table.DeleteRecord();
    EXPECT_EQ(Bytes(), Small().Bytes());
    m_table.DeleteRecord();
}

// --- Head and count ---

TEST_P(TableWrite, WriteHeader_ToAnotherFileWritesAllOfTheHead)
{
    TableBytes odd = Small();
    odd.EndHeaderWith(std::string_view("\r\0\0", 3));
    ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", odd.Bytes()).c_str(), CFile::modeRead), 1);
    CFile other(m_folder.File("o.dbf").c_str(), CFile::modeCreate | CFile::modeReadWrite);
    EXPECT_EQ(m_table.WriteHeader(&other), 1);
    while (m_table.ReadRecord(-1) == 1)
        EXPECT_EQ(m_table.WriteRecord(&other), 1);
    EXPECT_EQ(m_table.WriteNumRecords(&other, 3), 1);
    EXPECT_EQ(m_table.NumRecords(), 4) << "of the table itself";
    EXPECT_EQ(other.GetPosition(), 99u + 4 * kSmallRecord) << "the count leaves the place alone";
    other.Close();
    EXPECT_EQ(m_folder.Read("o.dbf"), odd.StateCount(3).Bytes());
}

TEST_P(TableWrite, WriteHeader_OfTheTableGoesToItsOwnPlace)
{
    const std::string bytes = std::string(50, '#') + Small().Bytes();
    m_table.SetBaseOffset(50);
    ASSERT_EQ(m_table.Open(m_folder.Write("t.bin", bytes).c_str(), CFile::modeReadWrite), 1);
    EXPECT_EQ(m_table.WriteHeader(nullptr), 1);
    EXPECT_EQ(m_table.WriteNumRecords(nullptr, 3), 1);
    EXPECT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "one");
    EXPECT_EQ(Bytes("t.bin"), std::string(50, '#') + Small().StateCount(3).Bytes());
}

TEST_P(TableWrite, WriteNumRecords_MovesNeitherTheCurrentRecordNorThePlace)
{
    OpenSmall();
    ASSERT_EQ(m_table.ReadRecord(1), 1);
    EXPECT_EQ(m_table.WriteNumRecords(nullptr, 3), 1);
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "tri");
    EXPECT_EQ(m_table.ReadRecord(-1), 0);
    EXPECT_EQ(m_table.WriteNumRecords(nullptr, -1), 0);
    EXPECT_EQ(m_table.NumRecords(), 3);
    EXPECT_EQ(Bytes(), Small().StateCount(3).Bytes());
}

TEST_P(TableWrite, WriteNumRecords_AfterTheEndLetsReadingGoOnBehindIt)
{
    m_table.Close();
    ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", Small().StateCount(2).Bytes()).c_str(), CFile::modeReadWrite), 1);
    while (m_table.ReadRecord(-1) == 1)
    {
    }
    EXPECT_EQ(m_table.CurRecIndex(), 2);
    EXPECT_EQ(m_table.WriteNumRecords(nullptr, 4), 1);
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 3);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "for");
}

TEST_P(TableWrite, Writers_WithoutATableWriteNothing)
{
    CFile other(m_folder.File("o.bin").c_str(), CFile::modeCreate | CFile::modeReadWrite);
    EXPECT_EQ(m_table.WriteHeader(nullptr), 0);
    EXPECT_EQ(m_table.WriteHeader(&other), 0);
    EXPECT_EQ(m_table.WriteRecord(nullptr), 0);
    EXPECT_EQ(m_table.WriteRecord(&other), 0);
    EXPECT_EQ(m_table.WriteNumRecords(nullptr, 1), 0);
    EXPECT_EQ(m_table.Pack(), -1);
    EXPECT_EQ(other.GetLength(), 0u);
}

TEST_P(TableWrite, Writers_LeaveATableOpenedForReadingAlone)
{
    ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", Small().Bytes()).c_str(), CFile::modeRead), 1);
    ASSERT_EQ(m_table.ReadRecord(1), 1);
    EXPECT_EQ(m_table.WriteHeader(nullptr), 0);
    EXPECT_EQ(m_table.WriteRecord(nullptr), 0);
    EXPECT_EQ(m_table.WriteNumRecords(nullptr, 9), 0);
    EXPECT_EQ(m_table.NumRecords(), 4);
    m_table.DeleteRecord();
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_STREQ(m_table.GetFieldValue("A"), "tri");
    EXPECT_EQ(Bytes(), Small().Bytes());
}
} // namespace
