#include "family/VornChart/core/BuiltInProjection.h"

#include "family/VornChart/core/Ellipsoid.h"

#include <algorithm>
#include <cmath>

namespace vorn::projections
{
namespace
{
constexpr double kRoundingSlack = 1e-12; // of the limit

bool IsLatitude(double lat)
{
    return lat >= -90 && lat <= 90;
}

/// Exact at quarter turns.
void SineAndCosine(double degrees, double& sine, double& cosine)
{
    int quarter = 0;
    const double rest = std::remquo(degrees, 90, &quarter) * kRadian;
    const double s = std::sin(rest);
    const double c = std::cos(rest);
    const bool swapped = (quarter & 1) != 0;
    sine = (quarter & 2) != 0 ? -(swapped ? c : s) : (swapped ? c : s);
    cosine = ((quarter + 1) & 2) != 0 ? -(swapped ? s : c) : (swapped ? s : c);
}
} // namespace

double HeldLongitude(double lon)
{
    if (lon > -180 && lon <= 180)
    {
        return lon;
    }
    const double rest = std::remainder(lon, 360);
    return rest == -180 ? 180 : rest;
}

bool HoldWithin(double& value, double limit)
{
    if (!(std::abs(value) <= limit * (1 + kRoundingSlack)))
    {
        return false;
    }
    value = std::clamp(value, -limit, limit);
    return true;
}

BuiltInProjection::BuiltInProjection(const ProjectionFacts& facts) : m_facts(&facts)
{
    std::transform(facts.parameters.begin(), facts.parameters.end(), m_state.parameters.begin(),
                   [](const ParameterRule& rule)
                   {
                       return rule.initial;
                   });
}

void BuiltInProjection::Refresh()
{
    m_ready = Prepare();
    m_originY = m_ready ? OriginY() : 0;
    m_ready = m_ready && std::isfinite(m_originY);
    SineAndCosine(m_state.skew, m_skewSin, m_skewCos);
}

double BuiltInProjection::OriginY() const
{
    MapPoint origin{};
    return Forward(m_state.poleLat, 0, origin) ? origin.y : std::nan("");
}

bool BuiltInProjection::Init()
{
    return m_ready;
}

const char* BuiltInProjection::QueryProjectionName() const
{
    return m_facts->name;
}

double BuiltInProjection::FromPole(double lon) const
{
    const double delta = lon - m_state.poleLon;
    return delta >= -180 && delta <= 180 ? delta : std::remainder(delta, 360);
}

bool BuiltInProjection::LLtoXY(double lat, double lon, double& x, double& y) const
{
    MapPoint point{};
    if (!m_ready || !IsLatitude(lat) || !std::isfinite(lon) || !Forward(lat, FromPole(lon), point))
    {
        return false;
    }
    point.y -= m_originY;
    if (!std::isfinite(point.x) || !std::isfinite(point.y))
    {
        return false;
    }
    x = point.x;
    y = point.y;
    return true;
}

bool BuiltInProjection::XYtoLL(double x, double y, double& lat, double& lon) const
{
    double foundLat = 0;
    double delta = 0;
    if (!m_ready || !std::isfinite(x) || !std::isfinite(y) || !Inverse({x, y + m_originY}, foundLat, delta) ||
        !HoldWithin(foundLat, 90) || !std::isfinite(delta))
    {
        return false;
    }
    lat = foundLat;
    lon = HeldLongitude(m_state.poleLon + delta);
    return true;
}

double BuiltInProjection::ScaleMult(double lat, double lon) const
{
    MapPoint point{};
    if (!m_ready || !IsLatitude(lat) || !std::isfinite(lon) || !Forward(lat, FromPole(lon), point))
    {
        return 0;
    }
    const double scale = Scale(lat, FromPole(lon));
    return std::isfinite(scale) ? scale : 0;
}

double BuiltInProjection::ScaleError(double lat, double lon) const
{
    return ScaleMult(lat, lon) - 1;
}

void BuiltInProjection::GetCenterLatLon(double& lat, double& lon) const
{
    lat = m_state.centreLat;
    lon = m_state.centreLon;
}

bool BuiltInProjection::SetMapPole(double lat, double lon)
{
    if (!IsLatitude(lat) || !std::isfinite(lon))
    {
        return false;
    }
    const State before = m_state;
    m_state.poleLat = m_state.centreLat = lat;
    m_state.poleLon = m_state.centreLon = HeldLongitude(lon);
    Refresh();
    if (m_ready)
    {
        return true;
    }
    m_state = before;
    Refresh();
    return false;
}

bool BuiltInProjection::PanTo(double lat, double lon)
{
    if (m_facts->isGlobe)
    {
        return SetMapPole(lat, lon);
    }
    double x = 0;
    double y = 0;
    if (!LLtoXY(lat, lon, x, y))
    {
        return false;
    }
    m_state.centreLat = lat;
    m_state.centreLon = HeldLongitude(lon);
    return true;
}

bool BuiltInProjection::CenterMapXY(double& x, double& y) const
{
    return LLtoXY(m_state.centreLat, m_state.centreLon, x, y);
}

bool BuiltInProjection::IsCylindrical() const
{
    return m_facts->isCylindrical;
}

bool BuiltInProjection::IsConic() const
{
    return m_facts->isConic;
}

bool BuiltInProjection::IsConformal() const
{
    return m_facts->isConformal;
}

bool BuiltInProjection::IsZoomable() const
{
    return true;
}

bool BuiltInProjection::Is3D() const
{
    return m_facts->isGlobe;
}

unsigned long BuiltInProjection::BackgroundColor() const
{
    return 0x00FFFFFF;
}
} // namespace vorn::projections
