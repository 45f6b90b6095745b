#pragma once

#include "family/TarnUtil/core/Export.h"
#include "framework/core/BaseTypes.h"

#include <vector>

/// Colours of elevation bands, made of the elevations at which they begin: green for the lowest over brown halfway to
/// white for the highest, blended evenly in between. A class that derives from this one may make something of the
/// colours, in both forms of GenColorMap().
class TARNUTIL_API ColorMap
{
public:
    ColorMap() = default;
    ColorMap(const ColorMap&) = default;
    ColorMap& operator=(const ColorMap&) = default;
    virtual ~ColorMap();

    /// Replaces the colours by one for each of `count` elevations, in any unit and order. None for a count below 1 or a
    /// null pointer, and when memory is short. A single height, repeated or not, is green; what is no number counts as
    /// the lowest, an infinite elevation as the lowest or highest.
    virtual void GenColorMap(int count, long* elevations);
    virtual void GenColorMap(int count, double* elevations);

    /// The number of colours.
    int Count() const;
    /// A colour as 0x00RRGGBB; 0 outside of 0 to Count() - 1.
    DWORD Color(int index) const;

protected:
    /// 0x00RRGGBB each.
    std::vector<DWORD> m_colors;
};
