#pragma once

/// @file
/// Buffered files and text lines.
#include "framework/core/File.h"

#include <cstdio>

/// A buffered file of the C library. Opened with typeText, or with neither type flag, it is a text file: line ends are
/// one "\n" in the program and the system's own in the file; with typeBinary bytes pass unchanged. Locking and
/// duplicating are not offered (CNotSupportedException*).
class HOSTFRAMEWORK_API CStdioFile : public CFile
{
    DECLARE_DYNAMIC(CStdioFile)

    CStdioFile();
    /// Uses an open stream, which stays open when this object ends unless Close() is called.
    explicit CStdioFile(std::FILE* pOpenStream);
    CStdioFile(LPCSTR lpszFileName, UINT nOpenFlags);
    ~CStdioFile() override;

    BOOL Open(LPCSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    /// Reads a line of at most nMax - 1 characters with its "\n"; null at the end of the file.
    virtual LPSTR ReadString(LPSTR lpsz, UINT nMax);
    /// Reads a line of any length without its line end; FALSE, with an empty text, at the end of the file.
    virtual BOOL ReadString(CString& rString);
    /// Writes the characters up to the terminating zero; adds no line end.
    virtual void WriteString(LPCSTR lpsz);

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

    std::FILE* m_pStream = nullptr;

private:
    void CheckOpen() const;
    [[noreturn]] void ThrowLastError(int cause) const;

    bool m_isText = true;
};
