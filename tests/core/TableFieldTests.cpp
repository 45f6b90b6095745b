#include "files/core/CDBFFile.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
using vorn::test::Padded;
using vorn::test::ScratchFolder;
using vorn::test::TableBytes;

class TableField : public testing::Test
{
protected:
    /// Opens the table with its first record current.
    void Open(const std::string& bytes)
    {
        m_table.Close();
        ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", bytes).c_str(), CFile::modeRead), 1);
        ASSERT_EQ(m_table.ReadRecord(0), 1);
    }
    void Open(const TableBytes& bytes)
    {
        Open(bytes.Bytes());
    }
    /// The value by number, in all the forms in which it can be had.
    std::string Value(int field)
    {
        const CString value = m_table.GetFieldValue(field);
        CString out = "something that was there before, longer than most";
        m_table.GetFieldValue(field, out);
        EXPECT_EQ(out, value);
        CString empty;
        m_table.GetFieldValue(field, empty);
        EXPECT_EQ(empty, value);
        return {value.GetString(), static_cast<std::size_t>(value.GetLength())};
    }
    /// The value of the only field, of that type, holding those bytes.
    std::string ValueOf(char type, const std::string& bytes)
    {
        Open(TableBytes().Field("F", type, static_cast<int>(bytes.size())).Record(bytes));
        return Value(0);
    }

    ScratchFolder m_folder;
    CDBFFile m_table{10};
};

TEST_F(TableField, GetFieldValue_DropsBlanksAndTabsAtTheEndOnly)
{
    EXPECT_EQ(ValueOf('C', "  two words \t \t"), "  two words");
    EXPECT_EQ(ValueOf('C', "line\r\n   "), "line\r\n");
    EXPECT_EQ(ValueOf('C', "hard\xA0 "), "hard\xA0");
    EXPECT_EQ(ValueOf('C', "        "), "");
    EXPECT_EQ(ValueOf('C', "full"), "full");
    EXPECT_EQ(ValueOf('C', "x"), "x");
    EXPECT_EQ(ValueOf('C', " "), "");
}

TEST_F(TableField, GetFieldValue_TrimsTextsOfEveryLengthInFieldsOfEveryWidth)
{
    for (std::size_t width = 1; width <= 70; ++width)
    {
        TableBytes table;
        table.Field("BEFORE", 'C', 3).Field("F", 'C', static_cast<int>(width)).Field("AFTER", 'C', 3);
        for (std::size_t length = 0; length <= width; ++length)
            table.Record("bbb" + Padded(std::string(length, 'x'), width) + "aaa");
        Open(table);
        for (std::size_t length = 0; length <= width; ++length)
        {
            ASSERT_EQ(m_table.ReadRecord(static_cast<int>(length)), 1);
            ASSERT_EQ(Value(1), std::string(length, 'x')) << width;
        }
    }
}

TEST_F(TableField, GetFieldValue_KeepsZerosInside)
{
    EXPECT_EQ(ValueOf('C', std::string("a\0b\0  ", 6)), std::string("a\0b\0", 4));
}

TEST_F(TableField, GetFieldValue_OfOtherTypesIsTheirText)
{
    EXPECT_EQ(ValueOf('D', "20261121"), "20261121");
    EXPECT_EQ(ValueOf('L', "T"), "T");
    EXPECT_EQ(ValueOf('F', " -1.50 "), " -1.50");
    EXPECT_EQ(ValueOf('n', " 7 "), " 7");
}

TEST_F(TableField, GetFieldValue_OfNumbersReadsTheLowFourBitsOfEachByte)
{
    EXPECT_EQ(ValueOf('N', "  42"), "42");
    EXPECT_EQ(ValueOf('N', " 1 2"), "102");
    EXPECT_EQ(ValueOf('N', "1    "), "10000");
    EXPECT_EQ(ValueOf('N', "0070"), "70");
    EXPECT_EQ(ValueOf('N', "    "), "0");
    EXPECT_EQ(ValueOf('N', "0000"), "0");
    EXPECT_EQ(ValueOf('N', "-"), "13");
    EXPECT_EQ(ValueOf('N', "."), "14");
    EXPECT_EQ(ValueOf('N', "-1.5"), "131145");
    EXPECT_EQ(ValueOf('N', ":;<=>?"), "101112131415");
    EXPECT_EQ(ValueOf('N', "\xFF\xF0\x81"), "1501");
    EXPECT_EQ(ValueOf('N', std::string("\0\0\x05", 3)), "5");
    EXPECT_EQ(ValueOf('N', std::string(255, '?')).size(), 510u);
}

