#pragma once

#include <windows.h>

#include <filesystem>
#include <string>
#include <vector>

namespace vorn::test
{

using Lines = std::vector<std::string>;

/// Everything below a key, a line for each value in alphabetical order: its path from the key, then its value as
/// `= 7` (a number), `= "text"` or `= binary 2C 00`. A key without values has a line of its path alone.
Lines RegistryLines(HKEY root, const std::string& path);

/// Bytes as ` 2C 00`.
std::string Hex(const void* data, std::size_t size);

/// Every file below a folder in alphabetical order: its path from there, its size, and when it was last written. Empty
/// when there is no such folder.
Lines FileLines(const std::filesystem::path& folder);

/// The lines that are not in `others`.
Lines Without(const Lines& lines, const Lines& others);

/// The lines one below the other, which shows a difference better.
std::string Joined(const Lines& lines);

} // namespace vorn::test
