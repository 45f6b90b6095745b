#include "tests/windows/VornSample/ProgramRun.h"

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
    const std::string* title; // null: any
    HWND found;
};

bool IsShownBy(DWORD process, HWND window)
{
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    return owner == process && IsWindowVisible(window) != FALSE;
}

BOOL CALLBACK IsMainWindow(HWND window, LPARAM parameter)
{
    Search& search = *reinterpret_cast<Search*>(parameter);
    if (!IsShownBy(search.process, window) || GetMenu(window) == nullptr)
        return TRUE;
    search.found = window;
    return FALSE;
}

bool HasTitle(HWND window, const std::string& title)
{
    char text[256];
    GetWindowTextA(window, text, sizeof text); // another process's: as the system has it
    return title == text;
}

BOOL CALLBACK IsDialog(HWND window, LPARAM parameter)
{
    Search& search = *reinterpret_cast<Search*>(parameter);
    char className[16];
    GetClassNameA(window, className, sizeof className);
    if (!IsShownBy(search.process, window) || std::string(className) != "#32770" ||
        (search.title != nullptr && !HasTitle(window, *search.title)))
        return TRUE;
    search.found = window;
    return FALSE;
}

HWND WaitForWindow(DWORD process, WNDENUMPROC isIt, const std::string* title)
{
    Search search{process, title, nullptr};
    PumpUntil(
        [&search, isIt]
        {
            EnumWindows(isIt, reinterpret_cast<LPARAM>(&search));
            return search.found != nullptr;
        },
        std::chrono::milliseconds(kDeadlineMs));
    return search.found;
}

} // namespace

ProgramRun::ProgramRun(const std::string& program, const std::string& arguments, const std::string& outputFile)
{
    SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
    // Shared for writing: a process that has ended may keep its handle of the file for a moment.
    const HANDLE output = CreateFileA(outputFile.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherit,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = output;
    std::string command = '"' + program + "\" " + arguments;
    CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &m_process);
    CloseHandle(output);
}

ProgramRun::~ProgramRun()
{
    if (!IsStarted())
        return;
    TerminateProcess(m_process.hProcess, 99);
    CloseHandle(m_process.hThread);
    CloseHandle(m_process.hProcess);
}

bool ProgramRun::IsStarted() const
{
    return m_process.hProcess != nullptr;
}

HWND ProgramRun::MainWindow() const
{
    return WaitForWindow(m_process.dwProcessId, IsMainWindow, nullptr);
}

HWND ProgramRun::Dialog() const
{
    return WaitForWindow(m_process.dwProcessId, IsDialog, nullptr);
}

HWND ProgramRun::Dialog(const std::string& title) const
{
    return WaitForWindow(m_process.dwProcessId, IsDialog, &title);
}

DWORD ProgramRun::ExitCode(DWORD milliseconds) const
{
    DWORD code = 0xFFFFFFFF;
    if (WaitForSingleObject(m_process.hProcess, milliseconds) == WAIT_OBJECT_0)
        GetExitCodeProcess(m_process.hProcess, &code);
    return code;
}

std::string PathBeside(const std::string& name)
{
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string own(path);
    return own.substr(0, own.find_last_of('\\') + 1) + name;
}

} // namespace vorn::test
