#include "apps/vorntool/core/DbfColumns.h"
#include "apps/vorntool/core/DbfGrid.h"
#include "apps/vorntool/core/DbfLayout.h"

#include <gtest/gtest.h>

using namespace vorn::tool;

namespace
{

std::vector<std::uint8_t> BytesOf(const std::string& text)
{
    return {text.begin(), text.end()};
}

std::string Header(std::uint32_t records, int headerLength, int recordLength)
{
    std::string bytes("\x03\x7E\x02\x1D", 4);
    for (int shift = 0; shift < 32; shift += 8)
    {
        bytes += static_cast<char>(records >> shift);
    }
    for (const int length : {headerLength, recordLength})
    {
        bytes += static_cast<char>(length);
        bytes += static_cast<char>(length >> 8);
    }
    return bytes + std::string(20, '\0');
}

std::string Descriptor(std::string name, char type, int low, int high)
{
    name.resize(11);
    std::string bytes = name + type + std::string(20, '\0');
    bytes[16] = static_cast<char>(low);
    bytes[17] = static_cast<char>(high);
    return bytes;
}

void ExpectField(const DbfField& field, const std::string& name, char type, int length, int decimals, int offset)
{
    EXPECT_EQ(field.name, name);
    EXPECT_EQ(field.type, type);
    EXPECT_EQ(field.length, length);
    EXPECT_EQ(field.decimals, decimals);
    EXPECT_EQ(field.offset, offset);
}

void ExpectColumns(const std::string& list, const std::vector<DbfColumn>& expected)
{
    std::string reason;
    EXPECT_EQ(ParseColumns(list, reason), expected);
    EXPECT_EQ(reason, "");
}

void ExpectNoColumns(const std::string& list, const std::string& expected)
{
    std::string reason;
    EXPECT_EQ(ParseColumns(list, reason), std::nullopt);
    EXPECT_EQ(reason, expected);
}

DbfColumn ColumnOf(const std::vector<std::string>& values)
{
    DbfColumnFacts facts;
    for (const std::string& value : values)
    {
        facts.Add(value);
    }
    return facts.Column("X");
}

} // namespace

TEST(DbfLayout, TakesTheHeaderApart)
{
    const DbfLayout layout = ReadDbfLayout(BytesOf(Header(0xFEDCBA98, 97, 16) + Descriptor("IDENT", 'C', 5, 0) +
                                                   Descriptor("ELEVENCHARS", 'N', 10, 0) + "\r"));
    EXPECT_EQ(layout.version, 3);
    EXPECT_EQ(layout.year, 2026);
    EXPECT_EQ(layout.month, 2);
    EXPECT_EQ(layout.day, 29);
    EXPECT_EQ(layout.records, 0xFEDCBA98u);
    EXPECT_EQ(layout.headerLength, 97);
    EXPECT_EQ(layout.recordLength, 16);
    ASSERT_EQ(layout.fields.size(), 2u);
    ExpectField(layout.fields[0], "IDENT", 'C', 5, 0, 1);
    ExpectField(layout.fields[1], "ELEVENCHARS", 'N', 10, 0, 6);
}

TEST(DbfLayout, DecimalsMoveTheFieldsBehindBy256Each)
{
    const DbfLayout layout = ReadDbfLayout(BytesOf(Header(1, 129, 16) + Descriptor("A", 'N', 8, 2) +
                                                   Descriptor("B", 'C', 4, 1) + Descriptor("C", 'C', 1, 0)));
    ASSERT_EQ(layout.fields.size(), 3u);
    ExpectField(layout.fields[0], "A", 'N', 8, 2, 1);
    ExpectField(layout.fields[1], "B", 'C', 260, 0, 521);
    ExpectField(layout.fields[2], "C", 'C', 1, 0, 781);
}

TEST(DbfLayout, NegativeLengthsStayNegative)
{
    const DbfLayout layout =
        ReadDbfLayout(BytesOf(Header(1, 97, 0xFFF0) + Descriptor("A", 'C', 0xFE, 0xFF) + Descriptor("B", 'C', 1, 0)));
    EXPECT_EQ(layout.recordLength, -16);
    ASSERT_EQ(layout.fields.size(), 2u);
    EXPECT_EQ(layout.fields[0].length, -2);
    EXPECT_EQ(layout.fields[1].offset, -1);
}

