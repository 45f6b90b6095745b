#ifndef _WIN32
#include "framework/core/FileSystem.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace vorn
{
namespace
{
int DescriptorOf(HANDLE file)
{
    return static_cast<int>(reinterpret_cast<INT_PTR>(file));
}

HANDLE HandleOf(int descriptor)
{
    return reinterpret_cast<HANDLE>(static_cast<INT_PTR>(descriptor));
}

SystemError ErrorIf(bool failed)
{
    return failed ? errno : 0;
}

int OpenModeOf(UINT flags)
{
    int mode = O_CLOEXEC;
    mode |= (flags & CFile::modeReadWrite) != 0 ? O_RDWR : ((flags & CFile::modeWrite) != 0 ? O_WRONLY : O_RDONLY);
    if ((flags & CFile::modeCreate) != 0)
    {
        mode |= O_CREAT | ((flags & CFile::modeNoTruncate) != 0 ? 0 : O_TRUNC);
    }
    return mode;
}

void FillStatus(const struct stat& facts, CFileStatus& status)
{
    status.m_size = static_cast<ULONGLONG>(facts.st_size);
    status.m_ctime = CTime(facts.st_ctime);
    status.m_mtime = CTime(facts.st_mtime);
    status.m_atime = CTime(facts.st_atime);
    const bool isDirectory = S_ISDIR(facts.st_mode);
    const bool isReadOnly = (facts.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    status.m_attribute = static_cast<BYTE>((isDirectory ? CFile::directory : CFile::normal) |
                                           (isReadOnly ? CFile::readOnly : CFile::normal));
}

bool FitsOffset(ULONGLONG value)
{
    return value <= static_cast<ULONGLONG>(std::numeric_limits<off_t>::max());
}

SystemError LockOrUnlock(HANDLE file, ULONGLONG position, ULONGLONG count, short type)
{
    if (!FitsOffset(position) || !FitsOffset(count))
    {
        return EINVAL;
    }
    struct flock range
    {
    };
    range.l_type = type;
    range.l_whence = SEEK_SET;
    range.l_start = static_cast<off_t>(position);
    range.l_len = static_cast<off_t>(count);
    return ErrorIf(fcntl(DescriptorOf(file), F_SETLK, &range) != 0);
}
} // namespace

SystemError OpenFile(const char* path, UINT flags, HANDLE& file)
{
    const int descriptor = open(path, OpenModeOf(flags), 0666);
    if (descriptor < 0)
    {
        return errno;
    }
    struct stat facts
    {
    };
    if (fstat(descriptor, &facts) == 0 && S_ISDIR(facts.st_mode))
    {
        close(descriptor);
        return EISDIR;
    }
    file = HandleOf(descriptor);
    return 0;
}

SystemError CloseFile(HANDLE file)
{
    return ErrorIf(close(DescriptorOf(file)) != 0);
}

SystemError DuplicateFile(HANDLE file, HANDLE& copy)
{
    const int descriptor = fcntl(DescriptorOf(file), F_DUPFD_CLOEXEC, 0);
    copy = HandleOf(descriptor);
    return ErrorIf(descriptor < 0);
}

SystemError ReadFile(HANDLE file, void* buffer, UINT count, UINT& read)
{
    read = 0;
    while (read < count)
    {
        const ssize_t got = ::read(DescriptorOf(file), static_cast<char*>(buffer) + read, count - read);
        if (got < 0 && errno != EINTR)
        {
            return errno;
        }
        if (got == 0)
        {
            break;
        }
        read += got > 0 ? static_cast<UINT>(got) : 0;
    }
    return 0;
}

SystemError WriteFile(HANDLE file, const void* buffer, UINT count)
{
    UINT written = 0;
    while (written < count)
    {
        const ssize_t put = ::write(DescriptorOf(file), static_cast<const char*>(buffer) + written, count - written);
        if (put < 0 && errno != EINTR)
        {
            return errno;
        }
        written += put > 0 ? static_cast<UINT>(put) : 0;
    }
    return 0;
}

SystemError FlushFile(HANDLE file)
{
    const bool failed = fsync(DescriptorOf(file)) != 0;
    return failed && errno != EINVAL && errno != EROFS ? errno : 0; // pipes and devices need no flushing
}

SystemError SeekFile(HANDLE file, LONGLONG offset, UINT from, ULONGLONG& position)
{
    constexpr int kWhence[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    const off_t result = lseek(DescriptorOf(file), offset, kWhence[from]);
    position = static_cast<ULONGLONG>(result);
    return ErrorIf(result < 0);
}

SystemError FileLength(HANDLE file, ULONGLONG& length)
{
    struct stat facts
    {
    };
    const bool failed = fstat(DescriptorOf(file), &facts) != 0;
    length = static_cast<ULONGLONG>(facts.st_size);
    return ErrorIf(failed);
}

SystemError SetFileLength(HANDLE file, ULONGLONG length)
{
    if (!FitsOffset(length))
    {
        return EINVAL;
    }
    const auto size = static_cast<off_t>(length);
    return ErrorIf(ftruncate(DescriptorOf(file), size) != 0 || lseek(DescriptorOf(file), size, SEEK_SET) < 0);
}

SystemError LockFileRange(HANDLE file, ULONGLONG position, ULONGLONG count)
{
    return LockOrUnlock(file, position, count, F_WRLCK);
}

SystemError UnlockFileRange(HANDLE file, ULONGLONG position, ULONGLONG count)
{
    return LockOrUnlock(file, position, count, F_UNLCK);
}

SystemError StatusOfFile(HANDLE file, CFileStatus& status)
{
    struct stat facts
    {
    };
    if (fstat(DescriptorOf(file), &facts) != 0)
    {
        return errno;
    }
    FillStatus(facts, status);
    return 0;
}

SystemError StatusOfPath(const char* path, CFileStatus& status)
{
    struct stat facts
    {
    };
    if (stat(path, &facts) != 0)
    {
        return errno;
    }
    FillStatus(facts, status);
    return 0;
}

SystemError RenameFile(const char* from, const char* to)
{
    if (access(to, F_OK) == 0)
    {
        return EEXIST; // an existing file is never replaced
    }
    return ErrorIf(std::rename(from, to) != 0);
}

SystemError MoveOver(const char* from, const char* to)
{
    CFileStatus status;
    if (StatusOfPath(to, status) == 0 && (status.m_attribute & CFile::readOnly) != 0)
    {
        return EACCES; // the folder's permissions alone would let it go
    }
    return ErrorIf(std::rename(from, to) != 0);
}

SystemError RemoveFile(const char* path)
{
    return ErrorIf(unlink(path) != 0);
}

CString FullPath(const char* path)
{
    std::error_code error;
    const std::filesystem::path full = *path != '\0' ? std::filesystem::absolute(path, error) : std::filesystem::path();
    return error ? CString(path) : CString(full.lexically_normal().c_str());
}

int CauseOfError(SystemError error)
{
    return CFileException::ErrnoToException(error);
}

void KeepError(SystemError error)
{
    errno = error;
}
} // namespace vorn
#endif
