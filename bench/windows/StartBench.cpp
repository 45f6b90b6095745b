#include <benchmark/benchmark.h>

#include <windows.h>

#include <string>

namespace
{

std::string BesideThisProgram(const char* name)
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string self(path);
    return self.substr(0, self.rfind('\\') + 1) + name;
}

DWORD RunToItsEnd(std::string commandLine)
{
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    DWORD code = STILL_ACTIVE;
    if (CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process) !=
        FALSE)
    {
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &code);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    return code;
}

void Start(benchmark::State& state, const char* program)
{
    const std::string path = BesideThisProgram(program);
    for (auto _ : state)
    {
        if (RunToItsEnd(path) != 0)
        {
            state.SkipWithError("the program did not run");
            break;
        }
    }
}
BENCHMARK_CAPTURE(Start, plain, "bench_start_plain.exe")
    ->Name("Start/plain")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Start, library, "bench_start_library.exe")
    ->Name("Start/with the library")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
