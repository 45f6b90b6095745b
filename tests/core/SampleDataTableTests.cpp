#include "apps/maketables/core/TableMaker.h"
#include "apps/sample/core/DataTable.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

using vorn::DataTable;
using vorn::SearchMethod;
using vorn::SearchTerms;
using vorn::TableResult;
using vorn::test::ScratchFolder;

namespace
{

constexpr const char* kAids = "IDENT:C:4,NAME:C:12,FT:N:5,REMARK:M:10\n"
                              "ALW,Walla Walla,1150,\n"
                              "BOI,Boise,2876,On the field\n"
                              "GEG,Spokane,2876,\n"
                              "GEG,Spokane 2,2876,\n"
                              "SEA,Seattle,3540,\"16L/34R, 11,901 ft\"\n"
                              "YKM,Yakima,3541,\n";

class DataTableTest : public testing::Test
{
protected:
    DataTableTest()
    {
        EXPECT_EQ(vorn::MakeTable(kAids, m_name), "");
    }

    // Flags a record as deleted, in the file.
    void DeleteInFile(std::size_t record)
    {
        std::string bytes = m_folder.Read("aids.dbf");
        bytes[32 + 4 * 32 + 1 + record * 32] = '*';
        m_folder.Write("aids.dbf", bytes);
    }

    std::string Ident(int row)
    {
        const vorn::TableRow* const cells = m_table.Row(row);
        return cells != nullptr ? cells->front() : "none";
    }

    std::string Idents()
    {
        std::string all;
        for (int row = 0; row < m_table.RowCount(); ++row)
            all += Ident(row) + ' ';
        return all;
    }

    ScratchFolder m_folder;
    std::string m_name = m_folder.File("aids.dbf");
    DataTable m_table;
};

} // namespace

TEST_F(DataTableTest, TellsFieldsAndRows)
{
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    EXPECT_TRUE(m_table.IsOpen());
    EXPECT_FALSE(m_table.IsReadOnly());
    EXPECT_EQ(m_table.RowCount(), 6);
    EXPECT_EQ(m_table.RecordLength(), 32);
    ASSERT_EQ(m_table.Fields().size(), 4u);
    EXPECT_EQ(m_table.Fields()[1].name, "NAME");
    EXPECT_EQ(m_table.Fields()[1].type, 'C');
    EXPECT_EQ(m_table.Fields()[1].length, 12);
    EXPECT_EQ(m_table.MemoField(), 3);
    EXPECT_EQ(*m_table.Row(1), (vorn::TableRow{"BOI", "Boise", "2876", "On the field"}));
    EXPECT_EQ(m_table.Row(6), nullptr);
    EXPECT_EQ(m_table.Row(-1), nullptr);
}

TEST_F(DataTableTest, ReadsRowsInAnyOrder)
{
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    for (const int row : {5, 0, 3, 4, 1, 2, 5})
        EXPECT_EQ(Ident(row), (std::vector<std::string>{"ALW", "BOI", "GEG", "GEG", "SEA", "YKM"})[std::size_t(row)]);
}

TEST_F(DataTableTest, LeavesDeletedRecordsOut)
{
    for (const std::size_t record : {0u, 2u, 3u, 5u})
        DeleteInFile(record);
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    EXPECT_EQ(Idents(), "BOI SEA ");
    EXPECT_EQ(m_table.DeletedCount(), 4);
    EXPECT_EQ(m_table.RecordOf(1), 4);
}

TEST_F(DataTableTest, BelievesTheFileRatherThanACountThatPromisesMore)
{
    std::string bytes = m_folder.Read("aids.dbf");
    bytes.replace(4, 4, "\xFF\xFF\xFF\x7F");
    m_folder.Write("aids.dbf", bytes);
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    EXPECT_EQ(m_table.RowCount(), 6);
    EXPECT_EQ(Ident(5), "YKM");
    SearchTerms terms{0, "GEG"};
    EXPECT_EQ(m_table.FindFirst(terms), 2);
    EXPECT_EQ(m_table.FindNext(2), 3);
    EXPECT_EQ(m_table.FindNext(3), std::nullopt);
}

