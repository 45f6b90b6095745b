#pragma once

/// @file
/// A file in memory.
#include "framework/core/File.h"

#include <cstddef>

/// Behaves as a file without having one. Sizes are limited by memory; beyond it a CMemoryException* is thrown.
/// Locking, duplicating and the handle are not offered (CNotSupportedException*).
class HOSTFRAMEWORK_API CMemFile : public CFile
{
    DECLARE_DYNAMIC(CMemFile)

    /// @param nGrowBytes memory is added in multiples of this; 0 makes the file unable to grow.
    explicit CMemFile(UINT nGrowBytes = 1024);
    /// Starts on the caller's block, as Attach().
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    ~CMemFile() override;

    /// Works on the caller's block from now on, which must outlive the use. With `nGrowBytes` 0 its content is the file
    /// and cannot grow; otherwise the file starts empty and moves to memory of its own when the block is full.
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    /// Gives the bytes away and empties the file: the caller's own block if still in use, otherwise a block to be freed
    /// with Free(). Null when there is none.
    BYTE* Detach();
    /// Frees a block that Detach() gave.
    static void Free(BYTE* lpMem) noexcept;

    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void Flush() override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    CFile* Duplicate() const override;
    void Abort() override;
    void Close() override;

private:
    void SetLengthKeepingPosition(std::size_t length);
    void Reserve(std::size_t size);
    void ReleaseBlock() noexcept;

    BYTE* m_data = nullptr;
    std::size_t m_capacity = 0;
    std::size_t m_length = 0;
    std::size_t m_position = 0;
    UINT m_growBytes;
    bool m_ownsBlock = true;
};