TEST(DbfLayout, ReadsNoMoreThanThereIs)
{
    EXPECT_TRUE(ReadDbfLayout({}).fields.empty());
    EXPECT_EQ(ReadDbfLayout(BytesOf(std::string(31, '\x7F'))).records, 0u);
    EXPECT_TRUE(ReadDbfLayout(BytesOf(Header(1, 97, 5))).fields.empty());
    EXPECT_TRUE(ReadDbfLayout(BytesOf(Header(1, 0x8000, 5) + Descriptor("A", 'C', 4, 0))).fields.empty());
    EXPECT_TRUE(ReadDbfLayout(BytesOf(Header(1, 63, 5) + Descriptor("A", 'C', 4, 0))).fields.empty());
    EXPECT_EQ(ReadDbfLayout(BytesOf(Header(1, 64, 5) + Descriptor("A", 'C', 4, 0))).fields.size(), 1u);
}

TEST(DbfLayout, CountsWholeRecordsOnly)
{
    DbfLayout layout;
    layout.records = 10;
    layout.recordLength = 16;
    EXPECT_EQ(HeldRecords(layout, 160), 10u);
    EXPECT_EQ(HeldRecords(layout, 161), 10u);
    EXPECT_EQ(HeldRecords(layout, 159), 9u);
    EXPECT_EQ(HeldRecords(layout, 0), 0u);
    layout.records = 0xFFFFFFFF;
    layout.recordLength = 1;
    EXPECT_EQ(HeldRecords(layout, 0x1FFFFFFFFull), 0xFFFFFFFFu);
    layout.recordLength = 0;
    EXPECT_EQ(HeldRecords(layout, 160), 0u);
    layout.recordLength = -16;
    EXPECT_EQ(HeldRecords(layout, 160), 0u);
}

TEST(DbfLayout, OnlyThePartWithinTheRecordIsUsable)
{
    EXPECT_EQ(UsableLength({"A", 'C', 5, 0, 1}, 6), 5);
    EXPECT_EQ(UsableLength({"A", 'C', 5, 0, 2}, 6), 4);
    EXPECT_EQ(UsableLength({"A", 'C', 5, 0, 6}, 6), 0);
    EXPECT_EQ(UsableLength({"A", 'C', 5, 0, -3}, 6), 0);
    EXPECT_EQ(UsableLength({"A", 'C', -5, 0, 1}, 6), 0);
}

TEST(DbfColumns, AListNamesFieldsWithTypesAndLengths)
{
    ExpectColumns(
        "IDENT:C:5,ELEV:N:10,NOTE:M,DAY:D,YES:L,VAR:F:8",
        {{"IDENT", 'C', 5}, {"ELEV", 'N', 10}, {"NOTE", 'M', 10}, {"DAY", 'D', 8}, {"YES", 'L', 1}, {"VAR", 'F', 8}});
    ExpectColumns("A:C:32766", {{"A", 'C', 32766}});
    ExpectColumns("A:N:255", {{"A", 'N', 255}});
}

TEST(DbfColumns, AListThatNoTableCanHaveIsRefusedWithItsReason)
{
    ExpectNoColumns("", "'' is not NAME:TYPE:LENGTH");
    ExpectNoColumns("A", "'A' is not NAME:TYPE:LENGTH");
    ExpectNoColumns("A:C:5:2", "'A:C:5:2' is not NAME:TYPE:LENGTH");
    ExpectNoColumns("A:X:5", "'A:X:5' has no type of C, N, M, D, L and F");
    ExpectNoColumns("A:CN:5", "'A:CN:5' has no type of C, N, M, D, L and F");
    ExpectNoColumns("A::5", "'A::5' has no type of C, N, M, D, L and F");
    ExpectNoColumns("A:C", "'A:C' needs a length from 1 to 32766");
    ExpectNoColumns("A:C:0", "'A:C:0' needs a length from 1 to 32766");
    ExpectNoColumns("A:C:32767", "'A:C:32767' needs a length from 1 to 32766");
    ExpectNoColumns("A:N:256", "'A:N:256' needs a length from 1 to 255");
    ExpectNoColumns("A:M:11", "'A:M:11' needs a length from 1 to 10");
    ExpectNoColumns("A:C:5x", "'A:C:5x' needs a length from 1 to 32766");
    ExpectNoColumns(":C:5", "column 1 has no name");
    ExpectNoColumns("ABCDEFGHIJKL:C:5", "the name 'ABCDEFGHIJKL' is longer than 11 characters");
    ExpectNoColumns("name:C:5,NAME:C:5", "the name 'NAME' is there twice");
    ExpectNoColumns("A:C:32766,B:C:1", "a record would have 32768 bytes, at most 32767 are possible");
}