TEST_F(DataTableTest, SaysWhyATableCannotBeOpened)
{
    EXPECT_EQ(m_table.Open(m_folder.File("none.dbf")), TableResult::NotFound);
    m_folder.Write("text.dbf", "short");
    EXPECT_EQ(m_table.Open(m_folder.File("text.dbf")), TableResult::NotTable);
    EXPECT_FALSE(m_table.IsOpen());
    EXPECT_EQ(m_table.RowCount(), 0);
    EXPECT_EQ(m_table.Row(0), nullptr);
    EXPECT_EQ(m_table.FindFirst({0, "SEA"}), std::nullopt);
    EXPECT_EQ(m_table.SetValue(0, 0, "X"), TableResult::NotWritten);
    EXPECT_EQ(m_table.Delete(0), TableResult::NotWritten);
    EXPECT_EQ(m_table.Pack(), TableResult::NotWritten);
}

TEST_F(DataTableTest, AnEmptyTableHasFieldsAndNoRows)
{
    ASSERT_EQ(vorn::MakeTable("ID:C:300\n", m_folder.File("empty.dbf")), "line 1: \"ID:C:300\" has a wrong length");
    ASSERT_EQ(vorn::MakeTable("ID:C:254\n", m_folder.File("empty.dbf")), "");
    ASSERT_EQ(m_table.Open(m_folder.File("empty.dbf")), TableResult::Done);
    EXPECT_EQ(m_table.RowCount(), 0);
    EXPECT_EQ(m_table.Fields()[0].length, 254);
    EXPECT_EQ(m_table.FindFirst({0, ""}), std::nullopt);
    EXPECT_TRUE(m_table.IsSortedBy(0));
    EXPECT_EQ(m_table.MemoField(), -1);
}

TEST_F(DataTableTest, FindsLinearlyWithAndWithoutCase)
{
    DeleteInFile(2);
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    EXPECT_EQ(m_table.FindFirst({1, "seattle", SearchMethod::Linear, false}), 3);
    EXPECT_EQ(m_table.FindFirst({1, "seattle", SearchMethod::Linear, true}), std::nullopt);
    EXPECT_EQ(m_table.FindFirst({0, "GEG"}), 2); // record 3: record 2 is deleted
    EXPECT_EQ(m_table.FindNext(2), std::nullopt);
}

TEST_F(DataTableTest, FindsEveryRowInTurn)
{
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    for (const SearchMethod method : {SearchMethod::Linear, SearchMethod::Binary})
    {
        EXPECT_EQ(m_table.FindFirst({2, "2876", method}), 1);
        m_table.Row(5); // painting in between moves the current record
        EXPECT_EQ(m_table.FindNext(1), 2);
        EXPECT_EQ(m_table.FindNext(2), 3);
        EXPECT_EQ(m_table.FindNext(3), std::nullopt);
        EXPECT_EQ(m_table.FindFirst({0, "GEG", method}), 2);
        EXPECT_EQ(m_table.FindNext(2), 3);
        EXPECT_EQ(m_table.FindNext(3), std::nullopt);
        EXPECT_EQ(m_table.FindNext(5), std::nullopt);
        EXPECT_EQ(m_table.FindFirst({0, "ZZZ", method}), std::nullopt);
        EXPECT_EQ(m_table.FindFirst({9, "SEA", method}), std::nullopt);
        EXPECT_EQ(m_table.FindNext(0), std::nullopt);
    }
}

TEST_F(DataTableTest, KnowsOnWhichFieldsItIsSorted)
{
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    EXPECT_TRUE(m_table.IsSortedBy(0));
    EXPECT_TRUE(m_table.IsSortedBy(2));
    ASSERT_EQ(m_table.SetValue(4, 2, "99"), TableResult::Done);
    EXPECT_FALSE(m_table.IsSortedBy(2));
    EXPECT_TRUE(m_table.IsSortedBy(0));
    EXPECT_FALSE(m_table.IsSortedBy(17));
}

