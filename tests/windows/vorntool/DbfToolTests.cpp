#include "tests/support/ScratchFolder.h"
#include "tests/windows/vorntool/TableBytes.h"
#include "tests/windows/vorntool/ToolProcess.h"

using namespace vorn::test;

namespace
{

const std::vector<TableField> kFields = {{"IDENT", 'C', 4}, {"Name", 'C', 8}, {"ELEV", 'N', 5}};
const std::vector<std::string> kRecords = {" SEA Seattle   433", "*OLD Gone        1", " BLI Bell\xEDng   170",
                                           " PDX            31"};

class DbfTool : public testing::Test
{
protected:
    std::string Table(const std::string& bytes = TableBytes(kFields, kRecords)) const
    {
        return m_folder.Write("navaids.dbf", bytes);
    }

    const ScratchFolder m_folder;
};

} // namespace

TEST_F(DbfTool, InfoShowsHeaderFieldsAndCounts)
{
    const std::string table = Table();
    ExpectDone({"dbf", "info", table}, "File           " + table +
                                           "\n"
                                           "Version        3\n"
                                           "Changed        2024-02-29\n"
                                           "Records        4 (3 live, 1 deleted)\n"
                                           "Record length  18\n"
                                           "Header length  129\n"
                                           "Fields         3\n"
                                           "Memo file      -\n"
                                           "\n"
                                           "Field  Type  Length  Decimals  Offset\n"
                                           "IDENT  C          4         0       1\n"
                                           "Name   C          8         0       5\n"
                                           "ELEV   N          5         0      13\n");
}

TEST_F(DbfTool, InfoAsJsonHasTheSameFacts)
{
    const std::string table = m_folder.Write("a.dbf", TableBytes({{"A", 'C', 1}}, {" x"}));
    m_folder.Write("a.dbt", MemoBytes({}));
    const ToolRun run = RunVornTool({"dbf", "info", table, "--json"});
    EXPECT_EQ(run.status, 0u);
    const std::size_t facts = run.text.find("\"offset\"");
    ASSERT_NE(facts, std::string::npos);
    const std::string rest = run.text.substr(facts);
    EXPECT_EQ(rest.substr(0, rest.find("\"memo\"")),
              "\"offset\":0,\"version\":3,\"changed\":\"2024-02-29\",\"records\":1,\"live\":1,\"deleted\":0,"
              "\"invalidMarks\":0,\"recordLength\":2,\"headerLength\":65,");
    EXPECT_NE(
        rest.find("a.dbt\",\"fields\":[{\"name\":\"A\",\"type\":\"C\",\"length\":1,\"decimals\":0,\"offset\":1}]}\n"),
        std::string::npos);
}

TEST_F(DbfTool, InfoTellsOfAFileThatEndsTooEarlyAndOfInvalidMarks)
{
    std::string bytes = TableBytes(kFields, {" SEA Seattle   433", "?BLI Bell        1", " PDX Port       31"});
    bytes.pop_back();
    const ToolRun run = RunVornTool({"dbf", "info", Table(bytes)});
    EXPECT_EQ(run.status, 0u);
    EXPECT_NE(run.text.find("\nRecords        3 (2 live, 0 deleted), but the file ends behind 2, 1 without a valid "
                            "deletion mark\n"),
              std::string::npos);
}

TEST_F(DbfTool, FieldsThatReadOtherwiseThanTheirMakerMeantArePointedOut)
{
    const std::string table =
        Table(TableBytes({{"A", 'C', 2}, {"V", 'N', 5, 2}, {"LAST", 'C', 3}}, {" ab12.25xyz", " cd-1.50xyz"}));
    const ToolRun info = RunVornTool({"dbf", "info", table});
    EXPECT_TRUE(info.text.ends_with("\nField  Type  Length  Decimals  Offset\n"
                                    "A      C          2         0       1\n"
                                    "V      N          5         2       3  decimals read as digits\n"
                                    "LAST   C          3         0     520  not within the record\n"))
        << info.text;
    const ToolRun exported = RunVornTool({"dbf", "export", table});
    EXPECT_EQ(exported.status, 0u);
    EXPECT_EQ(exported.text, "A,V,LAST\r\nab,121425,\r\ncd,1311450,\r\n");
    EXPECT_EQ(exported.errors, "vorntool dbf export: 2 fields do not read as they were meant; 'dbf info' names them\n");
}

