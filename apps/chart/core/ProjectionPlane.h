#pragma once

#include "apps/chart/core/ChartPlane.h"
#include "family/VornChart/core/Projection.h"

#include <memory>

namespace vorn::chart
{

/// A chart's map by one of the projections, built anew around each centre.
class ProjectionPlane : public ChartPlane
{
public:
    /// @param projection not null
    explicit ProjectionPlane(std::unique_ptr<Projection> projection);

    const Projection& Of() const;

    bool PanTo(const LatLon& centre) override;
    std::optional<MapPoint> Forward(const LatLon& position) const override;
    std::optional<LatLon> Inverse(const MapPoint& point) const override;
    std::vector<MapPoint> Limb() const override;
    double ScaleAt(const LatLon& position) const override;

private:
    std::unique_ptr<Projection> m_projection;
};

} // namespace vorn::chart
