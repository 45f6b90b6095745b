#include "aviation/ConversionBoy.h"

#include <benchmark/benchmark.h>

namespace
{

void Value(benchmark::State& state)
{
    ConversionBoy units;
    double value = 1e-7; // steps down to inches and back
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(units.Value(value, UNITTYPE_DISTANCE));
    }
}
BENCHMARK(Value)->Name("ConversionBoy/Value stepping down and back");

void Str(benchmark::State& state)
{
    ConversionBoy units;
    double value = 123.456;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(units.Str(value, UNITTYPE_SPEED));
    }
}
BENCHMARK(Str)->Name("ConversionBoy/Str");

void ReadUnits(benchmark::State& state)
{
    ConversionBoy units;
    for (auto _ : state)
    {
        units.ReadUnits();
    }
}
BENCHMARK(ReadUnits)->Name("ConversionBoy/ReadUnits");

} // namespace
