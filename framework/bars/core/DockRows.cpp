#include "framework/bars/core/DockRows.h"

#include <algorithm>
#include <cstdint>

namespace vorn
{
namespace
{

/// Bars [first, last) of a row that stand beside one another.
struct Line
{
    std::size_t first;
    std::size_t last;
};

std::vector<Line> LinesOf(const std::vector<DockItem>& row, int available)
{
    std::vector<Line> lines;
    std::int64_t used = 0;
    for (std::size_t i = 0; i < row.size(); ++i)
    {
        const int length = std::clamp(row[i].length, 0, available);
        if (lines.empty() || used + length > available)
        {
            lines.push_back({i, i});
            used = 0;
        }
        used += length;
        lines.back().last = i + 1;
    }
    return lines;
}

/// Places the bars of a line. @return the line's thickness
int PlaceLine(const std::vector<DockItem>& row, Line line, int available, int across, std::vector<DockBox>& boxes)
{
    int thickness = 0;
    int end = 0;
    for (std::size_t i = line.first; i < line.last; ++i)
    {
        const int length = std::clamp(row[i].length, 0, available);
        // Not beyond the end: the sum of place and length stays a number.
        const int along = std::max(std::min(row[i].wanted, available), end);
        boxes[i] = {along, across, length, std::max(row[i].thickness, 0)};
        end = along + length;
        thickness = std::max(thickness, boxes[i].thickness);
    }
    int limit = available;
    for (std::size_t i = line.last; i > line.first; --i)
    {
        DockBox& box = boxes[i - 1];
        box.along = std::min(box.along, limit - box.length);
        limit = box.along;
    }
    return thickness;
}

} // namespace

DockArrangement ArrangeDockRows(const std::vector<std::vector<DockItem>>& rows, int available)
{
    available = std::max(available, 0);
    DockArrangement all;
    for (const auto& row : rows)
    {
        std::vector<DockBox> boxes(row.size());
        const int start = all.thickness;
        for (const Line line : LinesOf(row, available))
        {
            all.thickness += PlaceLine(row, line, available, all.thickness, boxes);
        }
        for (const DockBox& box : boxes)
        {
            all.length = std::max(all.length, box.along + box.length);
        }
        all.bands.push_back({start, all.thickness});
        all.boxes.push_back(std::move(boxes));
    }
    return all;
}

DockRowChoice ChooseDockRow(std::span<const DockBand> bands, int across)
{
    for (std::size_t i = 0; i < bands.size(); ++i)
    {
        const int quarter = (bands[i].end - bands[i].start) / 4;
        if (bands[i].end <= bands[i].start || across >= bands[i].end)
        {
            continue;
        }
        if (across < bands[i].start + quarter)
        {
            return {i, true};
        }
        return across < bands[i].end - quarter ? DockRowChoice{i, false} : DockRowChoice{i + 1, true};
    }
    return {bands.size(), true};
}

} // namespace vorn
