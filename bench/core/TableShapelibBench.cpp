#ifdef VORN_HAVE_SHAPELIB
#include "bench/core/Shapelib.h"
#include "bench/core/TableCases.h"

#include <cstring>

// Every field and every record of the table, against shapelib.
namespace
{
using namespace vorn::bench;

long long FieldsIntoText()
{
    CDBFFile table(kReadAhead);
    table.Open(SharedTable().Path(), CFile::modeRead);
    long long characters = 0;
    CString value;
    while (table.ReadRecord(-1) == 1)
    {
        for (int field = 0; field < BenchTable::kFields; ++field)
        {
            table.GetFieldValue(field, value);
            characters += value.GetLength();
        }
    }
    return characters;
}

long long FieldsByValue()
{
    CDBFFile table(kReadAhead);
    table.Open(SharedTable().Path(), CFile::modeRead);
    long long characters = 0;
    while (table.ReadRecord(-1) == 1)
    {
        for (int field = 0; field < BenchTable::kFields; ++field)
        {
            characters += table.GetFieldValue(field).GetLength();
        }
    }
    return characters;
}

long long FieldsByShapelib()
{
    ShapelibTable table(SharedTable().Path());
    long long characters = 0;
    for (int record = 0; record < table.Records(); ++record)
    {
        for (int field = 0; field < BenchTable::kFields; ++field)
        {
            characters += static_cast<long long>(std::strlen(table.Text(record, field)));
        }
    }
    return characters;
}

long long RecordsByShapelib()
{
    ShapelibTable table(SharedTable().Path());
    long long records = 0;
    for (int record = 0; record < table.Records(); ++record)
    {
        records += table.Tuple(record) != nullptr;
    }
    return records;
}

void IntoText(benchmark::State& state)
{
    ComparePasses(state, FieldsIntoText, FieldsByShapelib);
}
VORN_BENCH_PASSES(IntoText, "Table/Fields into a text to shapelib");

void ByValue(benchmark::State& state)
{
    ComparePasses(state, FieldsByValue, FieldsByShapelib);
}
VORN_BENCH_PASSES(ByValue, "Table/Fields by value to shapelib");

void Tuples(benchmark::State& state)
{
    ComparePasses(
        state,
        []
        {
            return ReadRecords(kReadAhead);
        },
        RecordsByShapelib);
}
VORN_BENCH_PASSES(Tuples, "Table/Records with read-ahead to shapelib");
} // namespace
#endif
