#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// @file
/// The stored form of a window's placement: ten decimal numbers with commas between them.
namespace vorn
{
/// A rectangle in screen pixels; right and bottom lie outside.
struct PlacedRect
{
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    bool operator==(const PlacedRect&) const = default;
};

/// A window placement, in the order of its stored text.
struct Placement
{
    std::uint32_t flags = 0;
    std::uint32_t showCommand = 0;
    std::int32_t minX = 0;
    std::int32_t minY = 0;
    std::int32_t maxX = 0;
    std::int32_t maxY = 0;
    PlacedRect normal;
    bool operator==(const Placement&) const = default;
};

/// Text "%u,%u,%d,%d,%d,%d,%d,%d,%d,%d" of a placement.
std::string PlacementText(const Placement& placement);

/// Reads a placement text by the rules of the C library's formatted input: blanks before a number are skipped, a
/// comma must follow its number at once, numbers beyond 32 bits stop at the limit, an unsigned number may carry a
/// sign, whatever follows the tenth number is ignored. Nothing unless all ten numbers are there.
std::optional<Placement> ParsePlacement(std::string_view text);

/// Moves a rectangle whose top is above the screen or whose bottom is below it down or up to a top of 50; its
/// height is kept. Left and right stay.
PlacedRect KeptOnScreen(const PlacedRect& rect, std::int32_t screenHeight);
} // namespace vorn
