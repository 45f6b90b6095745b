#include "frame/core/StatisticsFile.h"

#include <cstdlib>
#include <span>

namespace
{

void Expect(bool condition)
{
    if (!condition)
    {
        std::abort();
    }
}

// A little-endian number whose missing bytes are 0.
std::int32_t NumberAt(std::span<const unsigned char> file, std::size_t offset)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4 && offset + i < file.size(); ++i)
    {
        number |= static_cast<std::uint32_t>(file[offset + i]) << (8 * i);
    }
    return static_cast<std::int32_t>(number);
}

void CheckStatistics(std::span<const unsigned char> file)
{
    const auto stored = vorn::DecodeStatistics(std::as_bytes(file));
    Expect(stored.has_value() == (NumberAt(file, 0) != 0));
    if (!stored)
    {
        return;
    }
    Expect(stored->startDate.has_value() == (file.size() > 4));
    const std::int64_t count = NumberAt(file, 12);
    const std::int64_t expected = count < 0 ? 0 : count < vorn::kMaxStoredCounters ? count : vorn::kMaxStoredCounters;
    Expect(static_cast<std::int64_t>(stored->counters.size()) == expected);
    for (std::size_t i = 0; i < stored->counters.size() && i <= file.size(); ++i)
    {
        Expect(stored->counters[i] == NumberAt(file, vorn::kStatisticsHeaderSize + 4 * i));
    }
    if (stored->counters.size() <= file.size())
    {
        const auto bytes = vorn::EncodeStatistics(stored->startDate.value_or(0), stored->counters);
        const auto again = vorn::DecodeStatistics(bytes);
        Expect(again && again->counters == stored->counters);
    }
}

} // namespace

/// Any bytes as a statistics file, read as its layout says.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    CheckStatistics(std::span(data, size));
    return 0;
}
