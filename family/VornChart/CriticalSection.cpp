#include "family/VornChart/CriticalSection.h"

namespace vorn
{

CriticalSection::CriticalSection(DWORD spinCount)
{
    if (spinCount != 0)
    {
        InitializeCriticalSectionAndSpinCount(&m_section, spinCount);
    }
    else
    {
        InitializeCriticalSection(&m_section);
    }
}

CriticalSection::~CriticalSection()
{
    DeleteCriticalSection(&m_section);
}

bool CriticalSection::Lock()
{
    EnterCriticalSection(&m_section);
    return true;
}

void CriticalSection::Unlock()
{
    LeaveCriticalSection(&m_section);
}

// The system offers no wait with a limit on a critical section, so the wait looks again every millisecond.
bool CriticalSection::TryLock(int milliseconds)
{
    const ULONGLONG start = GetTickCount64();
    while (TryEnterCriticalSection(&m_section) == FALSE)
    {
        if (milliseconds <= 0 || GetTickCount64() - start >= static_cast<ULONGLONG>(milliseconds))
        {
            return false;
        }
        Sleep(1);
    }
    return true;
}

} // namespace vorn
