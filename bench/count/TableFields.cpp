#include "bench/core/BenchTable.h"
#include "files/core/CDBFFile.h"

#include <cstdlib>

/// Makes a table and reads every field of as many records as asked for; returns 0 when they were all there. Run once
/// with no record and once with some under a counter of instructions, it shows what a record takes.
int main(int argc, char** argv)
{
    const int wanted = argc > 1 ? std::atoi(argv[1]) : 0;
    const vorn::bench::BenchTable made(20000);
    CDBFFile table(500);
    CString value;
    int length = table.Open(made.Path(), CFile::modeRead) - 1;
    for (int record = 0; record < wanted && table.ReadRecord(-1) == 1; ++record)
    {
        for (int field = 0; field < vorn::bench::BenchTable::kFields; ++field)
        {
            table.GetFieldValue(field, value);
            length += value.GetLength();
        }
    }
    return table.CurRecIndex() == wanted - 1 && length >= wanted ? 0 : 1;
}