TEST_F(TableField, GetFieldValue_OfAFieldThatDoesNotExistIsEmpty)
{
    Open(TableBytes().Field("A", 'C', 3).Record("abc"));
    EXPECT_EQ(Value(-1), "");
    EXPECT_EQ(Value(1), "");
    EXPECT_EQ(Value(2147483647), "");
    EXPECT_EQ(Value(-2147483647 - 1), "");
    EXPECT_TRUE(m_table.GetFieldValue("B").IsEmpty());
    EXPECT_TRUE(m_table.GetFieldValue(static_cast<const char*>(nullptr)).IsEmpty());
    CString out = "x";
    m_table.GetFieldValue("B", out);
    EXPECT_TRUE(out.IsEmpty());
}

TEST_F(TableField, GetFieldValue_BeforeTheFirstReadIsEmpty)
{
    const std::string path = m_folder.Write("t.dbf", TableBytes().Field("A", 'C', 3).Record("abc").Bytes());
    ASSERT_EQ(m_table.Open(path.c_str(), CFile::modeRead), 1);
    EXPECT_EQ(Value(0), "");
    EXPECT_TRUE(m_table.GetFieldValueRaw("A").IsEmpty());
    CDBFFile closed(0);
    CString out = "x";
    closed.GetFieldValue(0, out);
    EXPECT_TRUE(out.IsEmpty());
}

TEST_F(TableField, GetFieldValue_ReusesTheCallersBlock)
{
    Open(TableBytes().Field("A", 'C', 30).Field("B", 'C', 5).Record(Padded("longest text of them all", 30) + "b"));
    CString out;
    m_table.GetFieldValue(0, out);
    const char* block = out.GetString();
    m_table.GetFieldValue(1, out);
    EXPECT_STREQ(out, "b");
    EXPECT_EQ(out.GetString(), block);
    m_table.GetFieldValue("A", out);
    EXPECT_STREQ(out, "longest text of them all");
    EXPECT_EQ(out.GetString(), block);
}

TEST_F(TableField, GetFieldValue_LeavesCopiesOfTheCallersTextAlone)
{
    Open(TableBytes().Field("A", 'C', 8).Record("new"));
    CString out = "old text, shared with a copy";
    const CString copy = out;
    m_table.GetFieldValue(0, out);
    EXPECT_STREQ(out, "new");
    EXPECT_STREQ(copy, "old text, shared with a copy");
    CString locked = "locked";
    locked.LockBuffer();
    m_table.GetFieldValue(0, locked);
    EXPECT_STREQ(locked, "new");
    locked.UnlockBuffer();
}

TEST_F(TableField, GetFieldValueRaw_IsTheBytesAsTheyStand)
{
    Open(TableBytes().Field("A", 'C', 6).Field("N", 'N', 4).Record(" ab   -1.5"));
    EXPECT_STREQ(m_table.GetFieldValueRaw("A"), " ab   ");
    EXPECT_STREQ(m_table.GetFieldValueRaw("N"), "-1.5");
    EXPECT_TRUE(m_table.GetFieldValueRaw("X").IsEmpty());
}

TEST_F(TableField, FieldNames_MatchInAnyCaseAndTheFirstOneCounts)
{
    Open(TableBytes().Field("Same", 'C', 1).Field("SAME", 'C', 1).Field("other", 'C', 1).Record("abc"));
    EXPECT_EQ(m_table.GetFieldNumber("sAmE"), 0);
    EXPECT_EQ(m_table.GetFieldNumber("OTHER"), 2);
    EXPECT_EQ(m_table.GetFieldNumber("othe"), -1);
    EXPECT_EQ(m_table.GetFieldNumber("other1"), -1);
    EXPECT_EQ(m_table.GetFieldNumber(""), -1);
    EXPECT_EQ(m_table.GetFieldNumber(nullptr), -1);
    EXPECT_STREQ(m_table.GetFieldValue("other"), "c");
}

