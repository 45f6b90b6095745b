#pragma once

#include "family/TarnUtil/core/SynchObject.h"
#include "frame/core/Export.h"

#include <windows.h>

namespace Vornwald
{

/// A lock over a system critical section: one thread holds it at a time and may take it again. TryLock is the base
/// class's: it never takes the lock.
class VORNCOMMON_API Win32CriticalSection : public SynchObject
{
public:
    /// @param spinCount how often a waiting thread looks again before it sleeps; 0 means the system's default.
    Win32CriticalSection(DWORD spinCount);
    /// Copies the system's record byte for byte: the copy is no new lock and owns nothing, so it must not be used
    /// longer than the original, and neither of them while it is being copied. To be avoided.
    Win32CriticalSection(const Win32CriticalSection& other);
    /// Gives up the lock that this object owned and becomes a copy as above.
    Win32CriticalSection& operator=(const Win32CriticalSection& other);
    /// Must not be called while the lock is held.
    ~Win32CriticalSection() override;

    /// Waits as long as needed; true.
    bool Lock() override;
    void Unlock() override;

private:
    void GiveUp();

    CRITICAL_SECTION m_section;
    bool m_isOwner; ///< Whether the record is this object's to delete.
};

} // namespace Vornwald
