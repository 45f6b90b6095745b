#pragma once

#include "apps/chart/core/ChartFeatures.h"
#include "apps/chart/core/PixelGeometry.h"

#include <vector>

/// @file
/// Chart symbols as geometry, after the shapes that aeronautical charts agree on (ICAO Annex 4, appendix 2; the
/// aeronautical chart users' guides of the United States). Units are pixels of a 96-dpi screen around the symbol's
/// place.

namespace vorn::chart
{

struct ShapePart
{
    enum class Form
    {
        Line,    ///< open
        Outline, ///< closed, not filled
        Area,    ///< closed and filled in the symbol's ink
        Window,  ///< closed and filled with the ground's colour
        Ring,    ///< circle
        Disc,    ///< filled circle
        Dots,    ///< a small square at each point
    };

    Form form = Form::Line;
    PixelLine points;  ///< of a Ring or Disc the middle alone
    double radius = 0; ///< of a Ring, a Disc or each of the Dots
};

struct SymbolShape
{
    std::vector<ShapePart> parts;
    double reach = 0; ///< no part lies farther from the place, in either axis
};

const SymbolShape& ShapeOf(AidKind kind);

/// Fields with a paved runway of more than 8,000 feet show their runways; other paved ones a disc with their longest
/// runway in it, unpaved ones a ring. `up` is the direction of true north in the drawing, degrees clockwise from
/// straight up.
SymbolShape ShapeOf(const Aerodrome& aerodrome, double up);

/// A compass rose of `radius` around a place: a circle with a tick each ten degrees, longer each thirty, a mark at
/// magnetic north. `north` is the direction of magnetic north in the drawing, degrees clockwise from straight up.
SymbolShape CompassRose(double radius, double north);

/// True course of a runway from its lower end.
double CourseOf(const Runway& runway);

} // namespace vorn::chart
