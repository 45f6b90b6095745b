#pragma once

#include <windows.h>

#include <string>

namespace vorn::test
{

/// A program that runs beside the test; ended by force when the object goes.
class ProgramRun
{
public:
    /// Starts it with its standard output in a file.
    /// @param program its full path
    ProgramRun(const std::string& program, const std::string& arguments, const std::string& outputFile);
    ~ProgramRun();
    ProgramRun(const ProgramRun&) = delete;
    ProgramRun& operator=(const ProgramRun&) = delete;

    bool IsStarted() const;

    /// Its main window, which has a menu, once it is visible; null when none comes before the deadline.
    HWND MainWindow() const;

    /// A dialog or message box of its, once it is visible; null when none comes before the deadline.
    HWND Dialog() const;

    /// A dialog or message box of its with this title, once it is visible; null when none comes before the deadline.
    HWND Dialog(const std::string& title) const;

    /// Waits for the end. 0xFFFFFFFF when it does not come before the deadline.
    DWORD ExitCode(DWORD milliseconds = 30000) const;

private:
    PROCESS_INFORMATION m_process{};
};

/// The path of a file beside the test program.
std::string PathBeside(const std::string& name);

} // namespace vorn::test
