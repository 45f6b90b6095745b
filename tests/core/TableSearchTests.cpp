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

/// Opens the search within a range, which derived classes use.
class RangeTable : public CDBFFile
{
public:
    using CDBFFile::CDBFFile;
    using CDBFFile::QuerySortedDataLH;
};

class TableSearch : public testing::TestWithParam<int>
{
protected:
    void Open(const TableBytes& bytes)
    {
        m_table.Close();
        ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", bytes.Bytes()).c_str(), CFile::modeRead), 1);
    }
    std::string Value(int field)
    {
        return m_table.GetFieldValue(field).GetString();
    }

    ScratchFolder m_folder;
    RangeTable m_table{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(ReadAhead, TableSearch, testing::Values(0, 1, 3, 500));

TableBytes Runways()
{
    TableBytes table;
    table.Field("IDENT", 'C', 5).Field("SURFACE", 'C', 8).Field("LENGTH", 'N', 5);
    table.Record("KSEA asph-g  11901").Record("KPDX ASPH-G  11000").Record("KGEG asph-g   9002", '*');
    table.Record("KYKM asph-g   7604").Record("KEUG          8009").Record("0S9  turf     2000");
    return table;
}

TEST_P(TableSearch, Query_FindsTheFirstLiveRecordWithTheExactValue)
{
    Open(Runways());
    EXPECT_EQ(m_table.Query("SURFACE", "ASPH-G", 1), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 1);
    EXPECT_EQ(m_table.Query(1, "turf", 1), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 5);
    EXPECT_EQ(m_table.Query(1, "TURF", 1), 0);
    EXPECT_EQ(m_table.CurRecIndex(), 6);
    EXPECT_EQ(m_table.Query("IDENT", "KGEG", 1), 0) << "deleted";
}

TEST_P(TableSearch, Query_IgnoresTheCaseOfLettersWhenAsked)
{
    Open(Runways());
    EXPECT_EQ(m_table.Query("surface", "Asph-G", 0), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 0);
    EXPECT_EQ(m_table.Query("surface", "Asph@G", 0), 0);
}

TEST_P(TableSearch, Query_ComparesWholeTrimmedValuesWithAnUntrimmedOne)
{
    Open(Runways());
    EXPECT_EQ(m_table.Query("SURFACE", "asph", 1), 0);
    EXPECT_EQ(m_table.Query("SURFACE", "asph-g-x", 1), 0);
    EXPECT_EQ(m_table.Query("SURFACE", "asph-g ", 1), 0);
    EXPECT_EQ(m_table.Query("SURFACE", "", 1), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 4);
    EXPECT_EQ(m_table.Query("SURFACE", nullptr, 1), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 4);
}

TEST_P(TableSearch, Query_ComparesNumbersAsTheyRead)
{
    Open(Runways());
    EXPECT_EQ(m_table.Query("LENGTH", "9002", 1), 0) << "deleted";
    EXPECT_EQ(m_table.Query("LENGTH", "7604", 1), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 3);
    EXPECT_EQ(m_table.Query("LENGTH", " 7604", 1), 0);
}

TEST_P(TableSearch, NextRecord_ReadsOneRecordAndSaysWhetherItMatches)
{
    Open(Runways());
    EXPECT_EQ(m_table.Query("SURFACE", "asph-g", 0), 1);
    EXPECT_EQ(m_table.NextRecord(), 1);
    EXPECT_EQ(Value(0), "KPDX");
    EXPECT_EQ(m_table.NextRecord(), 1);
    EXPECT_EQ(Value(0), "KYKM");
    EXPECT_EQ(m_table.NextRecord(), 0);
    EXPECT_EQ(Value(0), "KEUG");
    EXPECT_EQ(m_table.CurRecIndex(), 4);
    EXPECT_EQ(m_table.NextRecord(), 0);
    EXPECT_EQ(m_table.CurRecIndex(), 5);
    EXPECT_EQ(m_table.NextRecord(), 0);
    EXPECT_EQ(m_table.CurRecIndex(), 6);
}

TEST_P(TableSearch, LastQuery_IsRemembered)
{
    Open(Runways());
    EXPECT_EQ(m_table.GetLastQueryField(), -1);
    EXPECT_STREQ(m_table.GetLastQueryValue(), "");
    m_table.Query("LENGTH", "11000", 1);
    EXPECT_EQ(m_table.GetLastQueryField(), 2);
    EXPECT_STREQ(m_table.GetLastQueryValue(), "11000");
    m_table.SetNextRecordParams("IDENT", "KEUG", 1);
    EXPECT_EQ(m_table.GetLastQueryField(), 0);
    EXPECT_STREQ(m_table.GetLastQueryValue(), "KEUG");
    EXPECT_EQ(m_table.CurRecIndex(), 1) << "nothing was searched";
}

TEST_P(TableSearch, SetNextRecordParams_DecideOverNextRecord)
{
    Open(Runways());
    ASSERT_EQ(m_table.ReadRecord(3), 1);
    m_table.SetNextRecordParams("IDENT", "keug", 0);
    EXPECT_EQ(m_table.NextRecord(), 1);
    m_table.SetNextRecordParams("IDENT", "keug", 1);
    ASSERT_EQ(m_table.ReadRecord(3), 1);
    EXPECT_EQ(m_table.NextRecord(), 0);
    m_table.SetNextRecordParams("NOFIELD", "x", 1);
    ASSERT_EQ(m_table.ReadRecord(3), 1);
    EXPECT_EQ(m_table.NextRecord(), 1) << "no query";
}

TEST_P(TableSearch, Query_OfANegativeFieldReturnsAtOnce)
{
    Open(Runways());
    ASSERT_EQ(m_table.ReadRecord(3), 1);
    EXPECT_EQ(m_table.Query(-1, "x", 1), 0);
    EXPECT_EQ(m_table.Query("NOFIELD", "", 1), 0);
    EXPECT_EQ(m_table.CurRecIndex(), 3);
    EXPECT_EQ(m_table.GetLastQueryField(), -1);
}

TEST_P(TableSearch, Query_WithoutATableFindsNothing)
{
    EXPECT_EQ(m_table.Query(0, "x", 1), 0);
    EXPECT_EQ(m_table.Query(0, "", 1), 0);
    EXPECT_EQ(m_table.QuerySortedIntData("A", "1"), 0);
    EXPECT_EQ(m_table.QuerySortedStrData("A", ""), 0);
}

// --- Sorted ---

/// 0, 10, 20, ... in a number field and as text of four digits in another.
TableBytes Tens(int count)
{
    TableBytes table;
    table.Field("NUMBER", 'N', 5).Field("TEXT", 'C', 6);
    for (int i = 0; i < count; ++i)
    {
        const std::string number = std::to_string(10 * i);
        table.Record(Padded("", 5 - number.size()) + number + Padded("", 4 - number.size(), '0') + number);
    }
    return table;
}

TEST_P(TableSearch, QuerySortedIntData_FindsEveryRecordOfTablesOfEverySize)
{
    for (int count = 0; count <= 33; ++count)
    {
        Open(Tens(count));
        for (int i = 0; i < count; ++i)
        {
            ASSERT_EQ(m_table.QuerySortedIntData("NUMBER", std::to_string(10 * i).c_str()), 1) << count;
            ASSERT_EQ(m_table.CurRecIndex(), i);
            ASSERT_EQ(Value(0), std::to_string(10 * i));
            ASSERT_EQ(m_table.QuerySortedIntData("NUMBER", std::to_string(10 * i + 5).c_str()), 0);
        }
        ASSERT_EQ(m_table.QuerySortedIntData("NUMBER", "-5"), 0);
        ASSERT_EQ(m_table.QuerySortedIntData("NOFIELD", "0"), 0);
    }
}

TEST_P(TableSearch, QuerySortedIntData_ReadsTheValueAsANumber)
{
    Open(Tens(20));
    EXPECT_EQ(m_table.QuerySortedIntData("NUMBER", " +70 apples"), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 7);
    EXPECT_EQ(m_table.QuerySortedIntData("TEXT", "70"), 1) << "texts are read as numbers too";
    EXPECT_EQ(m_table.CurRecIndex(), 7);
    EXPECT_EQ(m_table.QuerySortedIntData("NUMBER", "apples"), 1) << "0";
    EXPECT_EQ(m_table.CurRecIndex(), 0);
    EXPECT_EQ(m_table.QuerySortedIntData("NUMBER", nullptr), 1);
    EXPECT_EQ(m_table.QuerySortedIntData("NUMBER", "99999999999999999999999"), 0);
    EXPECT_EQ(m_table.QuerySortedIntData("NUMBER", "-99999999999999999999999"), 0);
}

TEST_P(TableSearch, QuerySortedIntData_OfNegativeNumbersInTextFields)
{
    TableBytes table;
    table.Field("T", 'C', 5).Record("-300").Record("-20").Record("-1").Record("0").Record("4").Record("1000");
    Open(table);
    EXPECT_EQ(m_table.QuerySortedIntData("T", "-20"), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 1);
    EXPECT_EQ(m_table.QuerySortedIntData("T", "-300"), 1);
    EXPECT_EQ(m_table.QuerySortedIntData("T", "1000"), 1);
    EXPECT_EQ(m_table.QuerySortedIntData("T", "-2"), 0);
}

TEST_P(TableSearch, QuerySortedStrData_ComparesBytes)
{
    TableBytes table;
    table.Field("T", 'C', 5).Record("10").Record("9").Record("A").Record("B").Record("a").Record("\xE4");
    Open(table);
    for (int i = 0; const char* key : {"10", "9", "A", "B", "a", "\xE4"})
    {
        EXPECT_EQ(m_table.QuerySortedStrData("T", key), 1) << key;
        EXPECT_EQ(m_table.CurRecIndex(), i++);
    }
    EXPECT_EQ(m_table.QuerySortedStrData("T", "b"), 0);
    EXPECT_EQ(m_table.QuerySortedStrData("T", "1"), 0);
    EXPECT_EQ(m_table.QuerySortedStrData("T", "100"), 0);
    EXPECT_EQ(m_table.QuerySortedStrData("T", "A "), 0);
}

TEST_P(TableSearch, QuerySortedStrData_MakesTheFirstOfARunCurrent)
{
    for (int begin = 0; begin < 9; ++begin)
    {
        for (int end = begin + 1; end <= 9; ++end)
        {
            TableBytes table;
            table.Field("T", 'C', 2);
            for (int i = 0; i < 9; ++i)
                table.Record(i < begin ? "a" : i < end ? "m" : "z");
            Open(table);
            ASSERT_EQ(m_table.QuerySortedStrData("T", "m"), 1);
            ASSERT_EQ(m_table.CurRecIndex(), begin) << end;
            ASSERT_EQ(Value(0), "m");
            ASSERT_EQ(m_table.ReadRecord(-1), begin < 8 ? 1 : 0);
        }
    }
}

TEST_P(TableSearch, QuerySortedStrData_StepsBackOverDeletedRecords)
{
    TableBytes table;
    table.Field("T", 'C', 2).Record("a").Record("m", '*').Record("m").Record("m", '*').Record("m", '*').Record("m");
    table.Record("z");
    Open(table);
    EXPECT_EQ(m_table.QuerySortedStrData("T", "m"), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 2);
    TableBytes first;
    first.Field("T", 'C', 2).Record("m", '*').Record("m", '*').Record("m").Record("m");
    Open(first);
    EXPECT_EQ(m_table.QuerySortedStrData("T", "m"), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 2);
}

TEST_P(TableSearch, SortedSearch_PassesDeletedRecords)
{
    for (unsigned deleted = 0; deleted < 64; ++deleted)
    {
        TableBytes table;
        table.Field("N", 'N', 3).Field("S", 'C', 3);
        for (unsigned i = 0; i < 6; ++i)
            table.Record("  " + std::to_string(i + 1) + "k" + std::to_string(i + 1),
                         (deleted >> i & 1) != 0 ? '*' : ' ');
        Open(table);
        for (int i = 0; i < 6; ++i)
        {
            const int expected = (deleted >> i & 1) != 0 ? 0 : 1;
            ASSERT_EQ(m_table.QuerySortedIntData("N", std::to_string(i + 1).c_str()), expected) << deleted;
            if (expected == 1)
            {
                ASSERT_EQ(m_table.CurRecIndex(), i);
            }
            ASSERT_EQ(m_table.QuerySortedStrData("S", ("k" + std::to_string(i + 1)).c_str()), expected) << deleted;
            if (expected == 1)
            {
                ASSERT_EQ(m_table.CurRecIndex(), i);
            }
        }
    }
}

TEST_P(TableSearch, QuerySortedDataLH_KeepsToItsRange)
{
    Open(Tens(10));
    EXPECT_EQ(m_table.QuerySortedDataLH(0, 30, 3, 3), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 3);
    EXPECT_EQ(m_table.QuerySortedDataLH(0, 40, 3, 3), 0);
    EXPECT_EQ(m_table.QuerySortedDataLH(0, 20, 3, 9), 0);
    EXPECT_EQ(m_table.QuerySortedDataLH(0, 90, 0, 8), 0);
    EXPECT_EQ(m_table.QuerySortedDataLH(0, 90, 0, 10), 1) << "the count itself is a high bound";
    EXPECT_EQ(m_table.QuerySortedDataLH(0, 95, 0, 10), 0);
    EXPECT_EQ(m_table.QuerySortedDataLH(0, 0, 0, 11), 0);
    EXPECT_EQ(m_table.QuerySortedDataLH(0, 0, -1, 5), 0);
    EXPECT_EQ(m_table.QuerySortedDataLH(0, 50, 6, 5), 0);
    EXPECT_EQ(m_table.QuerySortedDataLH(1, "0050", 0, 9), 1);
    EXPECT_EQ(m_table.CurRecIndex(), 5);
    EXPECT_EQ(m_table.QuerySortedDataLH(1, "0050", 6, 9), 0);
    EXPECT_EQ(m_table.QuerySortedDataLH(-1, "0050", 0, 9), 0);
    EXPECT_EQ(m_table.QuerySortedDataLH(2, 50, 0, 9), 0);
}

TEST_P(TableSearch, ReadingGoesOnBehindARecordFoundBySortedSearch)
{
    Open(Tens(10));
    ASSERT_EQ(m_table.QuerySortedIntData("NUMBER", "40"), 1);
    EXPECT_EQ(m_table.NextRecord(), 1);
    EXPECT_EQ(Value(0), "50");
    EXPECT_EQ(m_table.ReadRecord(-1), 1);
    EXPECT_EQ(Value(0), "60");
}
} // namespace
