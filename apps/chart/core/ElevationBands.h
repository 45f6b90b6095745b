#pragma once

#include "apps/chart/core/ChartFeatures.h"
#include "apps/chart/core/Graticule.h"

#include <vector>

/// @file
/// Heights of a region, blended between the places where they are known, as areas for each band of heights.

namespace vorn::chart
{

struct KnownHeight
{
    LatLon position;
    double feet = 0;
};

/// The heights of all aids and aerodromes that have one.
std::vector<KnownHeight> KnownHeights(const std::vector<Aid>& aids, const std::vector<Aerodrome>& aerodromes);

/// Heights at the crossings of a grid of parallels and meridians.
class HeightGrid
{
public:
    /// The first and the last lines run along the edges of `area`. At least two of each.
    HeightGrid(const Extent& area, int rows, int columns);

    /// Blends the known heights: each counts by its distance, the near ones far more. All 0 without any.
    void Blend(const std::vector<KnownHeight>& known);

    int Rows() const;
    int Columns() const;
    double At(int row, int column) const;
    void Set(int row, int column, double feet);

    /// Outlines of where the height is `feet` or more, closed without a doubled last point; an outline within another
    /// is a hollow (fill by even and odd). The grid's rim closes what reaches it.
    std::vector<std::vector<LatLon>> OutlinesOf(double feet) const;

private:
    double Latitude(double row) const;
    double Longitude(double column) const;

    Extent m_area;
    int m_rows;
    int m_columns;
    std::vector<double> m_heights;
};

} // namespace vorn::chart
