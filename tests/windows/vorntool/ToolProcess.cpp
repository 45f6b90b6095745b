#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

#include <memory>
#include <thread>

namespace vorn::test
{

namespace
{

struct HandleCloser
{
    void operator()(HANDLE handle) const
    {
        CloseHandle(handle);
    }
};

using UniqueHandle = std::unique_ptr<void, HandleCloser>;

struct Pipe
{
    UniqueHandle read;
    UniqueHandle write;
};

// A pipe whose end for writing the child inherits.
Pipe MakePipe()
{
    SECURITY_ATTRIBUTES inherit = {sizeof inherit, nullptr, TRUE};
    HANDLE read = nullptr;
    HANDLE write = nullptr;
    EXPECT_TRUE(CreatePipe(&read, &write, &inherit, 0));
    SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
    return {UniqueHandle(read), UniqueHandle(write)};
}

std::string ReadAll(HANDLE pipe)
{
    std::string all;
    char buffer[4096];
    DWORD count = 0;
    while (ReadFile(pipe, buffer, sizeof buffer, &count, nullptr) != FALSE && count > 0)
    {
        all.append(buffer, count);
    }
    return all;
}

std::wstring Wide(const std::string& text)
{
    const int size = static_cast<int>(text.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

// Quoted as the system's own splitting undoes it: backslashes count double before a quote.
std::wstring QuotedWord(const std::wstring& word)
{
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word)
    {
        quoted.append(c == L'"' ? backslashes + 1 : 0, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    return quoted.append(backslashes, L'\\') + L'"';
}

std::wstring ToolPath()
{
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring own(path, length);
    return own.substr(0, own.find_last_of(L'\\') + 1) + L"vorntool.exe";
}

std::wstring CommandLineOf(const std::vector<std::string>& words)
{
    std::wstring line = QuotedWord(ToolPath());
    for (const std::string& word : words)
    {
        line += L" " + QuotedWord(Wide(word));
    }
    return line;
}

UniqueHandle Start(std::wstring line, HANDLE output, HANDLE errors)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = output;
    startup.hStdError = errors;
    PROCESS_INFORMATION process = {};
    const BOOL started =
        CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process);
    EXPECT_TRUE(started) << "vorntool.exe does not start: error " << GetLastError();
    if (started == FALSE)
    {
        return nullptr;
    }
    CloseHandle(process.hThread);
    return UniqueHandle(process.hProcess);
}

} // namespace

ToolRun RunVornTool(const std::vector<std::string>& words)
{
    Pipe output = MakePipe();
    Pipe errors = MakePipe();
    const UniqueHandle process = Start(CommandLineOf(words), output.write.get(), errors.write.get());
    output.write.reset();
    errors.write.reset();
    ToolRun run = {~0ul, "", ""};
    std::thread errorReader(
        [&]
        {
            run.errors = ReadAll(errors.read.get());
        });
    run.text = ReadAll(output.read.get());
    errorReader.join();
    if (process != nullptr)
    {
        WaitForSingleObject(process.get(), INFINITE);
        GetExitCodeProcess(process.get(), &run.status);
    }
    return run;
}

void ExpectDone(const std::vector<std::string>& words, const std::string& text)
{
    const ToolRun run = RunVornTool(words);
    EXPECT_EQ(run.status, 0u);
    EXPECT_EQ(run.text, text);
    EXPECT_EQ(run.errors, "");
}

void ExpectFailure(const std::vector<std::string>& words, unsigned long status, const std::string& error)
{
    const ToolRun run = RunVornTool(words);
    EXPECT_EQ(run.status, status);
    EXPECT_EQ(run.text, "");
    EXPECT_EQ(run.errors, error + "\n");
}

} // namespace vorn::test
