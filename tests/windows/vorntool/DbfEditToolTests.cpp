#include "tests/support/ScratchFolder.h"
#include "tests/windows/vorntool/TableBytes.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <VornCommon.h>

using namespace vorn::test;

namespace
{

const std::vector<TableField> kFields = {{"A", 'C', 4}, {"N", 'N', 3}};

class DbfEditTool : public testing::Test
{
protected:
    std::string Table(const std::vector<std::string>& records = {" one   1", "*two   2", " tri   3"}) const
    {
        return m_folder.Write("t.dbf", TableBytes(kFields, records));
    }

    void ExpectTable(const std::vector<std::string>& records) const
    {
        EXPECT_EQ(m_folder.Read("t.dbf"), TableBytes(kFields, records));
    }

    const ScratchFolder m_folder;
};

} // namespace

TEST_F(DbfEditTool, SetWritesOneFieldInPlace)
{
    const std::string table = Table();
    ExpectDone({"dbf", "set", table, "2", "a", "x\xC3\xA9"}, "");
    ExpectTable({" one   1", "*two   2", " x\xE9    3"});
    ExpectDone({"dbf", "set", table, "0", "N", "42"}, "");
    ExpectTable({" one  42", "*two   2", " x\xE9    3"});
    ExpectDone({"dbf", "set", table, "0", "A", ""}, "");
    ExpectDone({"dbf", "set", table, "0", "N", ""}, "");
    ExpectTable({"        ", "*two   2", " x\xE9    3"});
}

