#pragma once

#include <windows.h>

namespace vorn
{
/// While it lives, the system answers this thread's requests for damaged files and absent drives with an error instead
/// of a message box.
class QuietErrors
{
public:
    QuietErrors()
    {
        SetThreadErrorMode(GetThreadErrorMode() | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &m_before);
    }
    ~QuietErrors()
    {
        SetThreadErrorMode(m_before, nullptr);
    }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    DWORD m_before = 0;
};
} // namespace vorn