TEST(DbfColumns, AHeaderHasRoomFor1022Columns)
{
    std::vector<DbfColumn> columns;
    for (int i = 0; i < 1022; ++i)
    {
        columns.push_back({"F" + std::to_string(i), 'C', 1});
    }
    EXPECT_EQ(ReasonAgainst(columns), "");
    columns.push_back({"LAST", 'C', 1});
    EXPECT_EQ(ReasonAgainst(columns), "a table has at most 1022 columns");
}

TEST(DbfColumns, ValuesThatDoNotFitAreNamed)
{
    EXPECT_EQ(ReasonAgainst('C', 3, "abc"), "");
    EXPECT_EQ(ReasonAgainst('C', 3, "abcd"), "is longer than the 3 characters of the field");
    EXPECT_EQ(ReasonAgainst('C', -3, "a"), "is longer than the -3 characters of the field");
    EXPECT_EQ(ReasonAgainst('N', 3, "012"), "");
    EXPECT_EQ(ReasonAgainst('N', 3, ""), "");
    EXPECT_EQ(ReasonAgainst('N', 3, "-1"), "is no unsigned whole number");
    EXPECT_EQ(ReasonAgainst('N', 3, "1.5"), "is no unsigned whole number");
    EXPECT_EQ(ReasonAgainst('N', 3, " 1"), "is no unsigned whole number");
    EXPECT_EQ(ReasonAgainst('N', 3, "1234"), "is longer than the 3 characters of the field");
    EXPECT_EQ(ReasonAgainst('M', 10, std::string(5000, 'x')), "");
    EXPECT_EQ(ReasonAgainst('M', 10, std::string_view("a\0b", 3)), "has a zero byte");
}

TEST(DbfColumns, NumbersStandAtTheRightEnd)
{
    EXPECT_EQ(Placed('N', 5, "42"), "   42");
    EXPECT_EQ(Placed('M', 10, "7"), "         7");
    EXPECT_EQ(Placed('C', 5, "42"), "42");
    EXPECT_EQ(Placed('N', 2, "42"), "42");
    EXPECT_EQ(Placed('N', 1, "42"), "42");
}

TEST(DbfColumns, TypesAreFoundFromTheValues)
{
    EXPECT_EQ(ColumnOf({"0", "42", "123456789012345678"}), (DbfColumn{"X", 'N', 18}));
    EXPECT_EQ(ColumnOf({"1234567890123456789"}), (DbfColumn{"X", 'C', 19}));
    EXPECT_EQ(ColumnOf({"1", "007"}), (DbfColumn{"X", 'C', 3}));
    EXPECT_EQ(ColumnOf({"1", ""}), (DbfColumn{"X", 'C', 1}));
    EXPECT_EQ(ColumnOf({"1", "-2"}), (DbfColumn{"X", 'C', 2}));
    EXPECT_EQ(ColumnOf({"1.5"}), (DbfColumn{"X", 'C', 3}));
    EXPECT_EQ(ColumnOf({}), (DbfColumn{"X", 'C', 1}));
    EXPECT_EQ(ColumnOf({"", ""}), (DbfColumn{"X", 'C', 1}));
    EXPECT_EQ(ColumnOf({std::string(254, 'x')}), (DbfColumn{"X", 'C', 254}));
    EXPECT_EQ(ColumnOf({"a", std::string(255, 'x')}), (DbfColumn{"X", 'M', 10}));
}

TEST(DbfGrid, LinesUpNumbersRightAndTextsLeft)
{
    DbfGrid grid;
    grid.AddColumn("No", true);
    grid.AddColumn("Name", false);
    grid.AddColumn("N", true);
    const std::vector<std::string> first = {"1", "Z\xC3\xBCrich", "42"};
    const std::vector<std::string> second = {"200", "A", "7"};
    grid.Measure(first);
    grid.Measure(second);
    EXPECT_EQ(grid.Headings(), " No  Name     N\n");
    EXPECT_EQ(grid.Line(first), "  1  Z\xC3\xBCrich  42\n");
    EXPECT_EQ(grid.Line(second), "200  A        7\n");
    EXPECT_EQ(grid.Line({"3", "", ""}), "  3\n");
}

TEST(DbfGrid, LongValuesEndInThreeDots)
{
    EXPECT_EQ(Shown(std::string(40, 'x')), std::string(40, 'x'));
    EXPECT_EQ(Shown(std::string(41, 'x')), std::string(37, 'x') + "...");
    std::string umlauts;
    for (int i = 0; i < 41; ++i)
    {
        umlauts += "\xC3\xBC";
    }
    EXPECT_EQ(Shown(umlauts), umlauts.substr(0, 74) + "...");
    EXPECT_EQ(Shown("two\r\nlines"), "two\\r\\nlines");
}
