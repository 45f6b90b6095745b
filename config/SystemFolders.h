#pragma once

#include <string>

namespace vorn
{

/// Folder of the host's executable, with its backslash.
std::string ExecutableFolder();

/// A folder of the shell (a CSIDL code) as the shell names it; empty when it has none.
std::string ShellFolder(int code);

/// The full path that the system makes of a text; the text itself where that has 260 characters or more, or does not
/// exist.
std::string FullPath(const std::string& path);

/// Whether a file (or folder) of that name is there.
bool FileExists(const std::string& path);

/// Whether a folder, given with its backslash, holds a file whose name ends in ".dat".
bool HoldsDatFile(const std::string& folder);

} // namespace vorn
