#pragma once

#include "family/VornChart/core/Export.h"
#include "framework/core/CString.h"

#include <vector>

class Projection;

/// How a chart is looked at: its projection, and where on the screen the map lies. Its text form is
///
///     v1|projection|n|parameter 1|...|parameter n|log X|log Y|map X|map Y|scale|seam|skew|centre lat|centre lon|
///
/// with numbers as in "25", "-1.5e2", whatever the locale. A new view is "v1|1|0|0|0|0|0|0|180|0|25|0|".
///
/// The order of the virtual operations is part of the interface.
class VORNCHART_API ViewDefinition
{
public:
    /// How many parameters a text may have.
    static constexpr int kMaxParams = 64;

    ViewDefinition();
    ViewDefinition(const ViewDefinition&);
    ViewDefinition& operator=(const ViewDefinition&);
    virtual ~ViewDefinition();

    /// Takes the view from its text; the projection may be one that is not there now. False, and no change, for null
    /// and for a text that is not exactly of the form: a number missing or too many, infinite, or without its "|".
    virtual bool Parse(const char* text);

    /// The text from which Parse() makes the same view, to the last bit. A member that is no finite number becomes 0,
    /// a negative projection 0; parameters beyond kMaxParams are left out.
    virtual CString Format() const;

    /// Takes the name under which the settings keep this view; null is empty.
    void LoadKey(const char* name);
    /// That name, never null.
    const char* Key() const;

    /// Gives a projection this view's parameters (those that it has), map pole, centre and skew. The map pole is the
    /// centre; on a cylindrical map its longitude lies opposite to the seam instead.
    /// @return false when the projection refuses one of them; the others have been set.
    bool ApplyTo(Projection& projection) const;

    int mProjection = 1;         ///< number in ProjectionLib
    std::vector<double> mParams; ///< the projection's parameters
    double mLogX = 0;            ///< where the map point (mMapX, mMapY) lies on the screen, in logical units
    double mLogY = 0;
    double mMapX = 0; ///< in Earth radii, skewed
    double mMapY = 0;
    double mScale = 0;     ///< logical units for one Earth radius; 0 lets the chart choose
    double mSeamLon = 180; ///< the meridian along which a cylindrical map is cut, degrees
    double mSkew = 0;      ///< degrees clockwise
    double mCenterLat = 25;
    double mCenterLon = 0;

private:
    CString m_key;
};
