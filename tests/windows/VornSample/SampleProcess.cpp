#include "tests/windows/VornSample/SampleProcess.h"

#include "tests/support/PumpUntil.h"

#include <chrono>

namespace vorn::test
{

namespace
{

constexpr DWORD kDeadlineMs = 30000;

struct Search
{
    DWORD process;
    HWND found;
};

BOOL CALLBACK IsMainWindow(HWND window, LPARAM parameter)
{
    Search& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != search.process || !IsWindowVisible(window) || GetMenu(window) == nullptr)
        return TRUE;
    search.found = window;
    return FALSE;
}

BOOL CALLBACK IsDialog(HWND window, LPARAM parameter)
{
    Search& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    char className[16];
    GetWindowThreadProcessId(window, &process);
    GetClassNameA(window, className, sizeof className);
    if (process != search.process || !IsWindowVisible(window) || std::string(className) != "#32770")
        return TRUE;
    search.found = window;
    return FALSE;
}

HWND WaitForWindow(DWORD process, WNDENUMPROC isIt)
{
    Search search{process, nullptr};
    PumpUntil(
        [&search, isIt]
        {
            EnumWindows(isIt, reinterpret_cast<LPARAM>(&search));
            return search.found != nullptr;
        },
        std::chrono::milliseconds(kDeadlineMs));
    return search.found;
}

std::string ProgramPath()
{
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string own(path);
    return own.substr(0, own.find_last_of('\\') + 1) + "VornSample.exe";
}

} // namespace

SampleProcess::SampleProcess(const std::string& arguments, const std::string& outputFile, Startup startup)
{
    SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
    // Shared for writing: a process that has ended may keep its handle of the file for a moment.
    const HANDLE output = CreateFileA(outputFile.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherit,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = output;
    const char* const first = startup == Startup::Skipped ? "--no-startup " : "";
    std::string command = '"' + ProgramPath() + "\" " + first + arguments;
    CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &m_process);
    CloseHandle(output);
}

SampleProcess::~SampleProcess()
{
    if (!IsStarted())
        return;
    TerminateProcess(m_process.hProcess, 99);
    CloseHandle(m_process.hThread);
    CloseHandle(m_process.hProcess);
}

bool SampleProcess::IsStarted() const
{
    return m_process.hProcess != nullptr;
}

HWND SampleProcess::MainWindow() const
{
    return WaitForWindow(m_process.dwProcessId, IsMainWindow);
}

HWND SampleProcess::Dialog() const
{
    return WaitForWindow(m_process.dwProcessId, IsDialog);
}

DWORD SampleProcess::ExitCode() const
{
    DWORD code = 0xFFFFFFFF;
    if (WaitForSingleObject(m_process.hProcess, kDeadlineMs) == WAIT_OBJECT_0)
        GetExitCodeProcess(m_process.hProcess, &code);
    return code;
}

} // namespace vorn::test
