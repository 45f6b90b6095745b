#include "tests/support/ScratchFolder.h"
#include "tests/windows/vorntool/TableBytes.h"
#include "tests/windows/vorntool/ToolProcess.h"

using namespace vorn::test;

namespace
{

class DbfCsvTool : public testing::Test
{
protected:
    std::string Csv(const std::string& text) const
    {
        return m_folder.Write("in.csv", text);
    }

    std::string Out(const std::string& name = "out.dbf") const
    {
        return m_folder.File(name);
    }

    void ExpectImported(const std::string& csv, const std::string& report) const
    {
        ExpectDone({"dbf", "import", Csv(csv), Out(), "--force"}, report + "\n");
    }

    // Nothing is made and nothing is left.
    void ExpectNotImported(const std::string& csv, const std::string& reason,
                           const std::vector<std::string>& options = {}, unsigned long status = 1) const
    {
        std::vector<std::string> words = {"dbf", "import", Csv(csv), Out()};
        words.insert(words.end(), options.begin(), options.end());
        ExpectFailure(words, status, "vorntool dbf import: " + reason);
        EXPECT_EQ(Files(), std::vector<std::string>{"in.csv"});
    }

    std::vector<std::string> Files() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path()))
        {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    // A table's bytes without the date of the day.
    std::string Undated(const std::string& name) const
    {
        std::string bytes = m_folder.Read(name);
        return bytes.size() < 4 ? bytes : bytes.replace(1, 3, "\x7C\x02\x1D");
    }

    const ScratchFolder m_folder;
};

} // namespace

TEST_F(DbfCsvTool, ImportMakesTheTableByteByByte)
{
    ExpectImported("ident,ELEV,name\r\nSEA,433,\"Seattle, Tacoma\"\r\nBLI,7,Bell\xC3\xADng\r\n",
                   "2 records of ident:C:3,ELEV:N:3,name:C:15");
    EXPECT_EQ(Undated("out.dbf"), TableBytes({{"ident", 'C', 3}, {"ELEV", 'N', 3}, {"name", 'C', 15}},
                                             {" SEA433Seattle, Tacoma", " BLI  7Bell\xEDng        "}));
    EXPECT_EQ(Files(), (std::vector<std::string>{"in.csv", "out.dbf"}));
}

TEST_F(DbfCsvTool, ImportThenExportGivesTheSameBytes)
{
    const std::string csv = "ID,TEXT,LONG,NUM,EMPTY\r\n"
                            "007,\"a,\"\"b\"\"\",\"" +
                            std::string(300, 'x') +
                            "\r\nsecond line \",0,\r\n"
                            "1,  leading,,18446744073709,\r\n"
                            "\xC3\xA9\xE2\x82\xAC,\"two\nlines\",\xC3\x9F,42,\r\n";
    ExpectDone({"dbf", "import", Csv(csv), Out()}, "3 records of ID:C:3,TEXT:C:9,LONG:M:10,NUM:N:14,EMPTY:C:1\n");
    EXPECT_EQ(Files(), (std::vector<std::string>{"in.csv", "out.dbf", "out.dbt"}));
    ExpectDone({"dbf", "export", Out()}, csv);
    ExpectDone({"dbf", "export", Out(), "--output", Out("back.csv")}, "");
    EXPECT_EQ(m_folder.Read("back.csv"), csv);
}

TEST_F(DbfCsvTool, AOneColumnTableKeepsItsEmptyValues)
{
    const std::string csv = "A\r\nx\r\n\"\"\r\ny\r\n";
    ExpectImported(csv, "3 records of A:C:1");
    ExpectDone({"dbf", "export", Out()}, csv);
}

TEST_F(DbfCsvTool, ImportWritesMemosIntoTheirFile)
{
    ExpectDone({"dbf", "import", Csv("A,NOTE\nx,first\ny,\nz," + std::string(505, 'b') + "\nw,last\n"), Out(),
                "--fields", "A:C:2,NOTE:M"},
               "4 records of A:C:2,NOTE:M:10\n");
    EXPECT_EQ(Undated("out.dbf"), TableBytes({{"A", 'C', 2}, {"NOTE", 'M', 10}},
                                             {" x          1", " y           ", " z          2", " w          4"}));
    EXPECT_EQ(m_folder.Read("out.dbt"), MemoBytes({"first", std::string(505, 'b'), "last"}));
}

TEST_F(DbfCsvTool, GivenFieldsNameAndSizeTheColumns)
{
    ExpectDone(
        {"dbf", "import", Csv("frequency_khz,variation\n113,-19.5\n,21\n"), Out(), "--fields", "FREQ:N:6,VAR:F:8",
         "--json"},
        "{\"file\":\"" +
            [](std::string path)
            {
                for (std::size_t at = 0; (at = path.find('\\', at)) != std::string::npos; at += 2)
                {
                    path.insert(at, "\\");
                }
                return path;
            }(Out()) +
            "\",\"records\":2,\"fields\":[{\"name\":\"FREQ\",\"type\":\"N\",\"length\":6},"
            "{\"name\":\"VAR\",\"type\":\"F\",\"length\":8}]}\n");
    ExpectDone({"dbf", "export", Out(), "--lf"}, "FREQ,VAR\n113,-19.5\n0,21\n");
}

