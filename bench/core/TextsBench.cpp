#include "aviation/core/Calendar.h"
#include "aviation/core/Duration.h"
#include "aviation/core/Julian.h"
#include "aviation/core/Position.h"
#include "aviation/core/Rounding.h"
#include "frame/core/BaseNDigits.h"
#include "frame/core/Match.h"
#include "frame/core/Serialisation.h"
#include "frame/core/Split.h"
#include "frame/core/StringSort.h"

#include <GeographicLib/DMS.hpp>
#include <benchmark/benchmark.h>

#ifndef _WIN32
#include <fnmatch.h>
#endif

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace
{

/// Ordinary coordinates in random order.
std::vector<double> Coordinates()
{
    std::vector<double> values(1024);
    unsigned seed = 1;
    for (double& value : values)
    {
        seed = seed * 1103515245U + 12345U;
        value = static_cast<double>(seed % 360'000'000U) / 1e6 - 180.0;
    }
    return values;
}

void PositionText(benchmark::State& state)
{
    const std::vector<double> values = Coordinates();
    const vorn::PositionFormat format{state.range(0) != 0, 1};
    std::size_t i = 0;
    for (auto _ : state)
    {
        const vorn::CompactText text = vorn::PositionText(values[i++ % values.size()], vorn::Axis::Latitude, format);
        benchmark::DoNotOptimize(text.View().data());
    }
}
BENCHMARK(PositionText)->Name("Position/own")->Arg(0)->Arg(1);

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat"
void PositionPrintf(benchmark::State& state)
{
    const std::vector<double> values = Coordinates();
    const bool seconds = state.range(0) != 0;
    std::size_t i = 0;
    char text[64];
    for (auto _ : state)
    {
        const double v = values[i++ % values.size()];
        const double a = std::fabs(v);
        const int d = static_cast<int>(a);
        double mf = (a - d) * 60.0;
        const int m = static_cast<int>(mf);
        if (seconds)
        {
            const double sf = vorn::RoundedTo((mf - m) * 60.0, 1);
            std::snprintf(text, sizeof text, "%c%03.2d%c %2.2d' %0*.*f", v >= 0 ? 'N' : 'S', d, 176, m, 4, 1, sf);
        }
        else
        {
            mf = vorn::RoundedTo(mf, 1);
            std::snprintf(text, sizeof text, "%c%03.2d%c %0*.*f'", v >= 0 ? 'N' : 'S', d, 176, 4, 1, mf);
        }
        benchmark::DoNotOptimize(text);
        benchmark::ClobberMemory();
    }
}
#pragma GCC diagnostic pop
BENCHMARK(PositionPrintf)->Name("Position/printf")->Arg(0)->Arg(1);

void PositionGeographicLib(benchmark::State& state)
{
    const std::vector<double> values = Coordinates();
    const auto trailing = state.range(0) != 0 ? GeographicLib::DMS::SECOND : GeographicLib::DMS::MINUTE;
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            GeographicLib::DMS::Encode(values[i++ % values.size()], trailing, 1, GeographicLib::DMS::LATITUDE));
}
BENCHMARK(PositionGeographicLib)->Name("Position/GeographicLib")->Arg(0)->Arg(1);

void Duration(benchmark::State& state)
{
    double hours = 12.3456;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(hours);
        const vorn::CompactText text = vorn::DurationText(hours, {false, true});
        benchmark::DoNotOptimize(text.View().data());
    }
}
BENCHMARK(Duration)->Name("Duration");

void Weekday(benchmark::State& state)
{
    int year = 2024;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(year);
        benchmark::DoNotOptimize(vorn::WeekdayOf(year, 7, 14));
        benchmark::DoNotOptimize(vorn::MonthLength(year, 2));
    }
}
BENCHMARK(Weekday)->Name("WeekdayOf + MonthLength");

void JulianRoundTrip(benchmark::State& state)
{
    vorn::CivilTime moment{2024, 7, 14, 12, 34, 56};
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(moment);
        benchmark::DoNotOptimize(vorn::CivilOfJulian(vorn::JulianOfCivil(moment)));
    }
}
BENCHMARK(JulianRoundTrip)->Name("Julian round trip");

std::string ShortFields()
{
    std::string text;
    while (text.size() < 1'000'000)
        text += "abc,de,,f;ghij;";
    return text;
}

void Split(benchmark::State& state)
{
    const std::string text = ShortFields();
    for (auto _ : state)
    {
        std::vector<std::string> pieces;
        vorn::SplitText(text, ",;", {true, false},
                        [&pieces](std::string_view piece)
                        {
                            pieces.emplace_back(piece);
                        });
        benchmark::DoNotOptimize(pieces.data());
    }
}
BENCHMARK(Split)->Name("Split 1 MB of short fields")->Unit(benchmark::kMillisecond);

struct Pair
{
    const char* pattern;
    const char* text;
};

constexpr Pair kPairs[] = {{"*.txt", "flightplan.txt"},
                           {"k*?s*.dat", "kbos-approach.dat"},
                           {"*chart*north*", "the chart of the far north atlantic"},
                           {"a?c?e", "abcde"},
                           {"plain text", "plain text"}};