TEST_F(DbfEditTool, SetAsJsonShowsWhatTheTableNowHolds)
{
    const ToolRun run = RunVornTool({"dbf", "set", Table(), "0", "N", "007", "--json"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_TRUE(run.text.ends_with("t.dbf\",\"record\":0,\"field\":\"N\",\"value\":\"7\"}\n")) << run.text;
}

TEST_F(DbfEditTool, SetRefusesWhatDoesNotFit)
{
    const std::string table = Table();
    const auto refuse = [&](const char* record, const char* field, const char* value, const std::string& reason)
    {
        ExpectFailure({"dbf", "set", table, record, field, value}, 1, "vorntool dbf set: " + reason);
    };
    refuse("0", "A", "fives", "'fives' is longer than the 4 characters of the field");
    refuse("0", "N", "-1", "'-1' is no unsigned whole number");
    refuse("0", "N", "1234", "'1234' is longer than the 3 characters of the field");
    refuse("0", "X", "1", "there is no field 'X'");
    refuse("0", "A", "\xD0\x96", "'\xD0\x96' has characters that the table's code page has not");
    refuse("1", "A", "x", "record 1 is deleted");
    refuse("3", "A", "x", "there is no record 3: the table has 3");
    ExpectFailure({"dbf", "set", table, "first", "A", "x"}, 2, "vorntool dbf set: 'first' is no number of a record");
    ExpectTable({" one   1", "*two   2", " tri   3"});
}

TEST_F(DbfEditTool, SetRefusesAFieldOutsideTheRecord)
{
    const std::string bytes = TableBytes({{"N", 'N', 3, 2}, {"A", 'C', 4}}, {"   1abcd"});
    const std::string table = m_folder.Write("t.dbf", bytes);
    ExpectFailure({"dbf", "set", table, "0", "A", "x"}, 1, "vorntool dbf set: field A does not lie within the record");
    EXPECT_EQ(m_folder.Read("t.dbf"), bytes);
}

TEST_F(DbfEditTool, SetAddsMemosAtTheEndOfTheirFile)
{
    const std::vector<TableField> fields = {{"NOTE", 'M', 10}};
    const std::string table = m_folder.Write("m.dbf", TableBytes(fields, {"          1", "           "}));
    m_folder.Write("m.dbt", MemoBytes({"first"}));
    const std::string longText(505, 'b');
    ExpectDone({"dbf", "set", table, "1", "NOTE", longText}, "");
    ExpectDone({"dbf", "set", table, "0", "NOTE", "n\xC3\xA9w"}, "");
    EXPECT_EQ(m_folder.Read("m.dbf"), TableBytes(fields, {"          4", "          2"}));
    EXPECT_EQ(m_folder.Read("m.dbt"), MemoBytes({"first", longText, "n\xE9w"}));
    ExpectDone({"dbf", "memo", table, "0"}, "n\xC3\xA9w\n");
    ExpectDone({"dbf", "memo", table, "1"}, longText + "\n");
    ExpectDone({"dbf", "set", table, "1", "NOTE", ""}, "");
    ExpectDone({"dbf", "memo", table, "1"}, "\n");
}

TEST_F(DbfEditTool, AMemoWithoutItsFileIsRefused)
{
    const std::vector<TableField> fields = {{"NOTE", 'M', 10}};
    const std::string table = m_folder.Write("m.dbf", TableBytes(fields, {"           "}));
    ExpectFailure({"dbf", "set", table, "0", "NOTE", "x"}, 1, "vorntool dbf set: the table has no memo file");
    EXPECT_EQ(m_folder.Read("m.dbf"), TableBytes(fields, {"           "}));
}

TEST_F(DbfEditTool, ATableInsideAFileIsChangedInItsPlace)
{
    const std::string before(100, 'z');
    const std::string table = m_folder.Write("t.bin", before + TableBytes(kFields, {" one   1", " two   2"}) + "end");
    ExpectDone({"dbf", "set", table, "0", "A", "new", "--offset", "100"}, "");
    ExpectDone({"dbf", "delete", table, "1", "--offset", "100"}, "");
    const std::string bytes = before + TableBytes(kFields, {" new   1", "*two   2"}) + "end";
    EXPECT_EQ(m_folder.Read("t.bin"), bytes);
    ExpectFailure(
        {"dbf", "pack", table, "--offset", "100"}, 1,
        "vorntool dbf pack: a table inside a file cannot be packed: the file would be replaced by the table alone");
    EXPECT_EQ(m_folder.Read("t.bin"), bytes);
}

TEST_F(DbfEditTool, DeleteMarksTheRecord)
{
    const std::string table = Table();
    ExpectDone({"dbf", "delete", table, "0"}, "");
    ExpectTable({"*one   1", "*two   2", " tri   3"});
    ExpectFailure({"dbf", "delete", table, "0"}, 1, "vorntool dbf delete: record 0 is deleted");
    const ToolRun run = RunVornTool({"dbf", "delete", table, "2", "--json"});
    EXPECT_TRUE(run.text.ends_with("t.dbf\",\"record\":2,\"deleted\":true}\n")) << run.text;
    ExpectTable({"*one   1", "*two   2", "*tri   3"});
}

TEST_F(DbfEditTool, PackTakesDeletedRecordsOut)
{
    const std::string table = Table();
    ExpectDone({"dbf", "pack", table}, "1 deleted records removed, 2 left\n");
    ExpectTable({" one   1", " tri   3"});
    ExpectDone({"dbf", "pack", table}, "0 deleted records removed, 2 left\n");
    ExpectTable({" one   1", " tri   3"});
    Table({"*one   1"});
    const ToolRun run = RunVornTool({"dbf", "pack", table, "--json"});
    EXPECT_TRUE(run.text.ends_with("t.dbf\",\"removed\":1,\"records\":0}\n")) << run.text;
    ExpectTable({});
}

TEST_F(DbfEditTool, CodedTablesAreNeverWritten)
{
    const std::string coded = Coded(" one   1*two   2", "key", 8);
    std::string bytes = TableBytes(kFields, {}) + coded;
    bytes[4] = 2;
    const std::string table = m_folder.Write("t.dbf", bytes);
    const std::string reason =
        "records are never written coded: in a coded table the changed ones could no longer be read";
    ExpectFailure({"dbf", "set", table, "0", "A", "x", "--key", "key"}, 1, "vorntool dbf set: " + reason);
    ExpectFailure({"dbf", "delete", table, "0", "--key", "key"}, 1, "vorntool dbf delete: " + reason);
    ExpectFailure({"dbf", "pack", table, "--key", "key"}, 1, "vorntool dbf pack: " + reason);
    const std::string marks = "records without a valid deletion mark: the table is coded or damaged";
    ExpectFailure({"dbf", "set", table, "0", "A", "x"}, 1, "vorntool dbf set: " + marks);
    ExpectFailure({"dbf", "delete", table, "0"}, 1, "vorntool dbf delete: " + marks);
    ExpectFailure({"dbf", "pack", table}, 1, "vorntool dbf pack: " + marks);
    EXPECT_EQ(m_folder.Read("t.dbf"), bytes);
}

TEST_F(DbfEditTool, ATableThatAnotherProgramReadsIsNotChanged)
{
    const std::string table = Table();
    {
        const CFile reader(table.c_str(), CFile::modeRead | CFile::shareDenyWrite);
        const std::string reason = "another program has '" + table + "' open";
        ExpectFailure({"dbf", "set", table, "0", "A", "x"}, 1, "vorntool dbf set: " + reason);
        ExpectFailure({"dbf", "delete", table, "0"}, 1, "vorntool dbf delete: " + reason);
        ExpectFailure({"dbf", "pack", table}, 1, "vorntool dbf pack: " + reason);
        ExpectDone({"dbf", "head", table, "--records", "1"}, "Record  A    N\n     0  one  1\n");
    }
    ExpectTable({" one   1", "*two   2", " tri   3"});
}