TEST_F(DataTableTest, FindsARowByTheBeginningOfAFieldGoingRound)
{
    DeleteInFile(1);
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    EXPECT_EQ(m_table.FindBeginning(0, "g", 0), 1);
    EXPECT_EQ(m_table.FindBeginning(0, "GE", 2), 2);
    EXPECT_EQ(m_table.FindBeginning(0, "GE", 3), 1);
    EXPECT_EQ(m_table.FindBeginning(1, "spokane 2", 4), 2);
    EXPECT_EQ(m_table.FindBeginning(0, "B", 0), std::nullopt);
    EXPECT_EQ(m_table.FindBeginning(0, "SEATTLE", 0), std::nullopt);
}

TEST_F(DataTableTest, WritesAFieldAndNothingElse)
{
    const std::string before = m_folder.Read("aids.dbf");
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    EXPECT_EQ(m_table.SetValue(1, 1, "Boise ID"), TableResult::Done);
    EXPECT_EQ(m_table.SetValue(4, 2, "7"), TableResult::Done);
    EXPECT_EQ((*m_table.Row(1))[1], "Boise ID");
    EXPECT_EQ((*m_table.Row(4))[2], "7");
    EXPECT_EQ(Idents(), "ALW BOI GEG GEG SEA YKM ");
    m_table.Close();
    std::string expected = before;
    expected.replace(161 + 32 + 5, 12, "Boise ID    ");
    expected.replace(161 + 4 * 32 + 17, 5, "    7");
    EXPECT_EQ(m_folder.Read("aids.dbf"), expected);
}

TEST_F(DataTableTest, RefusesWhatDoesNotFitIntoTheField)
{
    const std::string before = m_folder.Read("aids.dbf");
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    EXPECT_EQ(m_table.SetValue(0, 0, "FIVES"), TableResult::TooLong);
    EXPECT_EQ(m_table.SetValue(0, 2, "-5"), TableResult::NotDigits);
    EXPECT_EQ(m_table.SetValue(0, 2, "123456"), TableResult::TooLong);
    EXPECT_EQ(m_table.SetValue(0, 4, "X"), TableResult::NotWritten);
    EXPECT_EQ(m_table.SetValue(6, 0, "X"), TableResult::NotWritten);
    EXPECT_EQ(m_table.Check(0, "FOUR"), TableResult::Done);
    EXPECT_EQ(m_table.Check(2, ""), TableResult::Done);
    m_table.Close();
    EXPECT_EQ(m_folder.Read("aids.dbf"), before);
}

TEST_F(DataTableTest, AddsMemosAtTheEndOfTheMemoFile)
{
    const std::size_t before = m_folder.Read("aids.dbt").size();
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    const std::string longText(1500, 'x'); // 1,508 bytes with its head: three blocks
    EXPECT_EQ(m_table.SetValue(0, 3, longText), TableResult::Done);
    EXPECT_EQ(m_table.SetValue(5, 3, "line\r\nline"), TableResult::Done);
    EXPECT_EQ(m_table.Value(0, 3), longText);
    EXPECT_EQ(m_table.Value(5, 3), "line\r\nline");
    EXPECT_EQ((*m_table.Row(5))[3], "line  line");
    EXPECT_EQ((*m_table.Row(0))[3], std::string(160, 'x'));
    EXPECT_EQ(m_table.Value(1, 3), "On the field");
    EXPECT_EQ(m_table.SetValue(1, 3, ""), TableResult::Done);
    EXPECT_EQ(m_table.Value(1, 3), "");
    m_table.Close();
    EXPECT_EQ(m_folder.Read("aids.dbt").size(), before + 4 * 512);
    EXPECT_EQ(static_cast<unsigned char>(m_folder.Read("aids.dbt")[0]), before / 512 + 4);
}

TEST_F(DataTableTest, WithoutAMemoFileMemosCannotBeWritten)
{
    std::filesystem::remove(m_folder.Path() / "aids.dbt");
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    EXPECT_EQ(m_table.SetValue(0, 3, "text"), TableResult::NoMemoFile);
    EXPECT_EQ(m_table.Value(1, 3), "");
    EXPECT_EQ(m_table.SetValue(0, 3, ""), TableResult::Done);
}