void Match(benchmark::State& state)
{
    const bool caseSensitive = state.range(0) != 0;
    Pair pair = kPairs[state.range(1)];
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(pair);
        benchmark::DoNotOptimize(vorn::MatchText(pair.pattern, pair.text, {caseSensitive, false}));
    }
}
BENCHMARK(Match)->Name("Match/own")->ArgsProduct({{0, 1}, {0, 1, 2, 3, 4}});

#ifndef _WIN32
void MatchFnmatch(benchmark::State& state)
{
    const int flags = state.range(0) != 0 ? 0 : FNM_CASEFOLD;
    Pair pair = kPairs[state.range(1)];
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(pair);
        benchmark::DoNotOptimize(fnmatch(pair.pattern, pair.text, flags));
    }
}
BENCHMARK(MatchFnmatch)->Name("Match/fnmatch")->ArgsProduct({{0, 1}, {0, 1, 2, 3, 4}});
#endif

std::vector<std::string> Names()
{
    std::vector<std::string> names(100'000);
    unsigned seed = 3;
    for (std::string& name : names)
    {
        seed = seed * 1103515245U + 12345U;
        name = "waypoint " + std::to_string(seed % 1'000'003U);
        if (seed % 3 == 0)
            name = std::to_string(seed) + name;
    }
    return names;
}

void SortOwn(benchmark::State& state)
{
    const std::vector<std::string> names = Names();
    for (auto _ : state)
    {
        const std::vector<std::string_view> views(names.begin(), names.end());
        benchmark::DoNotOptimize(vorn::SortedOrder(views, state.range(0) != 0));
    }
}
BENCHMARK(SortOwn)->Name("Sort/own")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void SortStandard(benchmark::State& state)
{
    const std::vector<std::string> names = Names();
    for (auto _ : state)
    {
        std::vector<std::string> copy = names;
        std::sort(copy.begin(), copy.end());
        benchmark::DoNotOptimize(copy.data());
    }
}
BENCHMARK(SortStandard)->Name("Sort/std::sort")->Unit(benchmark::kMillisecond);

void EncodeOwn(benchmark::State& state)
{
    std::uint64_t value = 12345678901234567U;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(vorn::EncodeNumber(value, static_cast<int>(state.range(0))));
    }
}
BENCHMARK(EncodeOwn)->Name("BaseN encode/own")->Arg(7)->Arg(16)->Arg(36)->Arg(62)->Arg(64);

void EncodeStandard(benchmark::State& state)
{
    std::uint64_t value = 12345678901234567U;
    char text[64];
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(value);
        char* const end = std::to_chars(text, text + sizeof text, value, static_cast<int>(state.range(0))).ptr;
        benchmark::DoNotOptimize(std::string(text, end));
    }
}
BENCHMARK(EncodeStandard)->Name("BaseN encode/std::to_chars")->Arg(7)->Arg(16)->Arg(36);

void DecodeOwn(benchmark::State& state)
{
    const std::string digits = vorn::EncodeNumber(12345678901234567U, static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(vorn::DecodeNumber(digits, static_cast<int>(state.range(0))));
}
BENCHMARK(DecodeOwn)->Name("BaseN decode/own")->Arg(7)->Arg(16)->Arg(36)->Arg(64);

void DecodeStandard(benchmark::State& state)
{
    const std::string digits = vorn::EncodeNumber(12345678901234567U, static_cast<int>(state.range(0)));
    for (auto _ : state)
    {
        std::uint64_t value = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), value, static_cast<int>(state.range(0)));
        benchmark::DoNotOptimize(value);
    }
}
BENCHMARK(DecodeStandard)->Name("BaseN decode/std::from_chars")->Arg(7)->Arg(16)->Arg(36);

void EncodeBlock(benchmark::State& state)
{
    const std::vector<unsigned char> bytes(65536, 0x5A);
    for (auto _ : state)
        benchmark::DoNotOptimize(vorn::EncodeBytes(bytes, 64));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(EncodeBlock)->Name("BaseN bytes encode");

void DecodeBlock(benchmark::State& state)
{
    const std::string digits = vorn::EncodeBytes(std::vector<unsigned char>(65536, 0x5A), 64);
    std::vector<unsigned char> bytes(65536);
    for (auto _ : state)
        benchmark::DoNotOptimize(vorn::DecodeBytes(digits, bytes));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(DecodeBlock)->Name("BaseN bytes decode");

void ReadList(benchmark::State& state)
{
    CStringList list;
    for (int i = 0; i < 100'000; ++i)
        list.AddTail("twenty characters ab");
    std::vector<char> record(2'500'000);
    char* cursor = record.data();
    auto remaining = static_cast<unsigned long>(record.size());
    ReadWriteCStringList(cursor, remaining, list, false);
    for (auto _ : state)
    {
        auto back = std::make_unique<CStringList>();
        cursor = record.data();
        remaining = static_cast<unsigned long>(record.size());
        benchmark::DoNotOptimize(ReadWriteCStringList(cursor, remaining, *back, true));
        state.PauseTiming();
        back.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(ReadList)->Name("Serialisation/read 100,000 texts")->Unit(benchmark::kMillisecond);

} // namespace
