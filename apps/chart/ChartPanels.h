#pragma once

#include "apps/chart/core/ChartView.h"
#include "apps/chart/core/PixelGeometry.h"
#include "apps/chart/core/ScaleBar.h"

#include <VornCommon.h>

#include <memory>
#include <string>
#include <vector>

namespace vorn::chart
{

/// What the panels over a chart say.
struct PanelTexts
{
    std::string title;
    std::string subtitle;
    std::string projection;
    std::string scale;
};

/// The panels that lie over a chart: title block, colours of heights, scale bar. Those that a small drawing has no room
/// for are left out.
class ChartPanels
{
public:
    /// Finds the panels' places in a drawing.
    void Place(const ChartView& view);

    /// Where they lie.
    std::vector<PixelBox> Boxes() const;

    void Draw(CDC& dc, const PanelTexts& texts, const TerrainColorMap& terrain);

private:
    void DrawTitle(CDC& dc, const PanelTexts& texts) const;
    void DrawHeights(CDC& dc, const TerrainColorMap& terrain) const;
    void DrawScaleBar(CDC& dc) const;
    int Px(double at96) const;

    double m_unit = 1;
    PixelBox m_title;
    PixelBox m_heights;
    PixelBox m_scaleBar;
    ScaleBar m_bar;
};

} // namespace vorn::chart
