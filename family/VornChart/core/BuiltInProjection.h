#pragma once

#include "family/VornChart/core/Projection.h"

#include <array>
#include <span>

/// @file
/// What the built-in projections have in common: state, checks, skew, parameters and its serialised form. Each of them
/// adds its formulas.
namespace vorn::projections
{
/// One parameter: its name, its value at first, and what it may be.
struct ParameterRule
{
    const char* name;
    double initial;
    double least;
    double most;
};

/// What a kind of projection is.
struct ProjectionFacts
{
    ProjectionKind kind;
    const char* name;
    bool isCylindrical;
    bool isConic;
    bool isConformal;
    bool isGlobe;
    std::span<const ParameterRule> parameters; ///< at most two
};

struct MapPoint
{
    double x;
    double y;
};

/// Any longitude in degrees, brought to (-180, 180].
double HeldLongitude(double lon);

class BuiltInProjection : public Projection
{
public:
    bool Init() final;
    const char* QueryProjectionName() const final;
    bool ReadWrite(char*& cursor, unsigned long& remaining, bool read) final;
    void GetCenterLatLon(double& lat, double& lon) const final;
    void Skew(double& x, double& y) const final;
    void UnSkew(double& x, double& y) const final;
    double GetSkew() const final;
    void SetSkew(double degrees) final;
    void OffsetSkew(double degrees) final;
    bool LLtoXY(double lat, double lon, double& x, double& y) const final;
    bool XYtoLL(double x, double y, double& lat, double& lon) const final;
    void MinMaxMapXY(double& minX, double& minY, double& maxX, double& maxY) const final;
    bool SetMapPole(double lat, double lon) final;
    bool PanTo(double lat, double lon) final;
    bool CenterMapXY(double& x, double& y) const final;
    bool IsCylindrical() const final;
    bool IsConic() const final;
    bool IsConformal() const final;
    bool IsZoomable() const final;
    bool Is3D() const final;
    int NumParams() const final;
    const char* ParamName(int index) const final;
    double GetParamValue(int index) const final;
    bool SetParamValue(int index, double value) final;
    unsigned long BackgroundColor() const final;
    int NMapLimitPts() const final;
    bool MapLimitPt(int index, double& x, double& y) const final;
    double ScaleMult(double lat, double lon) const final;
    double ScaleError(double lat, double lon) const final;

protected:
    /// A rectangle around map points, before the origin is moved to the map pole.
    struct Bounds
    {
        double minX;
        double minY;
        double maxX;
        double maxY;
    };

    explicit BuiltInProjection(const ProjectionFacts& facts);
    BuiltInProjection(const BuiltInProjection&) = default;

    double Parameter(std::size_t index) const
    {
        return m_state.parameters[index];
    }
    double PoleLat() const
    {
        return m_state.poleLat;
    }

    /// Works out what depends on the parameters and the map pole alone, at the end of the constructor too.
    /// @return false when there is no such map; nothing else is asked then.
    virtual bool Prepare() = 0;

    /// From a latitude within 90 and a longitude within 180 degrees of the map pole's, to the map and back. A result
    /// that is no finite number counts as refused.
    virtual bool Forward(double lat, double deltaLon, MapPoint& point) const = 0;
    virtual bool Inverse(const MapPoint& point, double& lat, double& deltaLon) const = 0;

    /// y of the map pole.
    virtual double OriginY() const;

    /// Scale along the parallel at a position that Forward() takes.
    virtual double Scale(double lat, double deltaLon) const = 0;

    virtual int OutlineCount() const = 0;
    virtual MapPoint Outline(int index) const = 0;
    /// Bounds of the outline's corners, unless a curve between them reaches out farther.
    virtual Bounds OutlineBounds() const;

    /// Prepares anew; for the end of a constructor.
    void Refresh();

private:
    struct State
    {
        double poleLat = 0;
        double poleLon = 0;
        double centreLat = 0;
        double centreLon = 0;
        double skew = 0;
        std::array<double, 2> parameters{};
    };

    bool IsLegal(const State& state) const;
    bool TransferState(State& state, char*& cursor, unsigned long& remaining, bool read) const;
    bool HasParameter(int index) const;
    double FromPole(double lon) const;

    const ProjectionFacts* m_facts;
    State m_state;
    double m_skewSin = 0;
    double m_skewCos = 1;
    double m_originY = 0;
    bool m_ready = false;
};

/// What is outside of the map by rounding alone is brought back to its edge; anything farther out is refused.
bool HoldWithin(double& value, double limit);
} // namespace vorn::projections
