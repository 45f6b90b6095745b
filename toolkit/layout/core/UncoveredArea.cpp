#include "toolkit/layout/core/UncoveredArea.h"

#include <algorithm>
#include <cstddef>

namespace vorn
{

namespace
{

bool IsEmpty(const RECT& rect)
{
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

/// The covers' parts within the area, by their left edges.
std::vector<RECT> Clipped(const RECT& area, const std::vector<RECT>& covers)
{
    std::vector<RECT> clipped;
    clipped.reserve(covers.size());
    for (const RECT& cover : covers)
    {
        const RECT part = {std::max(cover.left, area.left), std::max(cover.top, area.top),
                           std::min(cover.right, area.right), std::min(cover.bottom, area.bottom)};
        if (!IsEmpty(part))
        {
            clipped.push_back(part);
        }
    }
    std::sort(clipped.begin(), clipped.end(),
              [](const RECT& one, const RECT& other)
              {
                  return one.left < other.left;
              });
    return clipped;
}

/// Where covers begin and end, from the top of the area to its bottom.
std::vector<LONG> Levels(const RECT& area, const std::vector<RECT>& covers)
{
    std::vector<LONG> levels = {area.top, area.bottom};
    levels.reserve(2 + 2 * covers.size());
    for (const RECT& cover : covers)
    {
        levels.push_back(cover.top);
        levels.push_back(cover.bottom);
    }
    std::sort(levels.begin(), levels.end());
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    return levels;
}

void AppendBand(const RECT& band, const std::vector<RECT>& covers, std::vector<RECT>& pieces)
{
    LONG free = band.left; // from here on
    for (const RECT& cover : covers)
    {
        if (cover.top > band.top || cover.bottom < band.bottom)
        {
            continue;
        }
        if (cover.left > free)
        {
            pieces.push_back({free, band.top, cover.left, band.bottom});
        }
        free = std::max(free, cover.right);
    }
    if (free < band.right)
    {
        pieces.push_back({free, band.top, band.right, band.bottom});
    }
}

bool HaveSameSides(const RECT& one, const RECT& other)
{
    return one.left == other.left && one.right == other.right;
}

/// Lets the band of pieces from `upper` to `lower` take in the one from there to the end, when it has the same columns
/// and lies right below.
/// @return whether it did
bool Join(std::vector<RECT>& pieces, std::size_t upper, std::size_t lower)
{
    const auto middle = pieces.begin() + static_cast<std::ptrdiff_t>(lower);
    const auto first = pieces.begin() + static_cast<std::ptrdiff_t>(upper);
    if (first == middle || middle == pieces.end() || first->bottom != middle->top ||
        !std::equal(first, middle, middle, pieces.end(), HaveSameSides))
    {
        return false;
    }
    const LONG bottom = middle->bottom;
    pieces.erase(middle, pieces.end());
    std::for_each(pieces.begin() + static_cast<std::ptrdiff_t>(upper), pieces.end(),
                  [bottom](RECT& piece)
                  {
                      piece.bottom = bottom;
                  });
    return true;
}

} // namespace

std::vector<RECT> UncoveredArea(const RECT& area, const std::vector<RECT>& covers)
{
    std::vector<RECT> pieces;
    if (IsEmpty(area))
    {
        return pieces;
    }
    const std::vector<RECT> clipped = Clipped(area, covers);
    const std::vector<LONG> levels = Levels(area, clipped);
    std::size_t upper = 0; // where the band above begins
    for (std::size_t i = 1; i < levels.size(); ++i)
    {
        const std::size_t lower = pieces.size();
        AppendBand({area.left, levels[i - 1], area.right, levels[i]}, clipped, pieces);
        if (!Join(pieces, upper, lower))
        {
            upper = lower;
        }
    }
    return pieces;
}

} // namespace vorn
