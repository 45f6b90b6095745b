#pragma once

#include "family/VornChart/core/VornLog.h"
#include "frame/core/Export.h"

/// The process's message log with a window that shows it.
///
/// A host makes it by calling Instance() before anything is logged. From then on the charting library writes into the
/// same object.
class VORNCOMMON_API VornCommonLog : public VornLog
{
public:
    VornCommonLog();
    VornCommonLog(const VornCommonLog& other);
    VornCommonLog& operator=(const VornCommonLog& other);
    ~VornCommonLog() override;

    /// The log that the whole process shares, made on the first call. When there is a plain VornLog already, that one
    /// is returned as it is; what this class adds works on it too.
    static VornCommonLog* Instance();

    /// Deletes the shared log, if there is one; Instance() makes a new one.
    static void FreeInstance();

    /// Shows the log to the user when `level` is as grave as the threshold in force, or graver, and returns when the
    /// window is closed; does nothing otherwise.
    /// @param alternative the alternative threshold counts instead of the normal one; see SetDisplayThresholds().
    void DisplayLog(LogStatus level, bool alternative);
};
