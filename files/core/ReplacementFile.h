#pragma once

/// @file
/// A file that is written whole before it takes the place of another.
#include "framework/core/File.h"

namespace vorn
{
/// The file beside the one to be replaced, named as it with ".tmp". Goes with the object unless it took the place. No
/// function throws.
class ReplacementFile
{
public:
    explicit ReplacementFile(const CString& name);
    ~ReplacementFile();
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    /// Makes the file, empty, for this opening alone.
    bool Make();
    /// For writing.
    CFile& File()
    {
        return m_file;
    }
    /// Ends the writing; false when not all `length` bytes are on the device.
    bool Finish(ULONGLONG length);
    /// Replaces the other file, in one step.
    bool TakePlace();

private:
    CString m_name;
    CString m_ownName;
    CFile m_file;
    bool m_isMade = false;
};
} // namespace vorn