TEST_F(DataTableTest, DeletesAndPacks)
{
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    EXPECT_EQ(m_table.Delete(1), TableResult::Done);
    EXPECT_EQ(m_table.Delete(4), TableResult::Done); // record 5, the last
    EXPECT_EQ(m_table.Delete(4), TableResult::NotWritten);
    EXPECT_EQ(Idents(), "ALW GEG GEG SEA ");
    EXPECT_EQ(m_table.DeletedCount(), 2);
    EXPECT_EQ(m_table.Pack(), TableResult::Done);
    EXPECT_EQ(Idents(), "ALW GEG GEG SEA ");
    EXPECT_EQ(m_table.DeletedCount(), 0);
    EXPECT_EQ(m_table.RecordOf(3), 3);
    EXPECT_EQ(m_table.Value(3, 3), "16L/34R, 11,901 ft");
    EXPECT_EQ(m_table.SetValue(0, 1, "again"), TableResult::Done);
    m_table.Close();
    EXPECT_EQ(m_folder.Read("aids.dbf").size(), 161u + 4 * 32);
}

TEST_F(DataTableTest, ShowsControlCharactersAsBlanks)
{
    std::string bytes = m_folder.Read("aids.dbf");
    bytes.replace(161 + 5, 5, std::string("a\0b\nc", 5));
    m_folder.Write("aids.dbf", bytes);
    ASSERT_EQ(m_table.Open(m_name), TableResult::Done);
    EXPECT_EQ((*m_table.Row(0))[1], "a b c Walla");
}

TEST_F(DataTableTest, EveryResultButDoneHasWords)
{
    EXPECT_STREQ(Explain(TableResult::Done), "");
    for (int result = 1; result <= static_cast<int>(TableResult::NotWritten); ++result)
        EXPECT_STRNE(Explain(static_cast<TableResult>(result)), "");
}

// A long table: what the list asks for while it is scrolled, forwards, backwards and by leaps.
TEST(DataTableLong, GivesTheSameRowsHoweverItIsScrolled)
{
    const ScratchFolder folder;
    constexpr int kRecords = 3000;
    std::string csv = "NO:N:6,TEXT:C:20\n";
    for (int record = 0; record < kRecords; ++record)
        csv += std::to_string(record) + ",text " + std::to_string(record * 7919 % 10007) + '\n';
    ASSERT_EQ(vorn::MakeTable(csv, folder.File("long.dbf")), "");
    std::string bytes = folder.Read("long.dbf");
    std::vector<int> live;
    for (int record = 0; record < kRecords; ++record)
    {
        if (record % 10 == 3 || (record > 1000 && record < 1400))
            bytes[97 + static_cast<std::size_t>(record) * 27] = '*';
        else
            live.push_back(record);
    }
    folder.Write("long.dbf", bytes);
    DataTable table;
    ASSERT_EQ(table.Open(folder.File("long.dbf")), TableResult::Done);
    ASSERT_EQ(table.RowCount(), static_cast<int>(live.size()));
    const auto expectRow = [&](int row)
    {
        ASSERT_NE(table.Row(row), nullptr);
        ASSERT_EQ(table.Row(row)->front(), std::to_string(live[static_cast<std::size_t>(row)]));
        ASSERT_EQ(table.RecordOf(row), live[static_cast<std::size_t>(row)]);
    };
    for (int row = 0; row < table.RowCount(); row += 17)
        expectRow(row);
    for (int row = table.RowCount() - 1; row >= 0; row -= 13)
        expectRow(row);
    for (int turn = 0; turn < 150; ++turn)
        expectRow(turn * 7919 % table.RowCount());
    EXPECT_EQ(table.FindFirst({0, std::to_string(live.back()), SearchMethod::Binary}), table.RowCount() - 1);
    EXPECT_EQ(table.FindFirst({0, std::to_string(live.back()), SearchMethod::Linear}), table.RowCount() - 1);
    EXPECT_EQ(table.FindFirst({0, "13", SearchMethod::Linear}), std::nullopt);
}