TEST_F(DbfTool, HeadLinesUpTheLiveRecords)
{
    const std::string table = Table();
    ExpectDone({"dbf", "head", table}, "Record  IDENT  Name     ELEV\n"
                                       "     0  SEA    Seattle   433\n"
                                       "     2  BLI    Bell\xC3\xADng   170\n"
                                       "     3  PDX               31\n");
    ExpectDone({"dbf", "head", table, "--records", "1", "--from", "1", "--fields", "elev,Ident"},
               "Record  ELEV  IDENT\n"
               "     2   170  BLI\n");
}

TEST_F(DbfTool, HeadShowsTenRecordsUnlessToldOtherwise)
{
    const std::string table = Table(TableBytes({{"A", 'C', 1}}, std::vector<std::string>(12, " x")));
    const auto lines = [&](const std::vector<std::string>& words)
    {
        const std::string text = RunVornTool(words).text;
        return std::count(text.begin(), text.end(), '\n');
    };
    EXPECT_EQ(lines({"dbf", "head", table}), 11);
    EXPECT_EQ(lines({"dbf", "head", table, "--records", "12"}), 13);
    EXPECT_EQ(lines({"dbf", "head", table, "--records", "200"}), 13);
}

TEST_F(DbfTool, VerticalAndJsonFormsHaveWholeTexts)
{
    const std::string text(60, 'x');
    const std::string table = Table(TableBytes({{"A", 'C', 60}, {"NUM", 'N', 2}}, {" " + text + " 7"}));
    ExpectDone({"dbf", "head", table}, "Record  A                                         NUM\n"
                                       "     0  " +
                                           std::string(37, 'x') + "...    7\n");
    ExpectDone({"dbf", "head", table, "--vertical"}, "Record 0\n  A    " + text + "\n  NUM  7\n");
    ExpectDone({"dbf", "head", table, "--json"}, "[{\"record\":0,\"fields\":{\"A\":\"" + text + "\",\"NUM\":7}}]\n");
}

TEST_F(DbfTool, DumpPrintsEveryLiveRecordFieldByField)
{
    ExpectDone({"dbf", "dump", Table()}, "Record 0\n  IDENT  SEA\n  Name   Seattle\n  ELEV   433\n"
                                         "\nRecord 2\n  IDENT  BLI\n  Name   Bell\xC3\xADng\n  ELEV   170\n"
                                         "\nRecord 3\n  IDENT  PDX\n  Name   -\n  ELEV   31\n");
    ExpectDone({"dbf", "dump", Table(), "--fields", "IDENT", "--json"},
               "[{\"record\":0,\"fields\":{\"IDENT\":\"SEA\"}},{\"record\":2,\"fields\":{\"IDENT\":\"BLI\"}},"
               "{\"record\":3,\"fields\":{\"IDENT\":\"PDX\"}}]\n");
    ExpectDone({"dbf", "dump", Table(), "--from", "3", "--fields", "IDENT"}, "Record 3\n  IDENT  PDX\n");
}

TEST_F(DbfTool, AnEmptyTableIsNoError)
{
    const std::string table = Table(TableBytes(kFields, {}));
    ExpectDone({"dbf", "head", table}, "Record  IDENT  Name  ELEV\n");
    ExpectDone({"dbf", "dump", table}, "");
    ExpectDone({"dbf", "dump", table, "--json"}, "[]\n");
    ExpectDone({"dbf", "export", table}, "IDENT,Name,ELEV\r\n");
}

TEST_F(DbfTool, QueryPrintsAllRecordsWithTheValue)
{
    const std::string table =
        Table(TableBytes({{"T", 'C', 3}, {"N", 'N', 2}}, {" VOR 1", "*VOR 2", " vor 3", " NDB 4", " VOR 5"}));
    ExpectDone({"dbf", "query", table, "t", "VOR"}, "Record  T    N\n     0  VOR  1\n     4  VOR  5\n");
    ExpectDone({"dbf", "query", table, "T", "VOR", "--first", "--json"},
               "[{\"record\":0,\"fields\":{\"T\":\"VOR\",\"N\":1}}]\n");
    ExpectDone({"dbf", "query", table, "T", "VOR", "--ignore-case", "--fields", "N"},
               "Record  N\n     0  1\n     2  3\n     4  5\n");
    ExpectDone({"dbf", "query", table, "N", "4", "--vertical"}, "Record 3\n  T  NDB\n  N  4\n");
    ExpectFailure({"dbf", "query", table, "T", "ILS"}, 1, "vorntool dbf query: no record has 'ILS' in T");
    ExpectFailure({"dbf", "query", table, "X", "ILS"}, 1, "vorntool dbf query: there is no field 'X'");
    ExpectFailure({"dbf", "query", table, "T", "\xD0\x96"}, 1, "vorntool dbf query: no record has '\xD0\x96' in T");
}

