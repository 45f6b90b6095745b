#include "files/core/CDBFFile.h"
#include "fuzz/TableFiles.h"

#include <algorithm>

namespace
{

using vorn::fuzz::Require;
using vorn::fuzz::TableFiles;

constexpr int kMostRecords = 64;
constexpr int kMostFields = 40;

void CompareValues(CDBFFile& one, CDBFFile& other)
{
    const int length = std::max(one.RecordLength(), 0);
    CString value;
    for (int field = -1; field <= one.NumFields() && field < kMostFields; ++field)
    {
        one.GetFieldValue(field, value);
        Require(value == other.GetFieldValue(field));
        Require(value.GetLength() <= (one.GetFieldType(field) == 'N' ? 2 * length + 1 : length));
    }
}

} // namespace

/// Any bytes as a table: records read one by one and ahead are the same, and nothing else happens to the file.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static const TableFiles files;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    TableFiles::Write(files.Table(), bytes);
    CDBFFile one(0);
    CDBFFile other(2 + static_cast<int>(size % 9));
    const int opened = one.Open(files.Table(), CFile::modeRead);
    Require(opened == other.Open(files.Table(), CFile::modeRead));
    CompareValues(one, other);
    int read = opened;
    for (int i = 0; i < kMostRecords && read == 1; ++i)
    {
        read = one.ReadRecord(-1);
        Require(read == other.ReadRecord(-1));
        Require(one.CurRecIndex() == other.CurRecIndex());
        if (read == 1)
        {
            CompareValues(one, other);
        }
    }
    Require(opened == 0 || one.FileLen() == static_cast<LONGLONG>(size));
    return 0;
}
