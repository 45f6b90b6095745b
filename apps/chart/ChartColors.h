#pragma once

#include "apps/chart/core/ChartScene.h"

#include <VornCommon.h>

namespace vorn::chart
{

/// Puts a state of the process's colours in force, by day, at dusk or by night, for the time of its life.
class ColorStateScope
{
public:
    explicit ColorStateScope(int state) : m_before(ColorContext::Instance()->GetCurrentState())
    {
        ColorContext::Instance()->SetCurrentState(state);
    }
    ~ColorStateScope()
    {
        ColorContext::Instance()->SetCurrentState(m_before);
    }
    ColorStateScope(const ColorStateScope&) = delete;
    ColorStateScope& operator=(const ColorStateScope&) = delete;

private:
    int m_before;
};

/// The colours of a chart in the state that the process's ColorContext is in.
COLORREF InkColor(Ink ink);

/// The pen of the finest lines: a pixel wide on screens, and on printers, whose dots are smaller, still to be seen.
/// @param unit pixels for one of a 96-dpi screen
HPEN FinePen(AppColorsType color, double unit);

/// The tint of a band of heights, 0 the lowest: its colour in the terrain map laid thin over the land's.
COLORREF BandColor(const TerrainColorMap& terrain, int band);

} // namespace vorn::chart
