#pragma once

/// @file
/// The file of a table, shared with its user.
#include "framework/core/File.h"

#include <span>

namespace vorn
{
/// A file that knows where it stands, so that reading on costs no seek, and that notices when its user moves or changes
/// it through the framework's operations. The functions of its own neither throw nor count as the user's.
class TableFile final : public CFile
{
public:
    bool IsOpen() const
    {
        return m_hFile != hFileNull;
    }
    bool OpenTable(const char* name, UINT flags);
    void CloseTable();
    /// Reads up to `count` bytes; fewer at the end. -1 on failure.
    int ReadAt(LONGLONG position, char* bytes, int count);
    /// Writes at a position; on failure the file is as it was.
    bool WriteAt(LONGLONG position, std::span<const char> bytes);
    /// Moves the file there.
    bool StandAt(LONGLONG position);
    /// Where the file stands; -1 when it cannot be had.
    LONGLONG Position() const;
    /// Bytes in the file; 0 when they cannot be had.
    LONGLONG Length() const;
    /// Grows when the user moves or changes the file.
    unsigned Touches() const
    {
        return m_touches;
    }

    // The user's operations.
    BOOL Open(LPCSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    void Abort() override;
    void Close() override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    void SetLength(ULONGLONG dwNewLen) override;

private:
    static constexpr LONGLONG kUnknown = -1;

    void Touch()
    {
        ++m_touches;
        Forget();
    }
    void Forget()
    {
        m_position = kUnknown;
        m_end = kUnknown;
    }
    bool Append(std::span<const char> bytes);

    LONGLONG m_position = kUnknown;
    LONGLONG m_end = kUnknown; ///< The file's length, once records were written behind it.
    unsigned m_touches = 0;
};
} // namespace vorn
