#pragma once

#include "apps/chart/core/ChartFeatures.h"

#include <string>
#include <vector>

/// @file
/// What is written beside the aids and aerodromes, the more of it the larger the chart.

namespace vorn::chart
{

enum class TextStyle
{
    Ident, ///< bold
    Plain,
    Small,
    Grid, ///< meridians and parallels
};
inline constexpr int kTextStyles = 4;

struct TextLine
{
    std::string text;
    TextStyle style = TextStyle::Plain;
    std::string morse; ///< drawn behind the text as Morse code; empty for none
};

using LabelText = std::vector<TextLine>;

/// How much a chart of some scale says.
enum class Detail
{
    Marks,     ///< of the aids with radials where there is room, without labels
    Radials,   ///< aids with radials and their idents
    Idents,    ///< all aids and the large aerodromes
    Frequency, ///< ident and frequency; all aerodromes
    Full,      ///< name, ident with its Morse code, frequency; elevation and longest runway
};

/// @param denominator of the scale
Detail DetailAt(double denominator);

/// Nothing for what has no label in this detail.
LabelText LabelOf(const Aid& aid, Detail detail);
LabelText LabelOf(const Aerodrome& aerodrome, Detail detail);

/// False for what a chart of that detail leaves out.
bool IsShown(const Aid& aid, Detail detail);
bool IsShown(const Aerodrome& aerodrome, Detail detail);

/// Of a label; the larger the more important. Long runways and aids with radials come first.
int PriorityOf(const Aid& aid);
int PriorityOf(const Aerodrome& aerodrome);

} // namespace vorn::chart