TEST_F(DbfCsvTool, ImportRefusesWhatDoesNotFitAndLeavesNothing)
{
    const std::string in = "'" + m_folder.File("in.csv") + "': ";
    ExpectNotImported("A,B\n1,2\n3\n", in + "line 3 has 1 values, the first line 2");
    ExpectNotImported("A,B\n\"1\n", in + "line 2 has a quote that is never closed");
    ExpectNotImported("A\n\xD0\x96\n", in + "line 2 has characters that the table's code page has not: '\xD0\x96'");
    ExpectNotImported("A,B\nx,1\nyy,2\n",
                      in + "line 3 does not fit: 'yy' in A is longer than the 1 characters of the field",
                      {"--fields", "A:C:1,B:N:1"});
    ExpectNotImported("A,B\nx,1.5\n", in + "line 2 does not fit: '1.5' in B is no unsigned whole number",
                      {"--fields", "A:C:1,B:N:3"});
    ExpectNotImported(std::string("A\na\0b\n", 6), in + "line 2 does not fit: 'a\\x00b' in A has a zero byte");
    ExpectNotImported("", "'" + m_folder.File("in.csv") + "' is empty: a first line with names is missing");
    ExpectNotImported("A,a\n1,2\n", "the name 'a' is there twice; --fields names and sizes them");
    ExpectNotImported("A,\n1,2\n", "column 2 has no name; --fields names and sizes them");
    ExpectNotImported("frequency_khz\n1\n",
                      "the name 'frequency_khz' is longer than 11 characters; --fields names and sizes them");
    ExpectNotImported("A,B\n1,2\n", "--fields names 1 fields, the file has 2 columns", {"--fields", "A:C:1"});
    ExpectNotImported("A\n1\n", "--fields: 'A:Z:1' has no type of C, N, M, D, L and F", {"--fields", "A:Z:1"}, 2);
}

TEST_F(DbfCsvTool, ImportTellsOfBlanksThatAreNotKept)
{
    const ToolRun run = RunVornTool({"dbf", "import", Csv("A,B\n\"x \",1\ny\t,2\n"), Out()});
    EXPECT_EQ(run.status, 0u);
    EXPECT_EQ(run.text, "2 records of A:C:2,B:N:1\n");
    EXPECT_EQ(run.errors, "vorntool dbf import: 2 values end in blanks, which read as filling of the fields\n");
}

TEST_F(DbfCsvTool, ExistingFilesAreReplacedOnlyByForce)
{
    m_folder.Write("out.dbf", "old table");
    ExpectFailure({"dbf", "import", Csv("A\n1\n"), Out()}, 1,
                  "vorntool dbf import: '" + Out() + "' exists; --force replaces it");
    EXPECT_EQ(m_folder.Read("out.dbf"), "old table");
    ExpectImported("A\n1\n", "1 records of A:N:1");
    m_folder.Write("new.dbt", "old memos");
    ExpectFailure({"dbf", "import", Csv("A\n1\n"), Out("new.dbf"), "--fields", "A:M"}, 1,
                  "vorntool dbf import: '" + Out("new.dbt") + "' exists; --force replaces it");
    EXPECT_EQ(m_folder.Read("new.dbt"), "old memos");
    ExpectDone({"dbf", "import", Csv("A\n1\n"), Out("new.dbf"), "--fields", "A:M", "--force"}, "1 records of A:M:10\n");
    EXPECT_EQ(m_folder.Read("new.dbt"), MemoBytes({"1"}));
    m_folder.Write("kept.csv", "old");
    ExpectFailure({"dbf", "export", Out(), "--output", Out("kept.csv")}, 1,
                  "vorntool dbf export: '" + Out("kept.csv") + "' exists; --force replaces it");
    EXPECT_EQ(m_folder.Read("kept.csv"), "old");
    ExpectDone({"dbf", "export", Out(), "--output", Out("kept.csv"), "--force"}, "");
    EXPECT_EQ(m_folder.Read("kept.csv"), "A\r\n1\r\n");
    EXPECT_EQ(Files(), (std::vector<std::string>{"in.csv", "kept.csv", "new.dbf", "new.dbt", "out.dbf"}));
}

TEST_F(DbfCsvTool, AFailedImportKeepsTheOldTable)
{
    m_folder.Write("out.dbf", "old table");
    EXPECT_EQ(RunVornTool({"dbf", "import", Csv("A\n1\n22\n"), Out(), "--force", "--fields", "A:C:1"}).status, 1u);
    EXPECT_EQ(m_folder.Read("out.dbf"), "old table");
    EXPECT_EQ(Files(), (std::vector<std::string>{"in.csv", "out.dbf"}));
}

