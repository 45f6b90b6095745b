#include "bench/PairedTimer.h"
#include "bench/windows/OldFile.h"
#include "config/AppRegData.h"

#include <windows.h>

#include <cstdio>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

// Settings against the bare registry calls that each operation cannot do without.
namespace
{
using vorn::bench::Compare;

constexpr char kApplication[] = "VornBench";
constexpr char kSectionPath[] = "Software\\Vornwald\\VornBench\\Units";
constexpr REGSAM kQuery = KEY_QUERY_VALUE | KEY_WOW64_32KEY;
constexpr int kTurn = 100;

std::string IniPath()
{
    char folder[MAX_PATH];
    GetWindowsDirectoryA(folder, MAX_PATH);
    return std::string(folder) + "\\VornBench.INI";
}

/// A scratch application with one number and one text under section "Units"; a key of it stays open.
class Scratch
{
public:
    Scratch()
    {
        CleanUp();
        record.SetModName(kApplication);
        if (!record.WriteVornInt("Units", "Speed", 5) || !record.WriteVornString("Units", "Name", "Denver") ||
            RegOpenKeyExA(HKEY_CURRENT_USER, kSectionPath, 0, kQuery | KEY_SET_VALUE, &key) != ERROR_SUCCESS)
        {
            throw std::runtime_error("the scratch settings could not be made");
        }
    }
    ~Scratch()
    {
        RegCloseKey(key);
        CleanUp();
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    AppRegData record;
    HKEY key = nullptr;

private:
    static void CleanUp()
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\Vornwald\\VornBench");
        DeleteFileA(IniPath().c_str());
    }
};

LSTATUS BareQuery(HKEY key, const char* name)
{
    char value[1024];
    DWORD size = sizeof value;
    DWORD type = 0;
    const LSTATUS status = RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(value), &size);
    benchmark::DoNotOptimize(value);
    return status;
}

void OpenQueryClose()
{
    HKEY key = nullptr;
    RegOpenKeyExA(HKEY_CURRENT_USER, kSectionPath, 0, kQuery, &key);
    BareQuery(key, "Speed");
    RegCloseKey(key);
}

void CreateSetClose(int value)
{
    HKEY key = nullptr;
    RegCreateKeyExA(HKEY_CURRENT_USER, kSectionPath, 0, nullptr, 0, KEY_WRITE | KEY_WOW64_32KEY, nullptr, &key,
                    nullptr);
    RegSetValueExA(key, "Speed", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value);
    RegCloseKey(key);
}

void ReadNumber(benchmark::State& state)
{
    Scratch scratch;
    Compare(
        state, kTurn,
        [&]
        {
            benchmark::DoNotOptimize(scratch.record.ReadVornInt("Units", "Speed", 0));
        },
        [&]
        {
            BareQuery(scratch.key, "Speed");
        });
}
BENCHMARK(ReadNumber)->Name("Settings/ReadNumber to bare query (at most 1.15)")->UseManualTime();

void ReadText(benchmark::State& state)
{
    Scratch scratch;
    Compare(
        state, kTurn,
        [&]
        {
            benchmark::DoNotOptimize(scratch.record.ReadVornString("Units", "Name", ""));
        },
        [&]
        {
            BareQuery(scratch.key, "Name");
        });
}
BENCHMARK(ReadText)->Name("Settings/ReadText to bare query (at most 1.15)")->UseManualTime();

void ReadAgainstOpening(benchmark::State& state)
{
    Scratch scratch;
    Compare(
        state, kTurn,
        [&]
        {
            benchmark::DoNotOptimize(scratch.record.ReadVornInt("Units", "Speed", 0));
        },
        OpenQueryClose);
}
BENCHMARK(ReadAgainstOpening)->Name("Settings/ReadNumber to open, query, close")->UseManualTime();

