#include "frame/core/StatisticsFile.h"

#include <algorithm>
#include <concepts>
#include <type_traits>

namespace vorn
{

namespace
{

constexpr std::uint32_t kVersion = 1;

/// Takes a number off the front of the bytes; what they lack is 0.
template <std::integral Number>
Number Take(std::span<const std::byte>& bytes)
{
    const std::size_t present = std::min(bytes.size(), sizeof(Number));
    std::make_unsigned_t<Number> value = 0;
    for (std::size_t i = 0; i < present; ++i)
    {
        value |= std::to_integer<std::make_unsigned_t<Number>>(bytes[i]) << (8 * i);
    }
    bytes = bytes.subspan(present);
    return static_cast<Number>(value);
}

template <std::integral Number>
void Put(std::vector<std::byte>& bytes, Number number)
{
    const auto value = static_cast<std::make_unsigned_t<Number>>(number);
    for (std::size_t i = 0; i < sizeof(Number); ++i)
    {
        bytes.push_back(static_cast<std::byte>(value >> (8 * i)));
    }
}

std::vector<std::int32_t> TakeCounters(std::span<const std::byte> bytes)
{
    const std::int32_t count = Take<std::int32_t>(bytes);
    std::vector<std::int32_t> counters(static_cast<std::size_t>(std::clamp(count, 0, kMaxStoredCounters)));
    for (auto counter = counters.begin(); counter != counters.end() && !bytes.empty(); ++counter)
    {
        *counter = Take<std::int32_t>(bytes);
    }
    return counters;
}

} // namespace

std::optional<StoredStatistics> DecodeStatistics(std::span<const std::byte> file)
{
    if (Take<std::uint32_t>(file) == 0)
    {
        return std::nullopt;
    }
    StoredStatistics stored;
    if (!file.empty())
    {
        stored.startDate = Take<std::int64_t>(file);
    }
    stored.counters = TakeCounters(file);
    return stored;
}

std::vector<std::byte> EncodeStatistics(std::int64_t startDate, std::span<const std::int32_t> counters)
{
    std::vector<std::byte> bytes;
    bytes.reserve(kStatisticsHeaderSize + counters.size_bytes());
    Put(bytes, kVersion);
    Put(bytes, startDate);
    Put(bytes, static_cast<std::int32_t>(counters.size()));
    for (const std::int32_t counter : counters)
    {
        Put(bytes, counter);
    }
    return bytes;
}

} // namespace vorn
