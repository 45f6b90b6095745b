#include "framework/core/FileException.h"

#include <array>
#include <cerrno>
#include <span>

IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace
{
constexpr std::array<const char*, CFileException::endOfFile + 1> kFileTexts = {
    "no error occurred",
    "an unspecified error occurred",
    "the file was not found",
    "the path is invalid",
    "too many files are open",
    "access was denied",
    "the file handle is invalid",
    "the current folder cannot be removed",
    "the folder is full",
    "the position in the file is invalid",
    "the device reported an error",
    "the file is in use by another program",
    "a part of the file is locked by another program",
    "the disk is full",
    "the end of the file was passed",
};

constexpr std::array<const char*, CArchiveException::bufferFull + 1> kArchiveTexts = {
    "no error occurred",
    "an unspecified error occurred",
    "it was opened for writing only",
    "its end was passed",
    "it was opened for reading only",
    "its format is invalid",
    "it holds an object of the wrong kind",
    "it was written by another version",
    "a piece of it is too large",
};

BOOL Describe(std::span<const char* const> texts, int cause, const CString& file, LPSTR buffer, UINT size)
{
    const bool isKnown = cause >= 0 && static_cast<std::size_t>(cause) < texts.size();
    CString text;
    text.Format("%s: %s.", file.IsEmpty() ? "File" : file.GetString(),
                texts[isKnown ? static_cast<std::size_t>(cause) : 1]);
    return vorn::CopyErrorText(text, buffer, size);
}

struct ErrorCause
{
    LONG error;
    int cause;
};

// System error codes (ERROR_...) by number, so that the table is the same everywhere.
constexpr ErrorCause kSystemErrors[] = {
    {2, CFileException::fileNotFound},      // file not found
    {3, CFileException::badPath},           // path not found
    {4, CFileException::tooManyOpenFiles},  // too many open files
    {5, CFileException::accessDenied},      // access denied
    {6, CFileException::invalidFile},       // invalid handle
    {15, CFileException::badPath},          // invalid drive
    {16, CFileException::removeCurrentDir}, // current directory
    {18, CFileException::fileNotFound},     // no more files
    {19, CFileException::accessDenied},     // write protected
    {21, CFileException::hardIO},           // device not ready
    {23, CFileException::hardIO},           // checksum
    {25, CFileException::badSeek},          // seek
    {29, CFileException::hardIO},           // write fault
    {30, CFileException::hardIO},           // read fault
    {31, CFileException::hardIO},           // general failure
    {32, CFileException::sharingViolation}, // sharing violation
    {33, CFileException::lockViolation},    // lock violation
    {38, CFileException::endOfFile},        // end of file
    {39, CFileException::diskFull},         // disk full
    {53, CFileException::badPath},          // network path not found
    {65, CFileException::accessDenied},     // network access denied
    {67, CFileException::badPath},          // network name not found
    {80, CFileException::accessDenied},     // file exists
    {82, CFileException::directoryFull},    // cannot make the folder entry
    {112, CFileException::diskFull},        // disk full
    {123, CFileException::badPath},         // invalid name
    {131, CFileException::badSeek},         // negative seek
    {145, CFileException::accessDenied},    // folder not empty
    {158, CFileException::lockViolation},   // not locked
    {161, CFileException::badPath},         // bad path name
    {167, CFileException::lockViolation},   // lock failed
    {183, CFileException::accessDenied},    // already exists
    {206, CFileException::badPath},         // name too long
    {267, CFileException::badPath},         // not a folder
};

constexpr ErrorCause kLibraryErrors[] = {
    {EPERM, CFileException::accessDenied},
    {ENOENT, CFileException::fileNotFound},
    {EBADF, CFileException::invalidFile},
    {EACCES, CFileException::accessDenied},
    {EEXIST, CFileException::accessDenied},
    {EISDIR, CFileException::accessDenied},
    {ENOTDIR, CFileException::badPath},
    {ENAMETOOLONG, CFileException::badPath},
    {EMFILE, CFileException::tooManyOpenFiles},
    {ENFILE, CFileException::tooManyOpenFiles},
    {EIO, CFileException::hardIO},
    {ENOSPC, CFileException::diskFull},
    {EINVAL, CFileException::badSeek},
    {ESPIPE, CFileException::badSeek},
    {EROFS, CFileException::accessDenied},
    {EAGAIN, CFileException::lockViolation},
    {EDEADLK, CFileException::lockViolation},
    {EFBIG, CFileException::diskFull},
};

int CauseOf(std::span<const ErrorCause> table, LONG error)
{
    for (const ErrorCause& entry : table)
    {
        if (entry.error == error)
        {
            return entry.cause;
        }
    }
    return error == 0 ? CFileException::none : CFileException::genericException;
}
} // namespace

CFileException::CFileException(int cause, LONG lOsError, LPCSTR lpszArchiveName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszArchiveName)
{
}

int CFileException::OsErrorToException(LONG lOsError)
{
    return CauseOf(kSystemErrors, lOsError);
}

int CFileException::ErrnoToException(int nErrno)
{
    return CauseOf(kLibraryErrors, nErrno);
}

void CFileException::ThrowOsError(LONG lOsError, LPCSTR lpszFileName)
{
    if (lOsError != 0)
    {
        AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
    }
}

void CFileException::ThrowErrno(int nErrno, LPCSTR lpszFileName)
{
    if (nErrno != 0)
    {
        AfxThrowFileException(ErrnoToException(nErrno), nErrno, lpszFileName);
    }
}

BOOL CFileException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    if (pnHelpContext != nullptr)
    {
        *pnHelpContext = 0;
    }
    return Describe(kFileTexts, m_cause, m_strFileName, lpszError, nMaxError);
}

CArchiveException::CArchiveException(int cause, LPCSTR lpszArchiveName) : m_cause(cause), m_strFileName(lpszArchiveName)
{
}

BOOL CArchiveException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    if (pnHelpContext != nullptr)
    {
        *pnHelpContext = 0;
    }
    return Describe(kArchiveTexts, m_cause, m_strFileName, lpszError, nMaxError);
}

void AfxThrowFileException(int cause, LONG lOsError, LPCSTR lpszFileName)
{
    throw new CFileException(cause, lOsError, lpszFileName); // ended by the handler's Delete()
}

void AfxThrowArchiveException(int cause, LPCSTR lpszArchiveName)
{
    throw new CArchiveException(cause, lpszArchiveName); // ended by the handler's Delete()
}
