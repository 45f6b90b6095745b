#pragma once

#include "apps/chart/core/ChartFeatures.h"

#include <string>
#include <vector>

namespace vorn::chart
{

enum class ShoreKind
{
    Land,   ///< an outline
    Water,  ///< an outline within land
    Border, ///< a line between two countries
};

/// An outline or a line on the earth.
struct Shore
{
    std::string part;
    ShoreKind kind = ShoreKind::Land;
    std::vector<LatLon> points;
    double south = 90;
    double north = -90;
    double west = 180;
    double east = -180;
};

/// Adds the point of a record to the last part, or to a new one when the record names another.
void AddShorePoint(std::vector<Shore>& shores, const FieldOf& field);

/// Divides long straight stretches, which follow a parallel or a meridian, so that they do so in every projection, and
/// computes where each part lies.
void FinishShores(std::vector<Shore>& shores);

} // namespace vorn::chart
