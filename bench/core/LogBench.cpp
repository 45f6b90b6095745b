#include "family/VornChart/core/VornLog.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace
{

constexpr int kMessages = 100'000;
constexpr const char* kMessage = "Projection module azimuthal.dll skipped: it tells no readable name";

void LogMany(VornLog& log, std::int64_t count)
{
    for (std::int64_t i = 0; i < count; ++i)
    {
        log.LogMsg(kMessage, LOG_INFO);
    }
}

void Messages(benchmark::State& state)
{
    for (auto _ : state)
    {
        VornLog log;
        LogMany(log, state.range(0));
        benchmark::DoNotOptimize(log);
    }
}
BENCHMARK(Messages)->Name("Log/messages")->Arg(kMessages / 10)->Arg(kMessages)->Unit(benchmark::kMillisecond);

/// A file of this process's own for each benchmark.
std::string FilePath()
{
    return (std::filesystem::temp_directory_path() / "vorn_log_bench.txt").string();
}

void MessagesIntoAFile(benchmark::State& state)
{
    for (auto _ : state)
    {
        VornLog log;
        log.InitLog(FilePath().c_str());
        LogMany(log, state.range(0));
    }
    std::filesystem::remove(FilePath());
}
BENCHMARK(MessagesIntoAFile)->Name("Log/messages into a file")->Arg(kMessages / 10)->Unit(benchmark::kMillisecond);

/// The yardstick: a plain stream that is flushed after each line.
void LinesIntoAFile(benchmark::State& state)
{
    for (auto _ : state)
    {
        std::ofstream out(FilePath(), std::ios::binary | std::ios::app);
        for (std::int64_t i = 0; i < state.range(0); ++i)
        {
            out << kMessage << "\r\n" << std::flush;
        }
    }
    std::filesystem::remove(FilePath());
}
BENCHMARK(LinesIntoAFile)->Name("Log/flushed lines of a stream")->Arg(kMessages / 10)->Unit(benchmark::kMillisecond);

} // namespace
