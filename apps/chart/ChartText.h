#pragma once

#include "apps/chart/core/ChartScene.h"

#include <VornCommon.h>

#include <map>
#include <string>
#include <utility>

namespace vorn::chart
{

/// The font of a style on a device; the resource manager's.
HFONT FontOf(TextStyle style, double unit);

/// Pixels of a dot of Morse code.
int MorseUnit(double unit);

/// Measures labels, and remembers what it has measured.
class TextMeter : public LabelMeter
{
public:
    /// @param unit pixels for one of a 96-dpi screen
    TextMeter(CDC& dc, double unit);

    PixelSize Measure(const LabelText& label) override;
    PixelSize MeasureLine(const TextLine& line);

private:
    CDC& m_dc;
    double m_unit;
};

/// Draws a label into its box, with a halo around its letters; a thinner one when it has to be quick.
void DrawLabel(CDC& dc, const SceneLabel& label, TextMeter& meter, double unit, bool quick);

} // namespace vorn::chart
