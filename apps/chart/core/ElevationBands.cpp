#include "apps/chart/core/ElevationBands.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace vorn::chart
{

namespace
{

constexpr double kSmoothing = 0.6; // degrees: how far a known height reaches whole
constexpr double kOutside = -1e9;

/// Where the entry of a row and a column stands among all, row by row.
std::size_t PlaceOf(int row, int columns, int column)
{
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) + static_cast<std::size_t>(column);
}

/// A way through a square of the grid: from one of its sides to another. Sides: 0 south, 1 east, 2 north, 3 west.
struct Way
{
    int from;
    int to;
};

/// The ways of an outline that has the heights on its left, by the corners that are high: bit 0 the south-west one, 1
/// south-east, 2 north-east, 3 north-west. A saddle joins its low corners.
std::vector<Way> WaysOf(unsigned corners)
{
    switch (corners)
    {
    case 1:
        return {{0, 3}};
    case 2:
        return {{1, 0}};
    case 3:
        return {{1, 3}};
    case 4:
        return {{2, 1}};
    case 5:
        return {{0, 3}, {2, 1}};
    case 6:
        return {{2, 0}};
    case 7:
        return {{2, 3}};
    case 8:
        return {{3, 2}};
    case 9:
        return {{0, 2}};
    case 10:
        return {{1, 0}, {3, 2}};
    case 11:
        return {{1, 2}};
    case 12:
        return {{3, 1}};
    case 13:
        return {{0, 1}};
    case 14:
        return {{3, 0}};
    default:
        return {};
    }
}

/// Follows outlines through the squares of a grid that has a rim of low squares around it.
class Tracer
{
public:
    Tracer(const HeightGrid& grid, double level) : m_grid(grid), m_level(level)
    {
        m_ways.resize(PlaceOf(Squares(grid.Rows()), Squares(grid.Columns()), 0));
        for (int row = -1; row < grid.Rows(); ++row)
        {
            for (int column = -1; column < grid.Columns(); ++column)
                m_ways[IndexOf(row, column)] = WaysOf(Corners(row, column));
        }
    }

    /// Outlines in units of the grid: x to the east, y to the north.
    std::vector<std::vector<std::pair<double, double>>> Run()
    {
        std::vector<std::vector<std::pair<double, double>>> outlines;
        for (int row = -1; row < m_grid.Rows(); ++row)
        {
            for (int column = -1; column < m_grid.Columns(); ++column)
            {
                while (!m_ways[IndexOf(row, column)].empty())
                    outlines.push_back(Follow(row, column));
            }
        }
        return outlines;
    }

private:
    static int Squares(int lines)
    {
        return lines + 1;
    }

    std::size_t IndexOf(int row, int column) const
    {
        return PlaceOf(row + 1, Squares(m_grid.Columns()), column + 1);
    }

    double At(int row, int column) const
    {
        const bool inside = row >= 0 && column >= 0 && row < m_grid.Rows() && column < m_grid.Columns();
        return inside ? m_grid.At(row, column) : kOutside;
    }

    unsigned Corners(int row, int column) const
    {
        unsigned corners = 0;
        corners |= At(row, column) >= m_level ? 1u : 0u;
        corners |= At(row, column + 1) >= m_level ? 2u : 0u;
        corners |= At(row + 1, column + 1) >= m_level ? 4u : 0u;
        corners |= At(row + 1, column) >= m_level ? 8u : 0u;
        return corners;
    }

    /// Where the level lies between two heights, as a share of the way. On the rim it is the grid's own edge.
    double Share(double first, double second) const
    {
        if (first == kOutside)
            return 1;
        if (second == kOutside)
            return 0;
        return std::clamp((m_level - first) / (second - first), 0.0, 1.0);
    }

    std::pair<double, double> PointOn(int row, int column, int side) const
    {
        switch (side)
        {
        case 0:
            return {column + Share(At(row, column), At(row, column + 1)), row};
        case 1:
            return {column + 1, row + Share(At(row, column + 1), At(row + 1, column + 1))};
        case 2:
            return {column + Share(At(row + 1, column), At(row + 1, column + 1)), row + 1};
        default:
            return {column, row + Share(At(row, column), At(row + 1, column))};
        }
    }

    /// Takes the way out of a square that comes in by a side; any one for a side below 0.
    std::optional<Way> TakeWay(int row, int column, int from)
    {
        std::vector<Way>& ways = m_ways[IndexOf(row, column)];
        const auto found = std::find_if(ways.begin(), ways.end(),
                                        [from](const Way& way)
                                        {
                                            return from < 0 || way.from == from;
                                        });
        if (found == ways.end())
            return std::nullopt;
        const Way way = *found;
        ways.erase(found);
        return way;
    }

    std::vector<std::pair<double, double>> Follow(int row, int column)
    {
        std::vector<std::pair<double, double>> outline;
        int side = -1;
        while (const std::optional<Way> way = TakeWay(row, column, side))
        {
            outline.push_back(PointOn(row, column, way->to));
            row += way->to == 2 ? 1 : way->to == 0 ? -1 : 0;
            column += way->to == 1 ? 1 : way->to == 3 ? -1 : 0;
            side = (way->to + 2) % 4;
        }
        return outline;
    }

    const HeightGrid& m_grid;
    double m_level;
    std::vector<std::vector<Way>> m_ways;
};

} // namespace