TEST_F(DbfTool, SortedQueryPrintsTheWholeRun)
{
    const std::string table =
        Table(TableBytes({{"T", 'C', 2}, {"N", 'N', 2}},
                         {" AA 1", " BB 2", "*BB 2", " BB 2", " BB 2", " CC 2", "*DD 2", " EE10", " FF11"}));
    ExpectDone({"dbf", "query", table, "T", "BB", "--sorted", "--fields", "T"},
               "Record  T\n     1  BB\n     3  BB\n     4  BB\n");
    ExpectDone({"dbf", "query", table, "T", "BB", "--sorted", "--first", "--fields", "T"}, "Record  T\n     1  BB\n");
    ExpectDone({"dbf", "query", table, "N", "2", "--sorted"},
               "Record  T   N\n     1  BB  2\n     3  BB  2\n     4  BB  2\n     5  CC  2\n");
    ExpectDone({"dbf", "query", table, "N", "10", "--sorted", "--first"}, "Record  T    N\n     7  EE  10\n");
    ExpectFailure({"dbf", "query", table, "N", "3", "--sorted"}, 1,
                  "vorntool dbf query: no record has '3' in N, if the table is sorted by it");
    ExpectFailure({"dbf", "query", table, "N", "x", "--sorted"}, 2,
                  "vorntool dbf query: a sorted search for a number takes 0 to 2147483647");
    ExpectFailure({"dbf", "query", table, "T", "BB", "--sorted", "--ignore-case"}, 2,
                  "vorntool dbf query: --sorted compares exactly and goes without --ignore-case");
}

TEST_F(DbfTool, ACodedTableReadsWithItsKey)
{
    const std::string plain = TableBytes({{"A", 'C', 5}}, {});
    const std::string coded = Coded(" onetw*gone  three", "k\x81", 6);
    std::string bytes = plain + coded;
    bytes[4] = 3;
    const std::string table = Table(bytes);
    ExpectDone({"dbf", "head", table, "--key-hex", "6B81"}, "Record  A\n     0  onetw\n     2  three\n");
    const ToolRun info = RunVornTool({"dbf", "info", table, "--key-hex", "6b81"});
    EXPECT_NE(info.text.find("Records        3 (2 live, 1 deleted)\n"), std::string::npos);
    ExpectFailure({"dbf", "head", table, "--key-hex", "6b8"}, 2,
                  "vorntool dbf head: '6b8' is no row of bytes of two hexadecimal digits");
    ExpectFailure({"dbf", "head", table, "--key-hex", "6b8x"}, 2,
                  "vorntool dbf head: '6b8x' is no row of bytes of two hexadecimal digits");
    ExpectFailure({"dbf", "head", table, "--key", ""}, 2, "vorntool dbf head: the key is empty");
    ExpectFailure({"dbf", "head", table, "--key", "a", "--key-hex", "61"}, 2,
                  "vorntool dbf head: --key and --key-hex exclude each other");
}

TEST_F(DbfTool, AKeyIsTextInTheSystemsCodePage)
{
    std::string bytes = TableBytes({{"A", 'C', 3}}, {}) + Coded(" abc", "\xE9", 4);
    bytes[4] = 1;
    ExpectDone({"dbf", "head", Table(bytes), "--key", "\xC3\xA9"}, "Record  A\n     0  abc\n");
}

TEST_F(DbfTool, ATableInsideAFileReadsFromItsOffset)
{
    const std::string table = Table(std::string(77, 'z') + TableBytes(kFields, kRecords));
    ExpectDone({"dbf", "head", table, "--offset", "77", "--records", "1"},
               "Record  IDENT  Name     ELEV\n     0  SEA    Seattle   433\n");
    const ToolRun info = RunVornTool({"dbf", "info", table, "--offset", "77"});
    EXPECT_NE(info.text.find("\nOffset         77\n"), std::string::npos);
    EXPECT_NE(info.text.find("\nRecords        4 (3 live, 1 deleted)\n"), std::string::npos);
    ExpectFailure({"dbf", "head", table, "--offset", "100000"}, 1,
                  "vorntool dbf head: '" + table + "' holds no table there: its header is damaged or cut off");
    for (const char* const offset : {"-1", "2147483648", "7x", ""})
    {
        ExpectFailure({"dbf", "head", table, "--offset", offset}, 2,
                      std::string("vorntool dbf head: '") + offset + "' is no offset from 0 to 2147483647");
    }
}

