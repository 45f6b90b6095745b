#include "files/core/CDBFFile.h"
#include "fuzz/TableFiles.h"

namespace
{

using vorn::fuzz::InputParts;
using vorn::fuzz::Require;
using vorn::fuzz::TableFiles;

constexpr int kMostRecords = 32;
constexpr int kMostFields = 40;

void ReadMemos(CDBFFile& table, std::size_t most)
{
    CString value;
    for (int field = 0; field < table.NumFields() && field < kMostFields; ++field)
    {
        table.GetFieldValue(field, value);
        Require(table.GetFieldType(field) != 'M' || static_cast<std::size_t>(value.GetLength()) <= most);
        Require(value == table.GetFieldValue(field));
    }
}

} // namespace

/// A key, a table and its memo file, or a table inside a file with its memos behind it: a memo is never longer than the
/// files are, and reads the same each time.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static const TableFiles files;
    InputParts parts(data, size);
    const std::string key(parts.Part(parts.Number(1) % 16));
    const std::string tableBytes(parts.Part(parts.Number(2)));
    const bool alone = parts.Rest().empty();
    std::remove(files.Memo());
    if (!alone)
    {
        TableFiles::Write(files.Memo(), parts.Rest());
    }
    const int offset = alone ? 7 : 0;
    TableFiles::Write(files.Table(), std::string(static_cast<std::size_t>(offset), '\0') + tableBytes);
    CDBFFile table(3);
    table.SetDecodeString(key.data(), static_cast<int>(key.size()));
    table.SetBaseOffset(offset);
    int read = table.Open(files.Table(), CFile::modeRead);
    for (int i = 0; i < kMostRecords && read == 1; ++i)
    {
        read = table.ReadRecord(-1);
        ReadMemos(table, size);
    }
    return 0;
}
