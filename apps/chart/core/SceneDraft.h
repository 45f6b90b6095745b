#pragma once

#include "apps/chart/core/SceneLabels.h"

/// @file
/// A scene while it is being made, and the steps that make it.

namespace vorn::chart
{

/// What all steps look at, and what they add to.
struct SceneDraft
{
    SceneDraft(const ChartModel& itsModel, const ChartView& itsView, LabelMeter& meter,
               const std::vector<PixelBox>& closed);

    /// Pixels of the view for those of a 96-dpi screen.
    double Px(double at96) const;
    /// Where the view shows a position; nothing when it is too far away for its symbol or label to be seen.
    std::optional<PixelPoint> WithinReach(const LatLon& position) const;
    bool IsOnRoute(const std::string& ident, const LatLon& position) const;

    const ChartModel& model;
    const ChartView& view;
    Detail detail;
    Extent extent;
    PixelBox reach; ///< the view, and what lies so close that parts of it may be seen
    ChartScene scene;
    SceneLabels labels;
};

/// Sheet, bands of height, coasts, land and borders.
void AddGround(SceneDraft& draft);
/// Meridians and parallels with their labels at the edges.
void AddGraticule(SceneDraft& draft);
/// The route with its marks and legs.
void AddRoute(SceneDraft& draft);
void AddAids(SceneDraft& draft);
void AddFields(SceneDraft& draft);

// Labels are known by numbers: those of each kind begin here.
inline constexpr int kAidIds = 0;
inline constexpr int kFieldIds = 100'000;
inline constexpr int kParallelIds = 300'000;
inline constexpr int kMeridianIds = 500'000;
inline constexpr int kLegIds = 700'000;

// Which labels choose first.
inline constexpr int kLegPriority = 700;
inline constexpr int kRoutePriority = 800;
inline constexpr int kGridPriority = 1000;

} // namespace vorn::chart
