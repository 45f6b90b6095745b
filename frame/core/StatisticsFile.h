#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// @file
/// The bytes of a statistics file, little-endian and without gaps: version (4 bytes), start date (8, signed seconds
/// since 1970-01-01 UTC), count (4, signed), count counters (4 each, signed).
namespace vorn
{

/// Bytes before the counters.
inline constexpr std::size_t kStatisticsHeaderSize = 16;

/// Counters that are read from a file; a larger count is cut to it, whatever the file holds.
inline constexpr std::int32_t kMaxStoredCounters = 1'048'576;

/// What a statistics file says.
struct StoredStatistics
{
    std::optional<std::int64_t> startDate; ///< Nothing when the file ends before it.
    std::vector<std::int32_t> counters;    ///< As many as the file's count says; what the file lacks is 0.
};

/// Reads a file's bytes. A field that the end of the file cuts has zeros for what is missing; a negative count means
/// none. Nothing when the version is 0, as in an empty file; every other version is read alike.
std::optional<StoredStatistics> DecodeStatistics(std::span<const std::byte> file);

/// The bytes of a file of version 1.
std::vector<std::byte> EncodeStatistics(std::int64_t startDate, std::span<const std::int32_t> counters);

} // namespace vorn
