#include "bench/core/TableCases.h"

#include <string>

// A table of 200,000 records in the page cache, against bare reads of the file.
namespace
{
using namespace vorn::bench;

constexpr UINT kMode = CFile::modeRead | CFile::shareDenyWrite;

long long BareReads()
{
    CFile file(SharedTable().Path(), kMode);
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

void OneByOne(benchmark::State& state)
{
    ComparePasses(
        state,
        []
        {
            return ReadRecords(0);
        },
        BareReads);
}
VORN_BENCH_PASSES(OneByOne, "Table/Records one by one to bare reads");

/// The floor: the file in blocks of 64 KB, its bytes added up. Returns the number of records by the bytes read.
long long WholeFile()
{
    CFile file(SharedTable().Path(), kMode);
    static unsigned char block[65536];
    unsigned sum = 0;
    long long bytes = 0;
    for (UINT count = 0; (count = file.Read(block, sizeof block)) > 0; bytes += count)
    {
        for (UINT i = 0; i < count; ++i)
        {
            sum += block[i];
        }
    }
    benchmark::DoNotOptimize(sum);
    return (bytes - BenchTable::kHeaderLength) / BenchTable::kRecordLength;
}

void Ahead(benchmark::State& state)
{
    ComparePasses(
        state,
        []
        {
            return ReadRecords(kReadAhead);
        },
        WholeFile);
}
VORN_BENCH_PASSES(Ahead, "Table/Records with read-ahead to the whole file in blocks");

void QueryLast(benchmark::State& state)
{
    CDBFFile table(kReadAhead);
    table.Open(SharedTable().Path(), CFile::modeRead);
    const int last = SharedTable().Records() - 1;
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
BENCHMARK(QueryLast)->Name("Table/Query for the last record")->Unit(benchmark::kMillisecond);

/// The key of a search, and each time another part of the table.
std::string KeyOfSearch(int search)
{
    return BenchTable::Key(static_cast<int>(static_cast<unsigned>(search) * 2654435761u % 200000u));
}

/// Binary search by hand: a seek and a read for each probe, and a comparison of the raw field.
int BareSearch(CFile& file, const std::string& key)
{
    int low = 0;
    int high = SharedTable().Records() - 1;
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

/// Returns the sum of what the searches found.
template <class Search>
long long Searches(Search search)
{
    long long sum = 0;
    for (int i = 0; i < 10000; ++i)
    {
        sum += search(KeyOfSearch(i));
    }
    return sum;
}

void SortedSearches(benchmark::State& state)
{
    CDBFFile table(0);
    table.Open(SharedTable().Path(), CFile::modeRead);
    CFile file(SharedTable().Path(), kMode);
    ComparePasses(
        state,
        [&]
        {
            return Searches(
                [&](const std::string& key)
                {
                    return table.QuerySortedStrData("FIELD0", key.c_str()) == 1 ? table.CurRecIndex() : -1;
                });
        },
        [&]
        {
            return Searches(
                [&](const std::string& key)
                {
                    return BareSearch(file, key);
                });
        });
}
VORN_BENCH_PASSES(SortedSearches, "Table/10,000 sorted searches to bare seeks and reads");
} // namespace
