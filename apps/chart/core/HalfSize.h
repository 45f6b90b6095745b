#pragma once

#include <cstdint>

namespace vorn::chart
{

/// Makes a picture of half the size: each pixel of four bytes is the mean of two by two. The source has `2 * width` by
/// `2 * height` pixels; both pictures' rows lie one behind the other.
void HalveSize(const std::uint32_t* source, int width, int height, std::uint32_t* target);

} // namespace vorn::chart
