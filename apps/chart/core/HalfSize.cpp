#include "apps/chart/core/HalfSize.h"

#include <cstddef>

namespace vorn::chart
{

namespace
{

// Four bytes at once; each sum of four channels has room in 16 bits.
constexpr std::uint32_t kEven = 0x00FF00FF;
constexpr std::uint32_t kHalf = 0x00020002; // rounds to the nearest

std::uint32_t Mean(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d)
{
    const std::uint32_t low = (a & kEven) + (b & kEven) + (c & kEven) + (d & kEven) + kHalf;
    const std::uint32_t high = (a >> 8 & kEven) + (b >> 8 & kEven) + (c >> 8 & kEven) + (d >> 8 & kEven) + kHalf;
    return (low >> 2 & kEven) | ((high >> 2 & kEven) << 8);
}

} // namespace

void HalveSize(const std::uint32_t* source, int width, int height, std::uint32_t* target)
{
    const std::size_t columns = static_cast<std::size_t>(width);
    for (int row = 0; row < height; ++row)
    {
        const std::uint32_t* const upper = source + static_cast<std::size_t>(row) * 4 * columns;
        const std::uint32_t* const lower = upper + 2 * columns;
        for (std::size_t column = 0; column < columns; ++column)
            target[column] = Mean(upper[2 * column], upper[2 * column + 1], lower[2 * column], lower[2 * column + 1]);
        target += columns;
    }
}

} // namespace vorn::chart
