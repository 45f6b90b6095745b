#pragma once

/// @file
/// Failures of file operations and of archives.
#include "framework/core/CString.h"
#include "framework/core/Exception.h"

/// A file operation failed.
class HOSTFRAMEWORK_API CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)

    /// What went wrong, independent of the system.
    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG lOsError = -1, LPCSTR lpszArchiveName = nullptr);

    /// Cause that stands for a system error code (ERROR_...).
    static int OsErrorToException(LONG lOsError);
    /// Cause that stands for a C library error number (errno).
    static int ErrnoToException(int nErrno);
    /// Throws an exception for a system error code; returns for 0.
    static void ThrowOsError(LONG lOsError, LPCSTR lpszFileName = nullptr);
    /// Throws an exception for a C library error number; returns for 0.
    static void ThrowErrno(int nErrno, LPCSTR lpszFileName = nullptr);

    BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;

    int m_cause;           ///< One of the causes above.
    LONG m_lOsError;       ///< The system's error code (errno outside Windows); -1 when unknown.
    CString m_strFileName; ///< The file concerned; may be empty.
};

/// An archive could not be read or written.
class HOSTFRAMEWORK_API CArchiveException : public CException
{
    DECLARE_DYNAMIC(CArchiveException)

    enum
    {
        none,
        genericException,
        readOnly,
        endOfFile,
        writeOnly,
        badIndex,
        badClass,
        badSchema,
        bufferFull
    };

    explicit CArchiveException(int cause = none, LPCSTR lpszArchiveName = nullptr);

    BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;

    int m_cause;
    CString m_strFileName;
};

[[noreturn]] HOSTFRAMEWORK_API void AfxThrowFileException(int cause, LONG lOsError = -1, LPCSTR lpszFileName = nullptr);
[[noreturn]] HOSTFRAMEWORK_API void AfxThrowArchiveException(int cause, LPCSTR lpszArchiveName = nullptr);