std::vector<KnownHeight> KnownHeights(const std::vector<Aid>& aids, const std::vector<Aerodrome>& aerodromes)
{
    std::vector<KnownHeight> known;
    for (const Aid& aid : aids)
    {
        if (aid.elevation)
            known.push_back({aid.position, static_cast<double>(*aid.elevation)});
    }
    for (const Aerodrome& aerodrome : aerodromes)
    {
        if (aerodrome.elevation)
            known.push_back({aerodrome.position, static_cast<double>(*aerodrome.elevation)});
    }
    return known;
}

HeightGrid::HeightGrid(const Extent& area, int rows, int columns)
    : m_area(area), m_rows(std::max(2, rows)), m_columns(std::max(2, columns)),
      m_heights(static_cast<std::size_t>(m_rows) * static_cast<std::size_t>(m_columns))
{
}

double HeightGrid::Latitude(double row) const
{
    return m_area.south + (m_area.north - m_area.south) * row / (m_rows - 1);
}

double HeightGrid::Longitude(double column) const
{
    return m_area.west + (m_area.east - m_area.west) * column / (m_columns - 1);
}

int HeightGrid::Rows() const
{
    return m_rows;
}

int HeightGrid::Columns() const
{
    return m_columns;
}

double HeightGrid::At(int row, int column) const
{
    return m_heights[PlaceOf(row, m_columns, column)];
}

void HeightGrid::Set(int row, int column, double feet)
{
    m_heights[PlaceOf(row, m_columns, column)] = feet;
}

void HeightGrid::Blend(const std::vector<KnownHeight>& known)
{
    for (int row = 0; row < m_rows; ++row)
    {
        const double lat = Latitude(row);
        const double narrowing = std::cos(lat * std::numbers::pi / 180);
        for (int column = 0; column < m_columns; ++column)
        {
            const double lon = Longitude(column);
            double sum = 0;
            double weights = 0;
            for (const KnownHeight& place : known)
            {
                const double dx = (place.position.Lon() - lon) * narrowing;
                const double dy = place.position.Lat() - lat;
                const double square = dx * dx + dy * dy + kSmoothing * kSmoothing;
                const double weight = 1 / (square * square);
                sum += weight * place.feet;
                weights += weight;
            }
            Set(row, column, weights > 0 ? sum / weights : 0);
        }
    }
}

std::vector<std::vector<LatLon>> HeightGrid::OutlinesOf(double feet) const
{
    std::vector<std::vector<LatLon>> outlines;
    for (const auto& outline : Tracer(*this, feet).Run())
    {
        outlines.emplace_back();
        for (const auto& [x, y] : outline)
            outlines.back().emplace_back(Latitude(y), Longitude(x));
    }
    return outlines;
}

} // namespace vorn::chart
