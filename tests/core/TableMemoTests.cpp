#include "files/core/CDBFFile.h"
#include "framework/core/MemFile.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace
{
using vorn::test::LittleEndian;
using vorn::test::MemoEntryBytes;
using vorn::test::Padded;
using vorn::test::Scrambled;
using vorn::test::ScratchFolder;
using vorn::test::TableBytes;

constexpr std::size_t kBlock = 512;

/// One memo field of ten bytes with that block number as it is.
TableBytes MemoTable(const std::string& block)
{
    return TableBytes().Field("NOTE", 'M', 10).Record(block);
}

class TableMemo : public testing::Test
{
protected:
    /// The memo of the table "t.dbf" as just written.
    std::string Memo(const std::string& block)
    {
        m_table.Close();
        const std::string path = m_folder.Write("t.dbf", MemoTable(block).Bytes());
        EXPECT_EQ(m_table.Open(path.c_str(), CFile::modeRead), 1);
        EXPECT_EQ(m_table.ReadRecord(0), 1);
        return Value();
    }
    std::string Value()
    {
        const CString value = m_table.GetFieldValue(0);
        return {value.GetString(), static_cast<std::size_t>(value.GetLength())};
    }
    /// Makes "t.dbt": a first block of '#', then the bytes.
    void Write(const std::string& entries)
    {
        m_table.Close();
        m_folder.Write("t.dbt", std::string(kBlock, '#') + entries);
    }

    ScratchFolder m_folder;
    CDBFFile m_table{4};
};

TEST_F(TableMemo, Value_IsTheTextOfTheEntryAtTheBlock)
{
    Write(MemoEntryBytes("first") + MemoEntryBytes("second"));
    EXPECT_EQ(Memo("1"), "first");
    EXPECT_EQ(Memo("         2"), "second");
    EXPECT_EQ(Memo("0000000002"), "second");
}

TEST_F(TableMemo, Value_IsNeitherTrimmedNorCut)
{
    Write(MemoEntryBytes(std::string(" a\0b \r\n\t ", 9)));
    EXPECT_EQ(Memo("1"), std::string(" a\0b \r\n\t ", 9));
}

TEST_F(TableMemo, Value_MayBeAsLongAsTheFileHolds)
{
    for (const std::size_t size : {0U, 1U, 503U, 504U, 505U, 1016U, 1017U, 5000U, 300000U})
    {
        std::string text;
        for (std::size_t i = 0; i < size; ++i)
            text += static_cast<char>('a' + i % 23);
        Write(MemoEntryBytes(text) + MemoEntryBytes("next"));
        EXPECT_EQ(Memo("1"), text) << size;
    }
}

TEST_F(TableMemo, Value_OfTheLastEntryNeedsNoPadding)
{
    Write(MemoEntryBytes("padded").substr(0, 8 + 6));
    EXPECT_EQ(Memo("1"), "padded");
}

TEST_F(TableMemo, Value_OfNoBlockNumberIsEmpty)
{
    Write(MemoEntryBytes("first"));
    for (const char* number : {"", "0", "-1", "x", "1x", "1 1", "1.0", "+1", "3", "4294967297", "9999999999"})
        EXPECT_EQ(Memo(number), "") << number;
    EXPECT_EQ(Memo(std::string("\x01\0\0\0", 4)), "") << "a binary number";
}

TEST_F(TableMemo, Value_OfALengthThatCannotBeIsEmpty)
{
    for (const unsigned long length : {0UL, 7UL, 8UL, 513UL, 0x7FFFFFFFUL, 0x80000000UL, 0xFFFFFFFFUL})
    {
        Write(Padded(std::string("\xFF\xFF\x08\x00", 4) + LittleEndian(length, 4) + "text", kBlock, '\x1A'));
        EXPECT_EQ(Memo("1"), "") << length;
    }
    Write(Padded(std::string("\xFF\xFF\x08\x00", 4) + LittleEndian(512, 4) + "text", kBlock, '.'));
    EXPECT_EQ(Memo("1").size(), 504u) << "up to the file's last byte";
}

TEST_F(TableMemo, Value_WithoutTheMarkEndsAtTheFirst1A)
{
    Write("An old memo.\x1A\x1Agarbage");
    EXPECT_EQ(Memo("1"), "An old memo.");
    Write("short\x1A");
    EXPECT_EQ(Memo("1"), "short");
    Write("\x1A");
    EXPECT_EQ(Memo("1"), "");
    const std::string text(20000, 't');
    Write(text + "\x1A");
    EXPECT_EQ(Memo("1"), text);
    Write("without an end");
    EXPECT_EQ(Memo("1"), "");
}

TEST_F(TableMemo, Value_IsDecodedFromTheKeysStart)
{
    const std::string entry = MemoEntryBytes(Scrambled("scrambled text of a memo", "key"));
    m_folder.Write("t.dbt", std::string(kBlock, '\0') + entry);
    std::string bytes = MemoTable("1").Bytes();
    bytes = bytes.substr(0, 65) + Scrambled(bytes.substr(65), "key");
    m_table.SetDecodeString("key", 3);
    ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", bytes).c_str(), CFile::modeRead), 1);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(Value(), "scrambled text of a memo");
}

TEST_F(TableMemo, Value_WithAKeyAndWithoutTheMarkIsEmpty)
{
    m_folder.Write("t.dbt", std::string(kBlock, '\0') + "old\x1A");
    std::string bytes = MemoTable("1").Bytes();
    bytes = bytes.substr(0, 65) + Scrambled(bytes.substr(65), "k");
    m_table.SetDecodeString("k", 0);
    ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", bytes).c_str(), CFile::modeRead), 1);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_STREQ(m_table.GetFieldValueRaw("NOTE"), "1         ");
    EXPECT_EQ(Value(), "");
}

TEST_F(TableMemo, MemoFile_IsBtdWhenThereIsNoDbt)
{
    m_folder.Write("t.btd", std::string(kBlock, '\0') + MemoEntryBytes("from the other"));
    EXPECT_EQ(Memo("1"), "from the other");
    Write(MemoEntryBytes("from the first"));
    EXPECT_EQ(Memo("1"), "from the first");
}

TEST_F(TableMemo, MemoFile_MissingIsNoError)
{
    EXPECT_EQ(Memo("1"), "");
}

TEST_F(TableMemo, MemoFile_NameReplacesEveryOccurrenceOfTheLastFourCharacters)
{
    const std::string path = m_folder.Write("a.dbfx.dbf", MemoTable("1").Bytes());
    m_folder.Write("a.dbfx.dbt", std::string(kBlock, '\0') + MemoEntryBytes("not this"));
    m_folder.Write("a.dbtx.dbt", std::string(kBlock, '\0') + MemoEntryBytes("this"));
    ASSERT_EQ(m_table.Open(path.c_str(), CFile::modeRead), 1);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(Value(), "this");
}

TEST_F(TableMemo, MemoFile_IsNeverTheTableItself)
{
    const std::string path = m_folder.Write("t.dbt", MemoTable("1").Bytes());
    ASSERT_EQ(m_table.Open(path.c_str(), CFile::modeReadWrite), 1);
    EXPECT_EQ(m_table.WriteDBTRecord(nullptr, "text"), 0);
    EXPECT_EQ(m_folder.Read("t.dbt"), MemoTable("1").Bytes());
}

TEST_F(TableMemo, BaseOffset_MemosLieBehindTheTableInItsFile)
{
    const std::string table = MemoTable("         1").Bytes();
    m_table.SetBaseOffset(700);
    // Block 0 begins right behind the last record.
    std::string bytes = std::string(700, '#') + table + std::string(kBlock, '\0') + MemoEntryBytes("inside");
    ASSERT_EQ(m_table.Open(m_folder.Write("c.bin", bytes).c_str(), CFile::modeRead), 1);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(Value(), "inside");
    EXPECT_EQ(m_table.ReadRecord(-1), 0);
    EXPECT_EQ(m_table.ReadRecord(0), 1) << "reading finds its place again";
}

TEST_F(TableMemo, BaseOffset_AMemoFileGoesFirstAndHasNoOffset)
{
    const std::string bytes =
        std::string(700, '#') + MemoTable("1").Bytes() + std::string(kBlock, '\0') + MemoEntryBytes("inside");
    m_folder.Write("c.dbt", std::string(kBlock, '\0') + MemoEntryBytes("beside"));
    m_table.SetBaseOffset(700);
    ASSERT_EQ(m_table.Open(m_folder.Write("c.bin", bytes).c_str(), CFile::modeRead), 1);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(Value(), "beside");
}

TEST_F(TableMemo, Reading_GoesOnAfterMemosInTheSameFile)
{
    TableBytes table;
    table.Field("NOTE", 'M', 4).Record("1").Record("2").Record("1");
    const std::string bytes =
        "##" + table.Bytes() + std::string(kBlock, '\0') + MemoEntryBytes("one") + MemoEntryBytes("two");
    for (const int ahead : {0, 2, 9})
    {
        CDBFFile reader(ahead);
        reader.SetBaseOffset(2);
        ASSERT_EQ(reader.Open(m_folder.Write("c.bin", bytes).c_str(), CFile::modeRead), 1);
        std::string texts;
        while (reader.ReadRecord(-1) == 1)
            texts += reader.GetFieldValue("NOTE") + ",";
        EXPECT_EQ(texts, "one,two,one,");
    }
}

// --- Writing ---

TEST_F(TableMemo, WriteDbtHeader_OfANewFileIsOneBlock)
{
    CMemFile memo;
    EXPECT_EQ(m_table.WriteDBTHeader(&memo), 1);
    EXPECT_EQ(memo.GetLength(), kBlock);
    EXPECT_EQ(memo.GetPosition(), kBlock);
    std::string head(kBlock, '\xFF');
    memo.SeekToBegin();
    memo.Read(head.data(), kBlock);
    EXPECT_EQ(head, LittleEndian(1, 4) + std::string(16, '\0') + LittleEndian(512, 2) + std::string(490, '\0'));
}

TEST_F(TableMemo, WriteDbtRecord_WritesMarkLengthTextAndZerosUpToABlock)
{
    const std::string path = m_folder.File("new.dbt");
    CFile memo(path.c_str(), CFile::modeCreate | CFile::modeReadWrite);
    ASSERT_EQ(m_table.WriteDBTHeader(&memo), 1);
    EXPECT_EQ(m_table.WriteDBTRecord(&memo, "short"), 2);
    EXPECT_EQ(m_table.WriteDBTRecord(&memo, std::string(504, 'f').c_str()), 3) << "fills its block";
    EXPECT_EQ(m_table.WriteDBTRecord(&memo, std::string(505, 'g').c_str()), 5);
    EXPECT_EQ(m_table.WriteDBTRecord(&memo, ""), 6);
    EXPECT_EQ(m_table.WriteDBTRecord(&memo, nullptr), 7);
    memo.Close();
    const std::string written = m_folder.Read("new.dbt");
    ASSERT_EQ(written.size(), 7 * kBlock);
    EXPECT_EQ(written.substr(kBlock), MemoEntryBytes("short") + MemoEntryBytes(std::string(504, 'f')) +
                                          MemoEntryBytes(std::string(505, 'g')) + MemoEntryBytes("") +
                                          MemoEntryBytes(""));
}

TEST_F(TableMemo, WriteDbtHeader_TellsTheNextFreeBlockAndEndsOnABlock)
{
    const std::string path = m_folder.Write("x.dbt", std::string(2 * kBlock + 5, 'x'));
    CFile memo(path.c_str(), CFile::modeReadWrite);
    EXPECT_EQ(m_table.WriteDBTHeader(&memo), 1);
    EXPECT_EQ(memo.GetPosition(), 3 * kBlock);
    memo.Close();
    const std::string bytes = m_folder.Read("x.dbt");
    EXPECT_EQ(bytes.substr(0, 4), LittleEndian(3, 4));
    EXPECT_EQ(bytes.substr(kBlock), std::string(kBlock + 5, 'x') + std::string(kBlock - 5, '\0'));
}

TEST_F(TableMemo, MemoWriters_TakeTheOpenMemoFileForNull)
{
    Write(MemoEntryBytes("first"));
    const std::string path = m_folder.Write("t.dbf", MemoTable("1").Bytes());
    ASSERT_EQ(m_table.Open(path.c_str(), CFile::modeReadWrite), 1);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_EQ(Value(), "first");
    EXPECT_EQ(m_table.WriteDBTRecord(nullptr, "second"), 3) << "behind the others, wherever reading left the file";
    EXPECT_EQ(m_table.WriteDBTHeader(nullptr), 1);
    m_table.SetFieldValue(0, "2");
    EXPECT_EQ(Value(), "second");
    EXPECT_EQ(Value(), "second");
    m_table.Close();
    const std::string bytes = m_folder.Read("t.dbt");
    EXPECT_EQ(bytes.substr(0, 4), LittleEndian(3, 4));
    EXPECT_EQ(bytes.substr(kBlock), MemoEntryBytes("first") + MemoEntryBytes("second"));
}

TEST_F(TableMemo, MemoWriters_WithoutAMemoFileWriteNothing)
{
    const std::string bytes = MemoTable("1").Bytes();
    const std::string path = m_folder.Write("t.dbf", bytes);
    ASSERT_EQ(m_table.Open(path.c_str(), CFile::modeReadWrite), 1);
    EXPECT_EQ(m_table.WriteDBTHeader(nullptr), 0);
    EXPECT_EQ(m_table.WriteDBTRecord(nullptr, "text"), 0);
    m_table.Close();
    EXPECT_EQ(m_table.WriteDBTRecord(nullptr, "text"), 0);
    EXPECT_EQ(m_folder.Read("t.dbf"), bytes);
}

TEST_F(TableMemo, MemoWriters_LeaveAReadOnlyFileAlone)
{
    Write(MemoEntryBytes("first"));
    const std::string before = m_folder.Read("t.dbt");
    EXPECT_EQ(Memo("1"), "first");
    EXPECT_EQ(m_table.WriteDBTRecord(nullptr, "text"), 0);
    EXPECT_EQ(m_table.WriteDBTHeader(nullptr), 0);
    m_table.Close();
    EXPECT_EQ(m_folder.Read("t.dbt"), before);
}
} // namespace
