#include "bench/core/BenchTable.h"
#include "bench/windows/PairedTimer.h"
#include "files/core/CDBFFile.h"

#include <string>

#ifdef VORN_HAVE_SHAPELIB
#include "bench/core/Shapelib.h"
#endif

// A table of 200,000 records in the page cache, against shapelib and against bare reads of the file.
namespace
{
using vorn::bench::BenchTable;
using vorn::bench::Compare;

constexpr int kReadAhead = 500;
constexpr int kPasses = 3;

const BenchTable& Table()
{
    static const BenchTable table(200000);
    return table;
}

/// Adds the comparison as a number of times: what the yardstick takes by what the operation takes.
template <class Operation, class Yardstick>
void CompareTimes(benchmark::State& state, Operation operation, Yardstick yardstick)
{
    Table();
    yardstick(); // the file is in the page cache from here on
    Compare(state, 1, operation, yardstick);
    state.counters["times"] = 1 / state.counters["ratio"];
}

void ExpectSame(benchmark::State& state, long long mine, long long theirs)
{
    if (mine == 0 || mine != theirs)
    {
        state.SkipWithError("the two did not read the same");
    }
}

// Each pass gives the number of characters or records that it saw.

long long Records(int readAhead)
{
    CDBFFile table(readAhead);
    table.Open(Table().Path(), CFile::modeRead);
    long long records = 0;
    while (table.ReadRecord(-1) == 1)
    {
        ++records;
    }
    return records;
}

long long BareReads()
{
    CFile file(Table().Path(), CFile::modeRead | CFile::shareDenyWrite);
    file.Seek(BenchTable::kHeaderLength, CFile::begin);
    char record[BenchTable::kRecordLength + 1];
    long long records = 0;
    while (file.Read(record, BenchTable::kRecordLength) == static_cast<UINT>(BenchTable::kRecordLength))
    {
        benchmark::DoNotOptimize(record);
        ++records;
    }
    return records;
}

/// The floor: the file in blocks of 64 KB, its bytes added up.
long long WholeFile()
{
    CFile file(Table().Path(), CFile::modeRead | CFile::shareDenyWrite);
    static unsigned char block[65536];
    unsigned long long sum = 0;
    UINT count = 0;
    while ((count = file.Read(block, sizeof block)) > 0)
    {
        unsigned blockSum = 0;
        for (UINT i = 0; i < count; ++i)
        {
            blockSum += block[i];
        }
        sum += blockSum;
    }
    return static_cast<long long>(sum);
}

#ifdef VORN_HAVE_SHAPELIB
using vorn::bench::ShapelibTable;

long long FieldsIntoText()
{
    CDBFFile table(kReadAhead);
    table.Open(Table().Path(), CFile::modeRead);
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
    table.Open(Table().Path(), CFile::modeRead);
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
    ShapelibTable table(Table().Path());
    long long characters = 0;
    for (int record = 0; record < table.Records(); ++record)
    {
        for (int field = 0; field < BenchTable::kFields; ++field)
        {
            characters += static_cast<long long>(std::char_traits<char>::length(table.Text(record, field)));
        }
    }
    return characters;
}

long long RecordsByShapelib()
{
    ShapelibTable table(Table().Path());
    long long records = 0;
    for (int record = 0; record < table.Records(); ++record)
    {
        records += table.Tuple(record) != nullptr;
    }
    return records;
}

/// Times a pass against shapelib's; both must have seen the same.
template <class Pass, class Peer>
void AgainstShapelib(benchmark::State& state, Pass pass, Peer peer)
{
    long long mine = 0;
    long long theirs = 0;
    CompareTimes(
        state,
        [&]
        {
            mine = pass();
        },
        [&]
        {
            theirs = peer();
        });
    ExpectSame(state, mine, theirs);
}

void FieldsIntoTextBench(benchmark::State& state)
{
    AgainstShapelib(state, FieldsIntoText, FieldsByShapelib);
}
BENCHMARK(FieldsIntoTextBench)
    ->Name("Table/Fields into a text to shapelib")
    ->UseManualTime()
    ->Iterations(kPasses)
    ->Unit(benchmark::kMillisecond);

void FieldsByValueBench(benchmark::State& state)
{
    AgainstShapelib(state, FieldsByValue, FieldsByShapelib);
}
BENCHMARK(FieldsByValueBench)
    ->Name("Table/Fields by value to shapelib")
    ->UseManualTime()
    ->Iterations(kPasses)
    ->Unit(benchmark::kMillisecond);

void RecordsAheadBench(benchmark::State& state)
{
    AgainstShapelib(
        state,
        []
        {
            return Records(kReadAhead);
        },
        RecordsByShapelib);
}
BENCHMARK(RecordsAheadBench)
    ->Name("Table/Records with read-ahead to shapelib")
    ->UseManualTime()
    ->Iterations(kPasses)
    ->Unit(benchmark::kMillisecond);
#endif

void RecordsAloneBench(benchmark::State& state)
{
    long long mine = 0;
    long long bare = 0;
    CompareTimes(
        state,
        [&]
        {
            mine = Records(0);
        },
        [&]
        {
            bare = BareReads();
        });
    ExpectSame(state, mine, bare);
}
BENCHMARK(RecordsAloneBench)
    ->Name("Table/Records one by one to bare reads")
    ->UseManualTime()
    ->Iterations(kPasses)
    ->Unit(benchmark::kMillisecond);

void RecordsAheadToFloorBench(benchmark::State& state)
{
    CompareTimes(
        state,
        []
        {
            benchmark::DoNotOptimize(Records(kReadAhead));
        },
        []
        {
            benchmark::DoNotOptimize(WholeFile());
        });
}
BENCHMARK(RecordsAheadToFloorBench)
    ->Name("Table/Records with read-ahead to the whole file in blocks")
    ->UseManualTime()
    ->Iterations(kPasses)
    ->Unit(benchmark::kMillisecond);

void QueryLastBench(benchmark::State& state)
{
    CDBFFile table(kReadAhead);
    table.Open(Table().Path(), CFile::modeRead);
    const int last = Table().Records() - 1;
    const std::string key = BenchTable::Key(last);
    bool found = true;
    for (auto _ : state)
    {
        found = found && table.Query(0, key.c_str(), 1) == 1 && table.CurRecIndex() == last;
    }
    if (!found)
    {
        state.SkipWithError("the last record was not found");
    }
}
BENCHMARK(QueryLastBench)->Name("Table/Query for the last record")->Unit(benchmark::kMillisecond)->UseRealTime();

constexpr int kSearches = 10000;

int KeyOfSearch(int search)
{
    return static_cast<int>(static_cast<unsigned>(search) * 2654435761u % 200000u);
}

/// Binary search by hand: a seek and a read for each probe, and a comparison of the raw field.
int BareSearch(CFile& file, const std::string& key)
{
    int low = 0;
    int high = Table().Records() - 1;
    char record[BenchTable::kRecordLength];
    while (low <= high)
    {
        const int middle = low + (high - low) / 2;
        file.Seek(BenchTable::kHeaderLength + LONGLONG{BenchTable::kRecordLength} * middle, CFile::begin);
        file.Read(record, sizeof record);
        const int order = key.compare(0, key.size(), record + 1, key.size());
        if (order == 0)
        {
            return middle;
        }
        (order < 0 ? high : low) = order < 0 ? middle - 1 : middle + 1;
    }
    return -1;
}

void SortedSearchBench(benchmark::State& state)
{
    CDBFFile table(0);
    table.Open(Table().Path(), CFile::modeRead);
    CFile file(Table().Path(), CFile::modeRead | CFile::shareDenyWrite);
    long long mine = 0;
    long long bare = 0;
    CompareTimes(
        state,
        [&]
        {
            for (int i = 0; i < kSearches; ++i)
            {
                table.QuerySortedStrData("FIELD0", BenchTable::Key(KeyOfSearch(i)).c_str());
                mine += table.CurRecIndex();
            }
        },
        [&]
        {
            for (int i = 0; i < kSearches; ++i)
            {
                bare += BareSearch(file, BenchTable::Key(KeyOfSearch(i)));
            }
        });
    const long long passes = static_cast<long long>(state.iterations());
    ExpectSame(state, mine / passes, bare / (passes + 1));
}
BENCHMARK(SortedSearchBench)
    ->Name("Table/10,000 sorted searches to bare seeks and reads")
    ->UseManualTime()
    ->Iterations(kPasses)
    ->Unit(benchmark::kMillisecond);
} // namespace
