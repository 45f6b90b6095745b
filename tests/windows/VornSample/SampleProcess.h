#pragma once

#include <windows.h>

#include <string>

namespace vorn::test
{

/// The sample host, running beside the test; ended by force when the object goes.
class SampleProcess
{
public:
    /// Whether the sample begins with its startup dialog.
    enum class Startup
    {
        Skipped,
        Shown,
    };

    /// Starts VornSample.exe, which stands beside the test program, with its standard output in a file.
    SampleProcess(const std::string& arguments, const std::string& outputFile, Startup startup = Startup::Skipped);
    ~SampleProcess();
    SampleProcess(const SampleProcess&) = delete;
    SampleProcess& operator=(const SampleProcess&) = delete;

    bool IsStarted() const;

    /// Its main window once it is visible; null when none comes before the deadline.
    HWND MainWindow() const;

    /// A dialog or message box of its, once it is visible; null when none comes before the deadline.
    HWND Dialog() const;

    /// Waits for the end. 0xFFFFFFFF when it does not come before the deadline.
    DWORD ExitCode() const;

private:
    PROCESS_INFORMATION m_process{};
};

} // namespace vorn::test
