#include "framework/core/File.h"

#include "framework/core/FileFaults.h"

#include <cstring>
#include <memory>

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-1));

namespace
{
void CheckArgument(bool isValid)
{
    if (!isValid)
    {
        AfxThrowInvalidArgException();
    }
}

int StartOfName(const CString& path)
{
    int start = path.GetLength();
    while (start > 0 && std::strchr(vorn::kPathSeparators, path[start - 1]) == nullptr)
    {
        --start;
    }
    return start;
}
} // namespace

CFile::CFile() : m_hFile(hFileNull)
{
}

CFile::CFile(HANDLE hFile) : m_hFile(hFile)
{
}

CFile::CFile(LPCSTR lpszFileName, UINT nOpenFlags) : m_hFile(hFileNull)
{
    auto error = std::make_unique<CFileException>();
    if (!CFile::Open(lpszFileName, nOpenFlags, error.get()))
    {
        throw error.release(); // ended by the handler's Delete()
    }
}

CFile::~CFile()
{
    if (m_bCloseOnDelete)
    {
        CFile::Abort();
    }
}

BOOL CFile::Open(LPCSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    HANDLE file = hFileNull;
    const CString path = vorn::FullPath(lpszFileName != nullptr ? lpszFileName : "");
    vorn::SystemError error = vorn::FaultBefore(vorn::FileStep::Open);
    error = error != 0 ? error : vorn::OpenFile(path, nOpenFlags, file);
    if (error == 0)
    {
        m_hFile = file;
        m_bCloseOnDelete = TRUE;
        m_strFileName = path;
        return TRUE;
    }
    if (pError != nullptr)
    {
        pError->m_cause = vorn::CauseOfError(error);
        pError->m_lOsError = error;
        pError->m_strFileName = lpszFileName;
    }
    return FALSE;
}

void CFile::Abort()
{
    const HANDLE file = m_hFile;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (file != hFileNull)
    {
        vorn::CloseFile(file);
    }
}

void CFile::Close()
{
    const HANDLE file = m_hFile;
    const CString path = m_strFileName;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (file != hFileNull)
    {
        const vorn::SystemError fault = vorn::FaultBefore(vorn::FileStep::Close);
        const vorn::SystemError error = vorn::CloseFile(file);
        vorn::ThrowOnError(fault != 0 ? fault : error, path);
    }
}

CFile* CFile::Duplicate() const
{
    HANDLE copy = hFileNull;
    vorn::ThrowOnError(vorn::DuplicateFile(m_hFile, copy), m_strFileName);
    auto* file = new CFile(copy); // the caller owns the duplicate
    file->m_bCloseOnDelete = TRUE;
    file->m_strFileName = m_strFileName;
    return file;
}

UINT CFile::Read(void* lpBuf, UINT nCount)
{
    UINT read = 0;
    if (nCount > 0)
    {
        CheckArgument(lpBuf != nullptr);
        vorn::ThrowOnError(vorn::FaultBefore(vorn::FileStep::Read, nCount), m_strFileName);
        vorn::ThrowOnError(vorn::ReadFile(m_hFile, lpBuf, nCount, read), m_strFileName);
    }
    return read;
}

void CFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount > 0)
    {
        CheckArgument(lpBuf != nullptr);
        const vorn::SystemError fault = vorn::FaultBefore(vorn::FileStep::Write, nCount);
        const vorn::SystemError error = nCount > 0 ? vorn::WriteFile(m_hFile, lpBuf, nCount) : 0;
        vorn::ThrowOnError(fault != 0 ? fault : error, m_strFileName);
    }
}

void CFile::Flush()
{
    if (m_hFile != hFileNull)
    {
        vorn::ThrowOnError(vorn::FaultBefore(vorn::FileStep::Flush), m_strFileName);
        vorn::ThrowOnError(vorn::FlushFile(m_hFile), m_strFileName);
    }
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom)
{
    CheckArgument(nFrom <= end);
    vorn::ThrowOnError(vorn::FaultBefore(vorn::FileStep::Seek), m_strFileName);
    ULONGLONG position = 0;
    vorn::ThrowOnError(vorn::SeekFile(m_hFile, lOff, nFrom, position), m_strFileName);
    return position;
}

