#pragma once

#include "apps/vorntool/core/JsonWriter.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vorn::tool
{

/// A file as a list shows it.
struct ListedFile
{
    std::string path; ///< UTF-8
    std::uint64_t size = 0;
    std::int64_t written = 0; ///< seconds since 1970-01-01 UTC
};

/// The paths, one a line.
std::string PathLines(const std::vector<ListedFile>& files);

/// Sizes lined up at their ends, times and paths, one file a line; then "3 files, 1234 bytes".
std::string LongLines(const std::vector<ListedFile>& files);

/// An array of objects.
void WriteFiles(JsonWriter& json, const std::vector<ListedFile>& files);

} // namespace vorn::tool
