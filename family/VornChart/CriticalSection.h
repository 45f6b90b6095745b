#pragma once

#include "family/TarnUtil/core/SynchObject.h"
#include "framework/core/BaseTypes.h"

namespace vorn
{

/// The chart library's own lock over a system critical section: the same thread may take it again.
class CriticalSection final : public Vornwald::SynchObject
{
public:
    /// @param spinCount how often a waiting thread looks again before it sleeps; 0 means the system's default.
    explicit CriticalSection(DWORD spinCount);
    CriticalSection(const CriticalSection&) = delete;
    CriticalSection& operator=(const CriticalSection&) = delete;
    ~CriticalSection() override;

    bool Lock() override;
    void Unlock() override;
    bool TryLock(int milliseconds) override;

private:
    CRITICAL_SECTION m_section;
};

} // namespace vorn
