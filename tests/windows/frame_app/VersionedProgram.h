#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vorn::test
{
using Bytes = std::vector<std::byte>;

/// A version resource whose file version is 1.2.3.4, with the fixed part and nothing else.
Bytes VersionResource(std::uint16_t productMajor, std::uint16_t productMinor);

/// A version resource without the fixed part: its length field says 0.
Bytes VersionResourceWithoutFixedPart();

/// Writes the smallest program file that the system takes for one: headers and, unless `resource` is empty, a resource
/// section with that version resource. Folders on the path are made.
void WriteProgram(const std::string& path, const Bytes& resource);

/// Changes the size that a program written by WriteProgram() claims for its version resource.
void ClaimResourceSize(const std::string& path, std::uint32_t size);
} // namespace vorn::test
