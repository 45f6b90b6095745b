#include "apps/chart/core/ProjectionPlane.h"

#include <utility>

namespace vorn::chart
{

ProjectionPlane::ProjectionPlane(std::unique_ptr<Projection> projection) : m_projection(std::move(projection))
{
}

const Projection& ProjectionPlane::Of() const
{
    return *m_projection;
}

bool ProjectionPlane::PanTo(const LatLon& centre)
{
    return m_projection->SetMapPole(centre.Lat(), centre.Lon());
}

std::optional<MapPoint> ProjectionPlane::Forward(const LatLon& position) const
{
    MapPoint point;
    if (!m_projection->LLtoXY(position.Lat(), position.Lon(), point.x, point.y))
        return std::nullopt;
    return point;
}

std::optional<LatLon> ProjectionPlane::Inverse(const MapPoint& point) const
{
    double lat = 0;
    double lon = 0;
    if (!m_projection->XYtoLL(point.x, point.y, lat, lon))
        return std::nullopt;
    return LatLon(lat, lon);
}

std::vector<MapPoint> ProjectionPlane::Limb() const
{
    std::vector<MapPoint> limb;
    const int count = m_projection->Is3D() ? m_projection->NMapLimitPts() : 0;
    for (int i = 0; i < count; ++i)
    {
        MapPoint point;
        if (m_projection->MapLimitPt(i, point.x, point.y))
            limb.push_back(point);
    }
    return limb;
}

double ProjectionPlane::ScaleAt(const LatLon& position) const
{
    const double scale = m_projection->ScaleMult(position.Lat(), position.Lon());
    return scale > 0 ? scale : 1;
}

} // namespace vorn::chart
