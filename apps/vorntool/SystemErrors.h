#pragma once

#include <windows.h>

#include <string>

namespace vorn::tool
{

/// What the system calls a result code: "error 5: Access denied", without text "error 5".
std::string SystemError(DWORD code);

} // namespace vorn::tool
