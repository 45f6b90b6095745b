#pragma once

#include "frame/core/Export.h"

#include <windows.h>

/// Holds a system critical section for as long as it lives; there is no way to leave it earlier.
class VORNCOMMON_API CriticalSectionLock
{
public:
    /// Enters @p section, waiting as long as needed. The section must be initialised and outlive this object.
    explicit CriticalSectionLock(CRITICAL_SECTION* section);
    CriticalSectionLock(const CriticalSectionLock&) = delete;
    CriticalSectionLock& operator=(const CriticalSectionLock&) = delete;
    ~CriticalSectionLock();

private:
    CRITICAL_SECTION* m_section;
};

// Behind the class, because the compiler exports no copy of what is defined within it.

inline CriticalSectionLock::CriticalSectionLock(CRITICAL_SECTION* section) : m_section(section)
{
    EnterCriticalSection(m_section);
}

inline CriticalSectionLock::~CriticalSectionLock()
{
    LeaveCriticalSection(m_section);
}
