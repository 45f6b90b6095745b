#pragma once

/// @file
/// Failures of the file layer at will, for trying what a program does when its disk fills up or breaks.
#include "framework/core/FileSystem.h"

namespace vorn
{
/// What CFile asks of the system.
enum class FileStep
{
    Open,
    Close,
    Read,
    Write,
    Flush,
    Seek, ///< Asking for the position too.
    Length,
    SetLength,
    Rename, ///< Moving over another file too.
    Remove
};

/// Decides about each step of every file of the process, before it is made.
class HOSTFRAMEWORK_API FileFaults
{
public:
    virtual ~FileFaults();
    /// The error with which the step fails, 0 to let it happen. A failing Write still writes the first `count` bytes;
    /// the decision may lower them.
    virtual SystemError Before(FileStep step, UINT& count) = 0;
};

/// Sets who decides, null for nobody; returns who did. The decider outlives its time.
HOSTFRAMEWORK_API FileFaults* SetFileFaults(FileFaults* faults) noexcept;

/// The decision about a step; 0 when nobody decides.
SystemError FaultBefore(FileStep step, UINT& count);
SystemError FaultBefore(FileStep step);
} // namespace vorn