TEST_F(DbfCsvTool, ATableWithMemosNeedsANameThatTheLibraryFindsThemBy)
{
    const std::string reason = "vorntool dbf import: a table with memos needs a name with an ending of three "
                               "characters that is in its path once";
    const std::string csv = Csv("A\n1\n");
    ExpectFailure({"dbf", "import", csv, Out("table"), "--fields", "A:M"}, 1, reason);
    ExpectFailure({"dbf", "import", csv, Out("a.dbf.dbf"), "--fields", "A:M"}, 1, reason);
    ExpectFailure({"dbf", "import", csv, Out("a.dbt"), "--fields", "A:M"}, 1,
                  "vorntool dbf import: '" + Out("a.dbt") + "' would be the name of its memo file too");
    EXPECT_EQ(Files(), std::vector<std::string>{"in.csv"});
}

TEST_F(DbfCsvTool, AFolderThatIsNotThereIsNamed)
{
    const std::string table = m_folder.File("none\\out.dbf");
    ExpectFailure({"dbf", "import", Csv("A\n1\n"), table}, 1,
                  "vorntool dbf import: '" + table + "' cannot be written there");
    const std::string wild = Out("new?.dbf");
    ExpectFailure({"dbf", "import", Csv("A\n1\n"), wild}, 1,
                  "vorntool dbf import: '" + wild + "' cannot be written there");
    const std::string csv = m_folder.File("none.csv");
    ExpectFailure({"dbf", "import", csv, Out()}, 1, "vorntool dbf import: there is no file '" + csv + "'");
    ExpectImported("A\n1\n", "1 records of A:N:1");
    const std::string out = m_folder.File("none\\out.csv");
    ExpectFailure({"dbf", "export", Out(), "--output", out}, 1,
                  "vorntool dbf export: '" + out + "' cannot be written there");
}

TEST_F(DbfCsvTool, ExportChoosesFieldsAndLeavesDeletedRecordsOut)
{
    m_folder.Write("t.dbf", TableBytes({{"A", 'C', 2}, {"B", 'N', 3}}, {" a   1", "*b   2", " c   3"}));
    ExpectDone({"dbf", "export", Out("t.dbf"), "--fields", "b,A"}, "B,A\r\n1,a\r\n3,c\r\n");
    ExpectFailure({"dbf", "export", Out("t.dbf"), "--fields", "b,C"}, 1, "vorntool dbf export: there is no field 'C'");
    ExpectFailure({"dbf", "export", Out("t.dbf"), "--json"}, 2,
                  "vorntool dbf export: --json goes with --output; 'dump --json' prints records as JSON");
}

TEST_F(DbfCsvTool, AFileIsNeverReplacedByItsOwnContent)
{
    const std::string csv = Csv("A\n1\n");
    ExpectFailure({"dbf", "import", csv, csv, "--force"}, 1, "vorntool dbf import: '" + csv + "' cannot be replaced");
    EXPECT_EQ(m_folder.Read("in.csv"), "A\n1\n");
    const std::string bytes = TableBytes({{"A", 'C', 1}}, {" x"});
    const std::string table = m_folder.Write("t.dbf", bytes);
    ExpectFailure({"dbf", "export", table, "--output", table, "--force"}, 1,
                  "vorntool dbf export: '" + table + "' could not be written");
    EXPECT_EQ(m_folder.Read("t.dbf"), bytes);
    ExpectFailure({"dbf", "export", table, "--output", ""}, 2, "vorntool dbf export: '' cannot be the name of a file");
    EXPECT_EQ(Files(), (std::vector<std::string>{"in.csv", "t.dbf"}));
}

TEST_F(DbfCsvTool, ExportTellsOfRecordsThatAreMissing)
{
    std::string bytes = TableBytes({{"A", 'C', 1}}, {" x", " y"});
    bytes.pop_back();
    const ToolRun run = RunVornTool({"dbf", "export", m_folder.Write("t.dbf", bytes)});
    EXPECT_EQ(run.status, 0u);
    EXPECT_EQ(run.text, "A\r\nx\r\n");
    EXPECT_EQ(run.errors, "vorntool dbf export: the header counts 2 records, but the file ends behind 1\n");
}

TEST_F(DbfCsvTool, ProgressIsReportedWhenAskedFor)
{
    m_folder.Write("t.dbf", TableBytes({{"A", 'C', 1}}, {" x"}));
    const ToolRun run = RunVornTool({"dbf", "export", Out("t.dbf"), "--progress"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_EQ(run.text, "A\r\nx\r\n");
    EXPECT_TRUE(run.errors.ends_with("export: 100 %\n")) << run.errors;
}
