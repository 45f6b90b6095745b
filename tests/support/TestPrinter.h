#pragma once

#include "tests/support/ScratchFolder.h"

#include <windows.h>

#include <string>

namespace vorn::test
{

/// A printer of this program's own that writes PostScript (A4, 300 dots an inch) into a file, where the system's
/// PostScript driver can be installed by a test (Wine). The printer is the default one until the object goes.
class TestPrinter
{
public:
    TestPrinter();
    ~TestPrinter();
    TestPrinter(const TestPrinter&) = delete;
    TestPrinter& operator=(const TestPrinter&) = delete;

    /// Whether there is such a printer here; tests skip where not.
    bool Works() const
    {
        return m_works;
    }

    /// A context of the printer; the caller deletes it.
    HDC CreateContext() const;
    /// What was printed so far.
    std::string Output() const;
    /// Pages in the output.
    int PageCount() const;

private:
    bool AddDriver();
    bool AddPrinter();

    ScratchFolder m_folder;
    std::string m_outputFile;
    HANDLE m_printer = nullptr;
    bool m_works = false;
};

} // namespace vorn::test
