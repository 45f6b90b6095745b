#pragma once

#include "apps/chart/core/ChartScene.h"

namespace vorn::chart
{

/// A label that a scene would like to have.
struct LabelWish
{
    LabelRequest request;
    LabelText text;
    Ink ink;
    bool centred; ///< whatever its place
};

/// The labels of a scene that is being made: who wants one, and what they are to keep away from.
class SceneLabels
{
public:
    /// @param drawing labels stand within it, whole, or not at all
    /// @param closed where panels lie over the chart
    SceneLabels(LabelMeter& meter, const PixelBox& drawing, const std::vector<PixelBox>& closed);

    PixelSize Measure(const LabelText& text);
    /// Whether a panel lies over a place.
    bool IsUnderPanel(PixelPoint at) const;
    void Wish(LabelWish wish);

    /// Everything within `half` of a symbol's place.
    void AvoidSymbol(PixelPoint at, double half);
    void AvoidPlace(PixelPoint at, double half);
    /// Small boxes along a line, near enough to one another that no label fits between two.
    void AvoidLine(const PixelLine& line, double half);
    /// Gives the scene its labels, and what the next scene is to remember.
    void Place(const LabelMemory& before, ChartScene& scene);

private:
    LabelMeter& m_meter;
    PixelBox m_drawing;
    LabelObstacles m_obstacles;
    std::vector<LabelWish> m_wishes;
};

} // namespace vorn::chart
