#pragma once

#include "framework/core/FileFaults.h"

#include <algorithm>
#include <cerrno>
#include <functional>
#include <limits>
#include <optional>

namespace vorn::test
{

/// While it lives, file operations of the process fail as told. Steps are counted from 0.
class BrokenFiles : public FileFaults
{
public:
    BrokenFiles();
    ~BrokenFiles() override;
    BrokenFiles(const BrokenFiles&) = delete;
    BrokenFiles& operator=(const BrokenFiles&) = delete;

    /// The step of that number fails; only steps of that kind count when one is given.
    BrokenFiles& FailAt(int step, std::optional<FileStep> kind = {});
    /// So do all after it: no more than that many steps are made, as in a program that was killed.
    BrokenFiles& StopAt(int step);
    /// A failing write leaves that many of its bytes in the file.
    BrokenFiles& WritingFirst(UINT bytes);
    /// Room left on the disk.
    BrokenFiles& DiskSpace(UINT bytes);
    /// Called instead of the first failure.
    BrokenFiles& Then(std::function<void()> action);

    /// Steps (of the kind given) up to now.
    int Steps() const
    {
        return m_steps;
    }
    bool HasFailed() const
    {
        return m_hasFailed;
    }

    SystemError Before(FileStep step, UINT& count) override;

private:
#ifdef _WIN32
    static constexpr SystemError kBroken = ERROR_WRITE_FAULT;
    static constexpr SystemError kFull = ERROR_DISK_FULL;
#else
    static constexpr SystemError kBroken = EIO;
    static constexpr SystemError kFull = ENOSPC;
#endif

    bool IsFailing(FileStep step);
    SystemError Fail(FileStep step, UINT& count);
    SystemError WriteIntoSpace(UINT& count);

    FileFaults* m_before;
    int m_steps = 0;
    int m_failAt = std::numeric_limits<int>::max();
    std::optional<FileStep> m_kind;
    bool m_isStop = false;
    bool m_hasFailed = false;
    UINT m_writtenFirst = 0;
    std::optional<UINT> m_space;
    std::function<void()> m_action;
};

// Inline: programs with the library in a DLL and with the static core share this file.

inline BrokenFiles::BrokenFiles() : m_before(SetFileFaults(this))
{
}

inline BrokenFiles::~BrokenFiles()
{
    SetFileFaults(m_before);
}

inline BrokenFiles& BrokenFiles::FailAt(int step, std::optional<FileStep> kind)
{
    m_failAt = step;
    m_kind = kind;
    return *this;
}

inline BrokenFiles& BrokenFiles::StopAt(int step)
{
    m_failAt = step;
    m_isStop = true;
    return *this;
}

inline BrokenFiles& BrokenFiles::WritingFirst(UINT bytes)
{
    m_writtenFirst = bytes;
    return *this;
}

inline BrokenFiles& BrokenFiles::DiskSpace(UINT bytes)
{
    m_space = bytes;
    return *this;
}

inline BrokenFiles& BrokenFiles::Then(std::function<void()> action)
{
    m_action = std::move(action);
    return *this;
}

inline bool BrokenFiles::IsFailing(FileStep step)
{
    if (m_kind && *m_kind != step)
        return false;
    const int number = m_steps++;
    return number == m_failAt || (m_isStop && number > m_failAt);
}

inline SystemError BrokenFiles::Fail(FileStep step, UINT& count)
{
    if (m_action && !m_hasFailed)
        m_action();
    const bool isFirst = !m_hasFailed;
    m_hasFailed = true;
    if (step == FileStep::Write)
        count = isFirst ? std::min(count, m_writtenFirst) : 0;
    return kBroken;
}

inline SystemError BrokenFiles::WriteIntoSpace(UINT& count)
{
    const bool isFull = count > *m_space;
    count = std::min(count, *m_space);
    *m_space -= count;
    m_hasFailed = m_hasFailed || isFull;
    return isFull ? kFull : 0;
}

inline SystemError BrokenFiles::Before(FileStep step, UINT& count)
{
    if (IsFailing(step))
        return Fail(step, count);
    return step == FileStep::Write && m_space ? WriteIntoSpace(count) : 0;
}

} // namespace vorn::test
