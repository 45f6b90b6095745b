#include "frame/Win32CriticalSection.h"

namespace Vornwald
{

Win32CriticalSection::Win32CriticalSection(DWORD spinCount) : m_isOwner(true)
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

Win32CriticalSection::Win32CriticalSection(const Win32CriticalSection& other)
    : SynchObject(other), m_section(other.m_section), m_isOwner(false)
{
}

Win32CriticalSection& Win32CriticalSection::operator=(const Win32CriticalSection& other)
{
    if (this != &other)
    {
        GiveUp();
        SynchObject::operator=(other);
        m_section = other.m_section;
    }
    return *this;
}

Win32CriticalSection::~Win32CriticalSection()
{
    GiveUp();
}

bool Win32CriticalSection::Lock()
{
    EnterCriticalSection(&m_section);
    return true;
}

void Win32CriticalSection::Unlock()
{
    LeaveCriticalSection(&m_section);
}

void Win32CriticalSection::GiveUp()
{
    if (m_isOwner)
    {
        DeleteCriticalSection(&m_section);
        m_isOwner = false;
    }
}

} // namespace Vornwald
