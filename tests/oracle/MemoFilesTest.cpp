#include "files/core/CDBFFile.h"
#include "tests/oracle/OutsideTool.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>

/// Memo files, both ways, with the memo reader and writer of the Perl module XBase: the entries agree with its dBASE IV
/// layout to the byte (marker, length that counts 8 more, 512-byte blocks). Two things differ: it takes the layout from
/// the version byte of the table (3 means dBASE III there, with memos ended by 0x1A), so the tests set that byte where
/// it reads our tables; and shapelib and GDAL know no memo files, they show the block numbers.
namespace
{

using namespace vorn::test;

const std::vector<std::string> kMemos{"Short text.",         "",
                                      std::string(503, 'a'), std::string(504, 'b'), // with its 8 bytes just a block
                                      std::string(505, 'c'), "Two lines\r\nand a \"quote\", a comma: and colon ",
                                      std::string(5000, 'd')};

/// A table with its memo file; the empty memo has no entry and a blank number.
void WriteOurs(const ScratchFolder& folder)
{
    CDBFFile table(0);
    table.AddNewField("ID", 'C', 3);
    table.AddNewField("NOTE", 'M', 10);
    ASSERT_EQ(1, table.Create(folder.File("ours.dbf").c_str()));
    CFile memo(folder.File("ours.dbt").c_str(), CFile::modeCreate | CFile::modeReadWrite);
    table.WriteDBTHeader(&memo);
    long block = 1;
    for (const std::string& text : kMemos)
    {
        char number[16];
        std::snprintf(number, sizeof number, "%10ld", block);
        table.SetFieldValue("ID", std::to_string(&text - kMemos.data()).c_str());
        table.SetFieldValue("NOTE", text.empty() ? "" : number);
        table.WriteRecord(nullptr);
        block = text.empty() ? block : table.WriteDBTRecord(&memo, text.c_str());
    }
    table.WriteNumRecords(nullptr, static_cast<int>(kMemos.size()));
    table.WriteDBTHeader(&memo);
}

void SetVersionByte(const std::string& path, char version)
{
    CFile file(path.c_str(), CFile::modeReadWrite);
    file.Write(&version, 1);
}

void ExpectOurMemos(CDBFFile& table, const std::vector<std::string>& memos)
{
    for (const std::string& text : memos)
    {
        ASSERT_EQ(1, table.ReadRecord(-1));
        const CString memo = table.GetFieldValue("NOTE");
        EXPECT_EQ(text, std::string(memo, static_cast<std::size_t>(memo.GetLength())));
    }
    EXPECT_EQ(0, table.ReadRecord(-1));
}

std::string DumpBy(const std::string& path)
{
    return RunTool({"dbf_dump", "--fs", "|", "--rs", "#\n", path});
}

TEST(MemoFiles, OthersReadOurs)
{
    const ScratchFolder folder;
    ASSERT_NO_FATAL_FAILURE(WriteOurs(folder));
    SetVersionByte(folder.File("ours.dbf"), '\x8B');
    std::string expected;
    for (std::size_t i = 0; i < kMemos.size(); ++i)
    {
        expected += std::to_string(i) + "|" + kMemos[i] + "#\n";
    }
    EXPECT_EQ(expected, DumpBy(folder.File("ours.dbf")));
}

TEST(MemoFiles, WeReadOurs)
{
    const ScratchFolder folder;
    ASSERT_NO_FATAL_FAILURE(WriteOurs(folder));
    CDBFFile table(4);
    ASSERT_EQ(1, table.Open(folder.File("ours.dbf").c_str(), CFile::modeRead));
    ExpectOurMemos(table, kMemos);
}

/// The number of the first block stands in the table, and that is what programs without memo files show.
TEST(MemoFiles, OthersWithoutMemosShowTheBlockNumbers)
{
    const ScratchFolder folder;
    ASSERT_NO_FATAL_FAILURE(WriteOurs(folder));
    EXPECT_EQ(
        "ID,NOTE\n0,1\n1,\n2,2\n3,3\n4,4\n5,6\n6,7\n",
        RunTool({"ogr2ogr", "-f", "CSV", "-lco", "STRING_QUOTING=IF_NEEDED", "/vsistdout/", folder.File("ours.dbf")}));
    const std::string shown = RunTool({"dbfdump", folder.File("ours.dbf")});
    EXPECT_NE(std::string::npos, shown.find("\n6   7")) << shown;
}

/// A program in Perl that makes a table with these memos.
std::string Maker(const std::string& table, const std::string& memo)
{
    std::string program = "use XBase; my $t = XBase->create(name => '" + table + "', memofile => '" + memo +
                          "', version => 4, field_names => ['ID', 'NOTE'], field_types => ['C', 'M'], "
                          "field_lengths => [5, 10], field_decimals => [0, 0]) or die XBase->errstr; my $i = 0; ";
    for (const std::string& text : kMemos)
    {
        std::string code;
        for (const char c : text)
        {
            char digits[8];
            std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned>(c) & 0xFF);
            code += digits;
        }
        program += "$t->set_record($i, $i, pack('H*', '" + code + "')) or die $t->errstr; $i++; ";
    }
    return program + "$t->close;";
}

TEST(MemoFiles, WeReadThoseOfOthers)
{
    const ScratchFolder folder;
    const std::string path = folder.File("theirs.dbf");
    RunTool({"perl", "-e", Maker(path, folder.File("theirs.dbt"))});
    ASSERT_TRUE(std::filesystem::exists(folder.File("theirs.dbt")));
    CDBFFile table(3);
    ASSERT_EQ(1, table.Open(path.c_str(), CFile::modeRead));
    EXPECT_EQ('M', table.GetFieldType("NOTE"));
    ExpectOurMemos(table, kMemos);
}

TEST(MemoFiles, WeReadThoseOfOthersUnderTheSecondName)
{
    const ScratchFolder folder;
    const std::string path = folder.File("theirs.dbf");
    RunTool({"perl", "-e", Maker(path, folder.File("theirs.dbt"))});
    std::filesystem::rename(folder.File("theirs.dbt"), folder.File("theirs.btd"));
    CDBFFile table(0);
    ASSERT_EQ(1, table.Open(path.c_str(), CFile::modeRead));
    ExpectOurMemos(table, kMemos);
}

} // namespace
