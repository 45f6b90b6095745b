#pragma once

/// @file
/// How control bars share the rows of a dock: arithmetic over lengths. "Along" is the direction of the edge at which
/// the dock lies, "across" the one at right angles to it. All lengths are pixels.
#include <cstddef>
#include <span>
#include <vector>

namespace vorn
{

/// A bar in its row.
struct DockItem
{
    int wanted = 0;    ///< where it would like to begin along the row; may lie outside
    int length = 0;    ///< along
    int thickness = 0; ///< across
};

/// Where a bar comes to stand, from the dock's own corner.
struct DockBox
{
    int along = 0;
    int across = 0;
    int length = 0;
    int thickness = 0;
    bool operator==(const DockBox&) const = default;
};

/// What a row takes across the dock; empty when nothing in it is shown.
struct DockBand
{
    int start = 0;
    int end = 0;
    bool operator==(const DockBand&) const = default;
};

struct DockArrangement
{
    std::vector<std::vector<DockBox>> boxes; ///< as the rows and items were given
    std::vector<DockBand> bands;             ///< one for each row
    int length = 0;                          ///< end of the bar that reaches farthest
    int thickness = 0;                       ///< of all rows
};

/// Arranges rows one behind the other. In a row each bar stands where it wants to, or behind the one before it; what
/// would reach beyond the available length is moved back as far as the others allow. Bars that do not fit one beside
/// the other go on in further lines of their row. A bar longer than the dock is cut.
DockArrangement ArrangeDockRows(const std::vector<std::vector<DockItem>>& rows, int available);

/// Where a bar goes: into a row, or into a new one before that row.
struct DockRowChoice
{
    std::size_t row = 0;
    bool isNew = true;
    bool operator==(const DockRowChoice&) const = default;
};

/// The row for a bar whose middle lies at a place across the dock: the inner half of a row takes it in, its outer
/// quarters, and what lies before and behind all rows, make a new row there.
DockRowChoice ChooseDockRow(std::span<const DockBand> bands, int across);

} // namespace vorn
