#include "bench/PairedTimer.h"
#include "files/core/CFileFindInExtSet.h"
#include "frame/CriticalSectionLock.h"
#include "frame/Win32CriticalSection.h"
#include "frame/core/ProgramStats.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <mutex>
#include <string>

namespace
{

constexpr int kLocksInTurn = 20'000;

// A system critical section for the raw calls.
class Section
{
public:
    Section()
    {
        InitializeCriticalSection(&m_section);
    }
    ~Section()
    {
        DeleteCriticalSection(&m_section);
    }
    Section(const Section&) = delete;
    Section& operator=(const Section&) = delete;

    CRITICAL_SECTION* Record()
    {
        return &m_section;
    }

private:
    CRITICAL_SECTION m_section;
};

// The raw calls on a section.
auto RawLock(Section& section)
{
    return [&section]
    {
        EnterCriticalSection(section.Record());
        LeaveCriticalSection(section.Record());
    };
}

void Lock(benchmark::State& state)
{
    Section section;
    const std::unique_ptr<Vornwald::SynchObject> lock = std::make_unique<Vornwald::Win32CriticalSection>(0);
    Vornwald::SynchObject* held = lock.get();
    const auto call = [&held]
    {
        benchmark::DoNotOptimize(held);
        held->Lock();
        held->Unlock();
    };
    vorn::bench::Compare(state, kLocksInTurn, call, RawLock(section));
}
BENCHMARK(Lock)
    ->Name("Services/Lock and unlock through the interface to the raw calls (at most 1.1)")

    ->UseManualTime();

void ScopedLock(benchmark::State& state)
{
    Section section;
    Section own;
    const auto call = [&own]
    {
        const CriticalSectionLock lock(own.Record());
    };
    vorn::bench::Compare(state, kLocksInTurn, call, RawLock(section));
}
BENCHMARK(ScopedLock)->Name("Services/Scoped lock to the raw calls (at most 1.1)")->UseManualTime();

void StandardMutex(benchmark::State& state)
{
    Section section;
    std::mutex mutex;
    const auto call = [&mutex]
    {
        const std::lock_guard lock(mutex);
    };
    vorn::bench::Compare(state, kLocksInTurn, call, RawLock(section));
}
BENCHMARK(StandardMutex)->Name("Services/Mutex of the C++ library to the raw calls")->UseManualTime();

void Event(benchmark::State& state)
{
    ProgramStats stats;
    for (auto _ : state)
    {
        stats.Event(static_cast<APPSTAT>(7));
        benchmark::DoNotOptimize(stats);
    }
}
BENCHMARK(Event)->Name("Services/Event of a counter that is there");

// A folder of so many files of each of three extensions.
class Folder
{
public:
    explicit Folder(int files) : m_path(std::filesystem::temp_directory_path() / "vorn-bench-search")
    {
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
        for (int i = 0; i < files; ++i)
        {
            for (const char* extension : {".dbf", ".dbt", ".txt"})
            {
                std::ofstream(m_path / (std::to_string(i) + extension));
            }
        }
    }
    ~Folder()
    {
        std::filesystem::remove_all(m_path);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string Pattern(const char* end) const
    {
        return (m_path / end).string();
    }

private:
    std::filesystem::path m_path;
};

int RawSearch(const std::string& pattern)
{
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(pattern.c_str(), &found);
    int count = 0;
    if (search != INVALID_HANDLE_VALUE)
    {
        do
        {
            ++count;
        } while (::FindNextFileA(search, &found));
        FindClose(search);
    }
    return count;
}

void Search(benchmark::State& state)
{
    const Folder folder(100);
    const std::string pattern = folder.Pattern("*.");
    const auto own = [&]
    {
        CFileFindInExtSet finder;
        int count = 0;
        for (BOOL goesOn = finder.FindFile(pattern.c_str(), "dbf|dbt|txt", 0); goesOn; ++count)
        {
            goesOn = finder.FindNextFile();
        }
        benchmark::DoNotOptimize(count);
    };
    const auto raw = [&]
    {
        for (const char* extension : {"dbf", "dbt", "txt"})
        {
            benchmark::DoNotOptimize(RawSearch(pattern + extension));
        }
    };
    vorn::bench::Compare(state, 5, own, raw);
}
BENCHMARK(Search)->Name("Services/Search of three extensions to three raw searches (at most 1.5)")->UseManualTime();

} // namespace