void WriteNumber(benchmark::State& state)
{
    Scratch scratch;
    int value = 0;
    Compare(
        state, kTurn,
        [&]
        {
            scratch.record.WriteVornInt("Units", "Speed", ++value & 0xFF);
        },
        [&]
        {
            CreateSetClose(++value & 0xFF);
        });
}
BENCHMARK(WriteNumber)->Name("Settings/WriteNumber to create, set, close (at most 0.4)")->UseManualTime();

void Miss(benchmark::State& state)
{
    Scratch scratch;
    Compare(
        state, kTurn,
        [&]
        {
            benchmark::DoNotOptimize(scratch.record.ReadVornInt("Units", "Absent", 0));
        },
        [&]
        {
            benchmark::DoNotOptimize(scratch.record.ReadVornInt("Units", "Speed", 0));
        });
}
BENCHMARK(Miss)->Name("Settings/Miss without INI file to hit (at most 3)")->UseManualTime();

void MissOfSection(benchmark::State& state)
{
    Scratch scratch;
    Compare(
        state, kTurn,
        [&]
        {
            benchmark::DoNotOptimize(scratch.record.ReadVornInt("Absent", "Speed", 0));
        },
        [&]
        {
            benchmark::DoNotOptimize(scratch.record.ReadVornInt("Units", "Speed", 0));
        });
}
BENCHMARK(MissOfSection)->Name("Settings/Miss of section without INI file to hit (at most 3)")->UseManualTime();

/// 100 sections of 100 entries.
void WriteLargeIni()
{
    FILE* file = std::fopen(IniPath().c_str(), "wb");
    for (int section = 0; section < 100; ++section)
    {
        std::fprintf(file, "[Section %d]\r\n", section);
        for (int key = 0; key < 100; ++key)
        {
            std::fprintf(file, "Setting %d=value %d of section %d\r\n", key, key, section);
        }
    }
    std::fclose(file);
    vorn::bench::MakeOld(IniPath());
}

void IniLookup(benchmark::State& state)
{
    Scratch scratch;
    WriteLargeIni();
    scratch.record.ReadVornInt("Section 50", "Setting 50", 0);
    Compare(
        state, kTurn,
        [&]
        {
            benchmark::DoNotOptimize(scratch.record.ReadVornInt("Units", "Setting 50", 0));
        },
        [&]
        {
            BareQuery(scratch.key, "Setting 50");
        });
    state.counters["beyond_query_ns"] = (state.counters["ratio"] - 1) * state.counters["yardstick_ns"];
}
BENCHMARK(IniLookup)
    ->Name("Settings/Lookup in a loaded INI file to bare query (beyond it at most 1000 ns)")
    ->UseManualTime();

/// A parser as small as the task allows: lines into a map of "section|key" to value.
std::map<std::string, std::string> PlainIniRead(const std::string& path)
{
    std::map<std::string, std::string> entries;
    std::string section;
    FILE* file = std::fopen(path.c_str(), "rb");
    char buffer[1024];
    while (std::fgets(buffer, sizeof buffer, file))
    {
        std::string line(buffer);
        line.erase(line.find_last_not_of("\r\n") + 1);
        const std::size_t sign = line.find('=');
        if (line.starts_with('[') && line.ends_with(']'))
        {
            section = line.substr(1, line.size() - 2);
        }
        else if (sign != std::string::npos)
        {
            entries.emplace(section + '|' + line.substr(0, sign), line.substr(sign + 1));
        }
    }
    std::fclose(file);
    return entries;
}

void IniLoad(benchmark::State& state)
{
    Scratch scratch;
    WriteLargeIni();
    const std::string path = IniPath();
    int wrong = 0;
    Compare(
        state, 1,
        [&]
        {
            AppRegData fresh;
            fresh.SetModName(kApplication);
            wrong += fresh.ReadVornString("Section 99", "Setting 99", "") != "value 99 of section 99";
        },
        [&]
        {
            wrong += PlainIniRead(path).size() != 10000;
        });
    if (wrong != 0)
    {
        state.SkipWithError("the INI file was not read right");
    }
}
BENCHMARK(IniLoad)->Name("Settings/Load of an INI file of 10,000 entries to plain read (at most 3)")->UseManualTime();
} // namespace
