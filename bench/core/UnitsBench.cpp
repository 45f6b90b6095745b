#include "aviation/core/UnitConversion.h"

#include <benchmark/benchmark.h>

namespace
{

void ConvertLength(benchmark::State& state)
{
    double value = 12.5;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(value);
        double converted = value;
        ConvertValue(&converted, UNIT_NM, UNIT_KM);
        benchmark::DoNotOptimize(converted);
    }
}
BENCHMARK(ConvertLength)->Name("ConvertValue/length");

void ConvertTemperature(benchmark::State& state)
{
    double value = 15;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(value);
        double converted = value;
        ConvertValue(&converted, UNIT_C, UNIT_F);
        benchmark::DoNotOptimize(converted);
    }
}
BENCHMARK(ConvertTemperature)->Name("ConvertValue/temperature");

// The longest way: down to inches and back.
void ValueSteppingDown(benchmark::State& state)
{
    const vorn::UnitChoices choices;
    double value = 1e-7;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(value);
        int precision = -1;
        UNIT to = UNIT_AUTO;
        benchmark::DoNotOptimize(
            vorn::InternalValue(choices, value, UNITTYPE_DISTANCE, precision, UNIT_AUTO, to, -1.0));
    }
}
BENCHMARK(ValueSteppingDown)->Name("InternalValue/step down and back");

void Text(benchmark::State& state)
{
    double value = 123.456;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(vorn::DecimalText(value, 1));
    }
}
BENCHMARK(Text)->Name("DecimalText");

} // namespace