void CFile::SeekToBegin()
{
    Seek(0, begin);
}

ULONGLONG CFile::SeekToEnd()
{
    return Seek(0, end);
}

ULONGLONG CFile::GetPosition() const
{
    vorn::ThrowOnError(vorn::FaultBefore(vorn::FileStep::Seek), m_strFileName);
    ULONGLONG position = 0;
    vorn::ThrowOnError(vorn::SeekFile(m_hFile, 0, current, position), m_strFileName);
    return position;
}

ULONGLONG CFile::GetLength() const
{
    vorn::ThrowOnError(vorn::FaultBefore(vorn::FileStep::Length), m_strFileName);
    ULONGLONG length = 0;
    vorn::ThrowOnError(vorn::FileLength(m_hFile, length), m_strFileName);
    return length;
}

void CFile::SetLength(ULONGLONG dwNewLen)
{
    vorn::ThrowOnError(vorn::FaultBefore(vorn::FileStep::SetLength), m_strFileName);
    vorn::ThrowOnError(vorn::SetFileLength(m_hFile, dwNewLen), m_strFileName);
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    vorn::ThrowOnError(vorn::LockFileRange(m_hFile, dwPos, dwCount), m_strFileName);
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    vorn::ThrowOnError(vorn::UnlockFileRange(m_hFile, dwPos, dwCount), m_strFileName);
}

BOOL CFile::GetStatus(CFileStatus& rStatus) const
{
    rStatus = CFileStatus();
    vorn::CopyErrorText(m_strFileName, rStatus.m_szFullName, sizeof(rStatus.m_szFullName));
    return m_hFile == hFileNull || vorn::StatusOfFile(m_hFile, rStatus) == 0;
}

BOOL CFile::GetStatus(LPCSTR lpszFileName, CFileStatus& rStatus)
{
    rStatus = CFileStatus();
    const CString path = vorn::FullPath(lpszFileName != nullptr ? lpszFileName : "");
    vorn::CopyErrorText(path, rStatus.m_szFullName, sizeof(rStatus.m_szFullName));
    return !path.IsEmpty() && vorn::StatusOfPath(path, rStatus) == 0;
}

void CFile::Rename(LPCSTR lpszOldName, LPCSTR lpszNewName)
{
    CheckArgument(lpszOldName != nullptr && lpszNewName != nullptr);
    vorn::ThrowOnError(vorn::FaultBefore(vorn::FileStep::Rename), lpszOldName);
    vorn::ThrowOnError(vorn::RenameFile(lpszOldName, lpszNewName), lpszOldName);
}

void CFile::Remove(LPCSTR lpszFileName)
{
    CheckArgument(lpszFileName != nullptr);
    vorn::ThrowOnError(vorn::FaultBefore(vorn::FileStep::Remove), lpszFileName);
    vorn::ThrowOnError(vorn::RemoveFile(lpszFileName), lpszFileName);
}

CString CFile::GetFileName() const
{
    return m_strFileName.Mid(StartOfName(m_strFileName));
}

CString CFile::GetFileTitle() const
{
    const CString name = CFile::GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFile::GetFilePath() const
{
    return m_strFileName;
}

void CFile::SetFilePath(LPCSTR lpszNewName)
{
    m_strFileName = vorn::FullPath(lpszNewName != nullptr ? lpszNewName : "");
}

namespace vorn
{
SystemError MoveFileOver(const char* from, const char* to)
{
    const SystemError fault = FaultBefore(FileStep::Rename);
    return fault != 0 ? fault : MoveOver(from, to);
}

void ThrowOnError(SystemError error, const char* path)
{
    if (error != 0)
    {
        AfxThrowFileException(CauseOfError(error), error, path);
    }
}
} // namespace vorn