TEST_F(DbfTool, MemosArePrintedWhole)
{
    const std::string table = m_folder.Write(
        "m.dbf", TableBytes({{"A", 'C', 1}, {"NOTE", 'M', 10}}, {" x         1", " y         2", " z          "}));
    m_folder.Write("m.dbt", MemoBytes({"one\r\nline \xE9", std::string(600, 'b') + "\n"}));
    ExpectDone({"dbf", "memo", table, "0"}, "one\r\nline \xC3\xA9\n");
    ExpectDone({"dbf", "memo", table, "1", "note"}, std::string(600, 'b') + "\n");
    ExpectDone({"dbf", "memo", table, "2"}, "\n");
    ExpectDone({"dbf", "memo", table, "0", "--json"},
               "{\"record\":0,\"field\":\"NOTE\",\"text\":\"one\\r\\nline \xC3\xA9\"}\n");
    ExpectDone({"dbf", "export", table, "--lf"},
               "A,NOTE\nx,\"one\r\nline \xC3\xA9\"\ny,\"" + std::string(600, 'b') + "\n\"\nz,\n");
    ExpectFailure({"dbf", "memo", table, "0", "A"}, 1, "vorntool dbf memo: 'A' is no memo field");
    ExpectFailure({"dbf", "memo", table, "3"}, 1, "vorntool dbf memo: there is no record 3: the table has 3");
    ExpectFailure({"dbf", "memo", table, "-1"}, 2, "vorntool dbf memo: '-1' is no number of a record");
    ExpectFailure({"dbf", "memo", Table(), "0"}, 1, "vorntool dbf memo: the table has no memo field");
}

TEST_F(DbfTool, MemosWithoutTheirFileAreNotTakenForEmptyOnes)
{
    const std::string table =
        m_folder.Write("m.dbf", TableBytes({{"A", 'C', 1}, {"NOTE", 'M', 10}}, {" x         1", " y          "}));
    ExpectFailure({"dbf", "memo", table, "0"}, 1, "vorntool dbf memo: the table has no memo file");
    ExpectDone({"dbf", "memo", table, "1"}, "\n");
    const ToolRun exported = RunVornTool({"dbf", "export", table});
    EXPECT_EQ(exported.text, "A,NOTE\r\nx,\r\ny,\r\n");
    EXPECT_EQ(exported.errors, "vorntool dbf export: the table has no memo file: its memos are empty\n");
    ExpectDone({"dbf", "export", table, "--fields", "A"}, "A\r\nx\r\ny\r\n");
    ExpectFailure({"dbf", "export", table, "--fields", ""}, 2, "vorntool dbf export: --fields names no field");
}

TEST_F(DbfTool, WhatIsNoTableIsRefusedWithTheReason)
{
    const std::string missing = m_folder.File("missing.dbf");
    ExpectFailure({"dbf", "info", missing}, 1, "vorntool dbf info: there is no file '" + missing + "'");
    const std::string cutOff = m_folder.Write("short.dbf", TableBytes(kFields, kRecords).substr(0, 40));
    ExpectFailure({"dbf", "info", cutOff}, 1,
                  "vorntool dbf info: '" + cutOff + "' is no table: its header is damaged or cut off");
    const std::string empty = m_folder.Write("empty.dbf", "");
    ExpectFailure({"dbf", "export", empty}, 1,
                  "vorntool dbf export: '" + empty + "' is no table: its header is damaged or cut off");
    ExpectFailure({"dbf", "info", ""}, 2, "vorntool dbf info: '' cannot be the name of a table");
    ExpectFailure({"dbf", "info", "\xD0\x96.dbf"}, 2,
                  "vorntool dbf info: '\xD0\x96.dbf' cannot be the name of a table");
    ExpectFailure({"dbf", "head", Table(), "--records", "0"}, 2,
                  "vorntool dbf head: '0' is no number of records from 1 on");
    ExpectFailure({"dbf", "head", Table(), "--from", "4"}, 1,
                  "vorntool dbf head: there is no record 4: the table has 4");
}

TEST_F(DbfTool, DamagedHeadersDoNoHarm)
{
    const std::string bytes = TableBytes(kFields, kRecords);
    for (const int at : {5, 7, 8, 9, 10, 11, 48, 49})
    {
        for (const char value : {'\0', '\x7F', '\xFF'})
        {
            std::string damaged = bytes;
            damaged[static_cast<std::size_t>(at)] = value;
            const std::string table = Table(damaged);
            EXPECT_LE(RunVornTool({"dbf", "info", table}).status, 1u) << "byte " << at;
            EXPECT_LE(RunVornTool({"dbf", "export", table}).status, 1u) << "byte " << at;
        }
    }
}
