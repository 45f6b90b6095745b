#pragma once

#include "frame/core/Export.h"
#include "framework/core/CString.h"

#include <cstdint>
#include <vector>

/// What is counted: one counter a value, from 0. The host application defines the members.
enum APPSTAT : int;

/// Counts how often the user did each of a fixed set of things, over all runs of a program. The counters live in a file
/// that Init reads and SaveStats writes; nothing is saved by itself, not by the destructor either. Nothing throws.
///
/// For one thread at a time.
class VORNCOMMON_API ProgramStats
{
public:
    /// No file, no counters, start date 0.
    ProgramStats();
    ProgramStats(const ProgramStats&) = delete;
    ProgramStats& operator=(const ProgramStats&) = delete;
    ~ProgramStats();

    /// Forgets the counters and the file, and reads those of @p fileName, which is made when it does not exist. What a
    /// damaged or short file lacks is 0; of its counters at most 1,048,576 are read.
    ///
    /// @return false for a new or empty file and for one that begins with four zero bytes: there are no counters, and
    /// the start date is not set. Else true, with the start date now when the file names none; also when the file
    /// cannot be opened (null, a folder, open elsewhere for writing): there are no counters then.
    bool Init(const char* fileName);

    /// Writes the file anew. Failures are silent: the counters stay in memory, and the file as it was when it cannot be
    /// opened.
    /// @return false, without touching the file, when there are no counters.
    bool SaveStats() const;

    /// Counts @p stat once more, up to INT_MAX; makes the counters up to it when it is new. A negative value is
    /// ignored, and so is one whose counter the memory cannot hold.
    void Event(APPSTAT stat);

    /// How often @p stat was counted; 0 for a value without a counter.
    long GetStat(APPSTAT stat) const;

    /// The number of counters: one more than the largest value counted.
    long GetStatCount() const;

    /// When counting began, in seconds since 1970-01-01 00:00 UTC.
    long long GetStartDate() const;

    /// Sets every counter to 0 and the start date to now.
    void ClearStats();

private:
    CString m_fileName;
    std::int64_t m_startDate;
    std::vector<std::int32_t> m_counters;
};
