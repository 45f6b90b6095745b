#pragma once

#include <optional>
#include <string>

namespace vorn::tool
{

/// The two versions in a program's or library's version resource, each as four numbers with points.
struct FileVersion
{
    std::string product;
    std::string file;
};

/// Versions of a file; nothing when it has no sound version resource.
std::optional<FileVersion> VersionOfFile(const std::wstring& path);

} // namespace vorn::tool
