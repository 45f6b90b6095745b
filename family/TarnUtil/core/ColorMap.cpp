#include "family/TarnUtil/core/ColorMap.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <new>

namespace
{

struct Rgb
{
    int red;
    int green;
    int blue;
};

/// From the lowest to the highest elevation, evenly spaced.
constexpr std::array<Rgb, 3> kRamp = {{{0x2E, 0x8B, 0x57}, {0x8B, 0x5A, 0x2B}, {0xFF, 0xFF, 0xFF}}};

/// The finite elevations' least and largest, halved so that their difference is finite too.
struct Range
{
    double least = 0;
    double largest = 0;
};

template <typename Height>
Range RangeOf(int count, const Height* elevations)
{
    Range range;
    bool any = false;
    for (const Height* height = elevations; height < elevations + count; ++height)
    {
        const double half = static_cast<double>(*height) / 2;
        if (std::isfinite(half))
        {
            range.least = any ? std::min(range.least, half) : half;
            range.largest = any ? std::max(range.largest, half) : half;
            any = true;
        }
    }
    return range;
}

/// Where an elevation lies in the range, 0 to 1.
double PlaceIn(const Range& range, double elevation)
{
    const double place = (elevation / 2 - range.least) / (range.largest - range.least);
    return place > 0 ? std::min(place, 1.0) : 0; // no number is not above 0
}

DWORD Blended(int from, int to, double share)
{
    return static_cast<DWORD>(std::lround(from + (to - from) * share));
}

DWORD RampColor(double place)
{
    const double scaled = place * (kRamp.size() - 1);
    const std::size_t below = std::min<std::size_t>(static_cast<std::size_t>(scaled), kRamp.size() - 2);
    const Rgb& from = kRamp[below];
    const Rgb& to = kRamp[below + 1];
    const double share = scaled - static_cast<double>(below);
    return Blended(from.red, to.red, share) << 16 | Blended(from.green, to.green, share) << 8 |
           Blended(from.blue, to.blue, share);
}

template <typename Height>
void Generate(int count, const Height* elevations, std::vector<DWORD>& colors) noexcept
try
{
    colors.clear();
    if (count < 1 || elevations == nullptr)
    {
        return;
    }
    colors.reserve(static_cast<std::size_t>(count));
    const Range range = RangeOf(count, elevations);
    for (int i = 0; i < count; ++i)
    {
        colors.push_back(RampColor(PlaceIn(range, static_cast<double>(elevations[i]))));
    }
}
catch (const std::bad_alloc&)
{
    colors.clear();
}

} // namespace

ColorMap::~ColorMap() = default;

void ColorMap::GenColorMap(int count, long* elevations)
{
    Generate(count, elevations, m_colors);
}

void ColorMap::GenColorMap(int count, double* elevations)
{
    Generate(count, elevations, m_colors);
}

int ColorMap::Count() const
{
    return static_cast<int>(m_colors.size());
}

DWORD ColorMap::Color(int index) const
{
    return index >= 0 && index < Count() ? m_colors[static_cast<std::size_t>(index)] : 0;
}
