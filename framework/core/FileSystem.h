#pragma once

/// @file
/// The system calls under the file classes. One implementation for Windows, one for other systems.
#include "framework/core/File.h"

#include <span>

namespace vorn
{
/// 0, or the error code of the system: ERROR_... on Windows, errno elsewhere.
using SystemError = LONG;

/// A search: what was found at one step.
struct FoundFile
{
    CString name;         ///< Without folder.
    DWORD attributes = 0; ///< FILE_ATTRIBUTE_... bits.
    ULONGLONG length = 0;
    FILETIME created{};
    FILETIME accessed{};
    FILETIME written{};
};

inline constexpr DWORD kAttributeReadOnly = 0x1;
inline constexpr DWORD kAttributeHidden = 0x2;
inline constexpr DWORD kAttributeSystem = 0x4;
inline constexpr DWORD kAttributeDirectory = 0x10;
inline constexpr DWORD kAttributeArchive = 0x20;
inline constexpr DWORD kAttributeNormal = 0x80;
inline constexpr DWORD kAttributeTemporary = 0x100;
inline constexpr DWORD kAttributeCompressed = 0x800;

SystemError OpenFile(const char* path, UINT flags, HANDLE& file);
SystemError CloseFile(HANDLE file);
SystemError DuplicateFile(HANDLE file, HANDLE& copy);
SystemError ReadFile(HANDLE file, void* buffer, UINT count, UINT& read);
/// `written` may be short only together with an error.
SystemError WriteFile(HANDLE file, const void* buffer, UINT count);
SystemError FlushFile(HANDLE file);
/// The same call as for a position: offset 0 from CFile::current asks for it.
SystemError SeekFile(HANDLE file, LONGLONG offset, UINT from, ULONGLONG& position);
SystemError FileLength(HANDLE file, ULONGLONG& length);
/// Cuts or extends at `length` and moves the position there.
SystemError SetFileLength(HANDLE file, ULONGLONG length);
SystemError LockFileRange(HANDLE file, ULONGLONG position, ULONGLONG count);
SystemError UnlockFileRange(HANDLE file, ULONGLONG position, ULONGLONG count);
SystemError StatusOfFile(HANDLE file, CFileStatus& status);
SystemError StatusOfPath(const char* path, CFileStatus& status);
SystemError RenameFile(const char* from, const char* to);
SystemError RemoveFile(const char* path);
/// Gives a file the name of another, which it replaces in one step. A file that may not be written is not replaced.
SystemError MoveOver(const char* from, const char* to);
/// The same for use outside the file classes.
HOSTFRAMEWORK_API SystemError MoveFileOver(const char* from, const char* to);

/// Absolute form of a path; the path itself when it cannot be made.
CString FullPath(const char* path);
/// Characters that may stand between the parts of a path.
inline constexpr const char* kPathSeparators =
#ifdef _WIN32
    "\\/:";
#else
    "/";
#endif
/// Cause (CFileException) of an error code of this system.
int CauseOfError(SystemError error);
/// Throws the exception for an error code; nothing for 0.
void ThrowOnError(SystemError error, const char* path);

/// Begins a search by a path whose last part may hold "*" and "?". Null, with the error kept, when nothing is found.
HANDLE FindFirst(const char* pattern, FoundFile& found, SystemError& error);
bool FindNext(HANDLE search, FoundFile& found);
void FindEnd(HANDLE search);
/// Makes an error the thread's last one.
void KeepError(SystemError error);
} // namespace vorn
