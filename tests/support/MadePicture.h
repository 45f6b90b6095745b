#pragma once

#include "files/core/PackedImage.h"

#include <functional>

namespace vorn::test
{
/// A picture whose pixels come from a function of their place.
PackedImage Made(int width, int height, int depth, const std::function<unsigned(int, int)>& pixel);

/// Pixels that tell nothing of each other.
unsigned Noise(int x, int y);

/// Bars that stand, each of another colour.
unsigned UprightBars(int x, int y);

/// Bars that lie.
unsigned LevelBars(int x, int y);

/// Areas with edges that run across, as on a chart.
unsigned Areas(int x, int y);
} // namespace vorn::test
