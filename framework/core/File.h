#pragma once

/// @file
/// Files without buffering. One interface; the system calls behind it are chosen at build time.
#include "framework/core/CString.h"
#include "framework/core/FileException.h"
#include "framework/core/Object.h"
#include "framework/core/Time.h"

/// What is known of a file without opening it.
struct CFileStatus
{
    CTime m_ctime;               ///< Made (outside Windows: last change of the entry).
    CTime m_mtime;               ///< Last written.
    CTime m_atime;               ///< Last read.
    ULONGLONG m_size = 0;        ///< Bytes.
    BYTE m_attribute = 0;        ///< Bits of CFile::Attribute.
    char m_szFullName[260] = ""; ///< Full path; cut at 259 characters.
};

/// An open file. Failed operations throw a CFileException* with the cause and the system's error code, apart from
/// Open() and the status functions, which report by their result.
class HOSTFRAMEWORK_API CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)

    enum OpenFlags : UINT
    {
        modeRead = 0x00000,
        modeWrite = 0x00001,
        modeReadWrite = 0x00002,
        shareCompat = 0x00000,
        shareExclusive = 0x00010, ///< No other opening while this one lasts. Sharing is not enforced outside Windows.
        shareDenyWrite = 0x00020,
        shareDenyRead = 0x00030,
        shareDenyNone = 0x00040,
        modeNoInherit = 0x00080,
        modeCreate = 0x01000,     ///< Makes the file, or cuts an existing one to length 0.
        modeNoTruncate = 0x02000, ///< With modeCreate: an existing file keeps its content.
        typeText = 0x04000,       ///< For CStdioFile: line ends are translated.
        typeBinary = 0x08000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };

// One of the documented names is that of a C library function.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"
    enum Attribute
    {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20
    };
#pragma GCC diagnostic pop

    enum SeekPosition
    {
        begin = 0,
        current = 1,
        end = 2
    };

    /// The handle of a closed file.
    static const HANDLE hFileNull;

    CFile();
    /// Takes a handle of the system; the destructor leaves it open unless Close() is called.
    explicit CFile(HANDLE hFile);
    /// Opens a file; throws when that fails.
    CFile(LPCSTR lpszFileName, UINT nOpenFlags);
    /// Closes an open file that this object opened; never throws.
    ~CFile() override;

    operator HANDLE() const noexcept
    {
        return m_hFile;
    }

    /// FALSE, with `pError` filled when given, when the file cannot be opened. An open file is not closed first.
    virtual BOOL Open(LPCSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    /// Closes without reporting errors; nothing for a closed file.
    virtual void Abort();
    /// Closes; nothing for a closed file.
    virtual void Close();
    /// A second object on the same open file, owned by the caller; both share the position.
    virtual CFile* Duplicate() const;

    /// Reads up to `nCount` bytes; fewer only at the file's end. Returns the number read.
    virtual UINT Read(void* lpBuf, UINT nCount);
    /// Writes all bytes; what does not fit throws (diskFull).
    virtual void Write(const void* lpBuf, UINT nCount);
    /// Hands written data to the device.
    virtual void Flush();
    /// Moves the position; beyond the end is allowed, before the start throws (badSeek). Returns it.
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    void SeekToBegin();
    /// Returns the file's length.
    ULONGLONG SeekToEnd();
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    /// Cuts or extends the file and leaves the position at its new end. Added bytes are 0.
    virtual void SetLength(ULONGLONG dwNewLen);
    /// Reserves a range of bytes for this opening; throws when another one holds it.
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);

    /// FALSE when the facts cannot be had (a closed file gives an empty record and TRUE).
    BOOL GetStatus(CFileStatus& rStatus) const;
    static BOOL GetStatus(LPCSTR lpszFileName, CFileStatus& rStatus);
    static void Rename(LPCSTR lpszOldName, LPCSTR lpszNewName);
    static void Remove(LPCSTR lpszFileName);

    /// Name with extension, name alone, full path; empty when no file was opened by name.
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFilePath() const;
    virtual void SetFilePath(LPCSTR lpszNewName);

    HANDLE m_hFile;

protected:
    BOOL m_bCloseOnDelete = FALSE;
    CString m_strFileName; ///< Full path.
};
