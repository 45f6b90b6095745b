#pragma once

#include "apps/chart/core/ChartScene.h"

#include <VornCommon.h>

namespace vorn::chart
{

/// The colours of a chart in the state that the process's ColorContext is in.
COLORREF InkColor(Ink ink);

/// The tint of a band of heights, 0 the lowest: its colour in the terrain map laid thin over the land's.
COLORREF BandColor(const TerrainColorMap& terrain, int band);

} // namespace vorn::chart
