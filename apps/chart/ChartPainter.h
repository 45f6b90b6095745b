#pragma once

#include "apps/chart/core/ChartScene.h"

#include <VornCommon.h>

namespace vorn::chart
{

/// Draws ground, lines and symbols of a scene, everything but its texts. `magnified` is how many pixels of the device
/// context stand for one of the scene. The context's own settings are as before afterwards.
void PaintScene(CDC& dc, const ChartScene& scene, const TerrainColorMap& terrain, int magnified);

/// Draws the scene's labels and Morse idents; with thinner halos when it has to be quick.
void PaintLabels(CDC& dc, const ChartScene& scene, bool quick);

} // namespace vorn::chart
