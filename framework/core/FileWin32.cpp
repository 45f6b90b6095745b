#ifdef _WIN32
#include "framework/core/FileSystem.h"

#include <algorithm>
#include <vector>

namespace vorn
{
namespace
{
SystemError ErrorIf(bool failed)
{
    return failed ? static_cast<SystemError>(GetLastError()) : 0;
}

DWORD AccessOf(UINT flags)
{
    if ((flags & CFile::modeReadWrite) != 0)
    {
        return GENERIC_READ | GENERIC_WRITE;
    }
    return (flags & CFile::modeWrite) != 0 ? GENERIC_WRITE : GENERIC_READ;
}

DWORD SharingOf(UINT flags)
{
    switch (flags & 0x70)
    {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0; // exclusive, and the old compatibility mode, which is treated alike
    }
}

DWORD CreationOf(UINT flags)
{
    if ((flags & CFile::modeCreate) == 0)
    {
        return OPEN_EXISTING;
    }
    return (flags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD HintsOf(UINT flags)
{
    DWORD hints = FILE_ATTRIBUTE_NORMAL;
    hints |= (flags & CFile::osNoBuffer) != 0 ? FILE_FLAG_NO_BUFFERING : 0;
    hints |= (flags & CFile::osWriteThrough) != 0 ? FILE_FLAG_WRITE_THROUGH : 0;
    hints |= (flags & CFile::osRandomAccess) != 0 ? FILE_FLAG_RANDOM_ACCESS : 0;
    hints |= (flags & CFile::osSequentialScan) != 0 ? FILE_FLAG_SEQUENTIAL_SCAN : 0;
    return hints;
}

template <class Facts>
void FillStatus(const Facts& facts, CFileStatus& status)
{
    status.m_size = static_cast<ULONGLONG>(facts.nFileSizeHigh) << 32 | facts.nFileSizeLow;
    status.m_ctime = CTime(facts.ftCreationTime);
    status.m_mtime = CTime(facts.ftLastWriteTime);
    status.m_atime = CTime(facts.ftLastAccessTime);
    status.m_attribute = static_cast<BYTE>(facts.dwFileAttributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL));
}
} // namespace

SystemError OpenFile(const char* path, UINT flags, HANDLE& file)
{
    SECURITY_ATTRIBUTES security = {sizeof(security), nullptr, (flags & CFile::modeNoInherit) == 0};
    file = CreateFileA(path, AccessOf(flags), SharingOf(flags), &security, CreationOf(flags), HintsOf(flags), nullptr);
    return ErrorIf(file == INVALID_HANDLE_VALUE);
}

SystemError CloseFile(HANDLE file)
{
    return ErrorIf(!CloseHandle(file));
}

SystemError DuplicateFile(HANDLE file, HANDLE& copy)
{
    const HANDLE process = GetCurrentProcess();
    return ErrorIf(!DuplicateHandle(process, file, process, &copy, 0, FALSE, DUPLICATE_SAME_ACCESS));
}

SystemError ReadFile(HANDLE file, void* buffer, UINT count, UINT& read)
{
    DWORD got = 0;
    const SystemError error = ErrorIf(!::ReadFile(file, buffer, count, &got, nullptr));
    read = got;
    return error;
}

SystemError WriteFile(HANDLE file, const void* buffer, UINT count)
{
    DWORD put = 0;
    const SystemError error = ErrorIf(!::WriteFile(file, buffer, count, &put, nullptr));
    return error == 0 && put != count ? ERROR_DISK_FULL : error;
}

SystemError FlushFile(HANDLE file)
{
    const SystemError error = ErrorIf(!FlushFileBuffers(file));
    return error == ERROR_ACCESS_DENIED ? 0 : error; // opened for reading: nothing to flush
}

SystemError SeekFile(HANDLE file, LONGLONG offset, UINT from, ULONGLONG& position)
{
    LARGE_INTEGER distance;
    LARGE_INTEGER result;
    distance.QuadPart = offset;
    const bool failed = !SetFilePointerEx(file, distance, &result, from);
    position = static_cast<ULONGLONG>(result.QuadPart);
    return ErrorIf(failed);
}

SystemError FileLength(HANDLE file, ULONGLONG& length)
{
    LARGE_INTEGER size = {};
    const bool failed = !GetFileSizeEx(file, &size);
    length = static_cast<ULONGLONG>(size.QuadPart);
    return ErrorIf(failed);
}

SystemError SetFileLength(HANDLE file, ULONGLONG length)
{
    ULONGLONG position = 0;
    const SystemError error = SeekFile(file, static_cast<LONGLONG>(length), FILE_BEGIN, position);
    return error != 0 ? error : ErrorIf(!SetEndOfFile(file));
}

SystemError LockFileRange(HANDLE file, ULONGLONG position, ULONGLONG count)
{
    return ErrorIf(!LockFile(file, static_cast<DWORD>(position), static_cast<DWORD>(position >> 32),
                             static_cast<DWORD>(count), static_cast<DWORD>(count >> 32)));
}

SystemError UnlockFileRange(HANDLE file, ULONGLONG position, ULONGLONG count)
{
    return ErrorIf(!UnlockFile(file, static_cast<DWORD>(position), static_cast<DWORD>(position >> 32),
                               static_cast<DWORD>(count), static_cast<DWORD>(count >> 32)));
}

SystemError StatusOfFile(HANDLE file, CFileStatus& status)
{
    BY_HANDLE_FILE_INFORMATION facts;
    if (!GetFileInformationByHandle(file, &facts))
    {
        return static_cast<SystemError>(GetLastError());
    }
    FillStatus(facts, status);
    return 0;
}

SystemError StatusOfPath(const char* path, CFileStatus& status)
{
    WIN32_FILE_ATTRIBUTE_DATA facts;
    if (!GetFileAttributesExA(path, GetFileExInfoStandard, &facts))
    {
        return static_cast<SystemError>(GetLastError());
    }
    FillStatus(facts, status);
    return 0;
}

SystemError RenameFile(const char* from, const char* to)
{
    return ErrorIf(!MoveFileA(from, to));
}

SystemError MoveOver(const char* from, const char* to)
{
    const DWORD attributes = GetFileAttributesA(to);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0)
    {
        return ERROR_ACCESS_DENIED; // not every system refuses by itself
    }
    return ErrorIf(!MoveFileExA(from, to, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

SystemError RemoveFile(const char* path)
{
    return ErrorIf(!DeleteFileA(path));
}

CString FullPath(const char* path)
{
    CString full;
    const DWORD needed = *path != '\0' ? GetFullPathNameA(path, 0, nullptr, nullptr) : 0;
    if (needed > 0)
    {
        const DWORD length = GetFullPathNameA(path, needed, full.GetBuffer(static_cast<int>(needed)), nullptr);
        full.ReleaseBuffer(length < needed ? static_cast<int>(length) : 0);
    }
    return full.IsEmpty() ? CString(path) : full;
}

int CauseOfError(SystemError error)
{
    return CFileException::OsErrorToException(error);
}

void KeepError(SystemError error)
{
    SetLastError(static_cast<DWORD>(error));
}

// --- Searching ---

namespace
{
void FillFound(const WIN32_FIND_DATAA& facts, FoundFile& found)
{
    found.name = facts.cFileName;
    found.attributes = facts.dwFileAttributes;
    found.length = static_cast<ULONGLONG>(facts.nFileSizeHigh) << 32 | facts.nFileSizeLow;
    found.created = facts.ftCreationTime;
    found.accessed = facts.ftLastAccessTime;
    found.written = facts.ftLastWriteTime;
}
} // namespace

HANDLE FindFirst(const char* pattern, FoundFile& found, SystemError& error)
{
    WIN32_FIND_DATAA facts;
    const HANDLE search = FindFirstFileA(pattern, &facts);
    error = ErrorIf(search == INVALID_HANDLE_VALUE);
    if (error != 0)
    {
        return nullptr;
    }
    FillFound(facts, found);
    return search;
}

bool FindNext(HANDLE search, FoundFile& found)
{
    WIN32_FIND_DATAA facts;
    const bool isFound = FindNextFileA(search, &facts);
    if (isFound)
    {
        FillFound(facts, found);
    }
    return isFound;
}

void FindEnd(HANDLE search)
{
    FindClose(search);
}
} // namespace vorn
#endif
