#pragma once

#include <windows.h>

#include <string>

namespace vorn::bench
{
/// Makes a file old, as settings files of former installations are: the system keeps what it parsed of an old file, but
/// parses one changed within the last seconds at every call.
inline void MakeOld(const std::string& path)
{
    const HANDLE file = CreateFileA(path.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    const SYSTEMTIME longAgo{2010, 6, 0, 15, 12, 0, 0, 0};
    FILETIME time;
    SystemTimeToFileTime(&longAgo, &time);
    SetFileTime(file, &time, &time, &time);
    CloseHandle(file);
}
} // namespace vorn::bench