TEST_F(TableField, FieldNames_OfElevenCharactersHaveNoTerminator)
{
    Open(TableBytes().Field("ELEVENCHARS", 'C', 2).Field("ELEVENCHAR", 'C', 2).Record("aabb"));
    EXPECT_STREQ(m_table.GetFieldName(0), "ELEVENCHARS");
    EXPECT_EQ(m_table.GetFieldNumber("ELEVENCHARS"), 0);
    EXPECT_EQ(m_table.GetFieldNumber("ElevenCharsAndMore"), 0) << "the asked name is cut";
    EXPECT_EQ(m_table.GetFieldNumber("ELEVENCHAR"), 1);
}

TEST_F(TableField, FieldNames_AskedForAgainAreThoseOfTheOpenTable)
{
    Open(TableBytes().Field("A", 'C', 1).Field("B", 'C', 1).Record("ab"));
    EXPECT_EQ(m_table.GetFieldNumber("B"), 1);
    EXPECT_EQ(m_table.GetFieldNumber("B"), 1);
    Open(TableBytes().Field("B", 'C', 1).Record("b"));
    EXPECT_EQ(m_table.GetFieldNumber("B"), 0);
    m_table.Close();
    EXPECT_EQ(m_table.GetFieldNumber("B"), -1);
}

TEST_F(TableField, FieldFacts_OfAFieldThatDoesNotExist)
{
    Open(TableBytes().Field("A", 'C', 1).Record("a"));
    EXPECT_STREQ(m_table.GetFieldName(-1), "");
    EXPECT_STREQ(m_table.GetFieldName(1), "");
    EXPECT_EQ(m_table.GetFieldType(-1), '\0');
    EXPECT_EQ(m_table.GetFieldType(1), '\0');
    EXPECT_EQ(m_table.GetFieldType("B"), '\0');
}

TEST_F(TableField, Lengths_HaveSixteenBitsButForNumbers)
{
    TableBytes table;
    table.Field("LONG", 'C', 300 % 256, 300 / 256).Field("END", 'C', 3).Record(Padded("long", 300) + "end");
    Open(table);
    EXPECT_EQ(m_table.RecordLength(), 304);
    EXPECT_EQ(m_table.GetFieldValueRaw("LONG").GetLength(), 300);
    EXPECT_EQ(Value(1), "end");
}

TEST_F(TableField, Decimals_ShiftLaterFieldsBy256Each)
{
    TableBytes table;
    table.Field("A", 'N', 4, 2).Field("B", 'C', 3).StateRecordLength(1 + 4 + 512 + 3).StateCount(1);
    Open(table.Header() + " 1234" + std::string(512, '.') + "end");
    EXPECT_EQ(Value(0), "1234");
    EXPECT_EQ(Value(1), "end");
}

TEST_F(TableField, Decimals_ShiftLaterFieldsOutOfARecordThatDoesNotReckonWithIt)
{
    TableBytes table;
    table.Field("A", 'N', 4, 1).Field("B", 'C', 3).Field("C", 'N', 3).Record("1234end123");
    Open(table);
    EXPECT_EQ(Value(0), "1234");
    EXPECT_EQ(Value(1), "");
    EXPECT_EQ(Value(2), "");
}

TEST_F(TableField, FieldPartlyOutsideTheRecord_GivesThePartInside)
{
    Open(TableBytes().Field("A", 'C', 3).Field("B", 'C', 9).StateRecordLength(1 + 3 + 4).StateCount(1).Header() +
         " aaabbbb");
    EXPECT_EQ(Value(0), "aaa");
    EXPECT_EQ(Value(1), "bbbb");
}

TEST_F(TableField, NegativeLength_IsEmptyAndMovesLaterFieldsBack)
{
    // 0xFFFE is -2: the field behind begins two bytes before the place of the damaged one.
    TableBytes table;
    table.Field("A", 'C', 3).Field("BAD", 'C', 0xFE, 0xFF).Field("C", 'C', 2).StateRecordLength(6).StateCount(1);
    Open(table.Header() + " abcde");
    EXPECT_EQ(Value(0), "abc");
    EXPECT_EQ(Value(1), "");
    EXPECT_EQ(Value(2), "bc");
}

TEST_F(TableField, OffsetsFarOutsideSixteenBits_AreEmpty)
{
    TableBytes table;
    for (int i = 0; i < 1000; ++i)
        table.Field("F", 'C', 0xFF, 0x7F); // 32,767 each
    table.StateRecordLength(5).StateCount(1);
    Open(table.Header() + " abcd");
    EXPECT_EQ(Value(0), "abcd");
    EXPECT_EQ(Value(1), "");
    EXPECT_EQ(Value(999), "");
}
} // namespace
