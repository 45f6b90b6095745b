#pragma once

#include "apps/chart/core/ChartData.h"
#include "apps/chart/core/ChartView.h"
#include "apps/chart/core/Graticule.h"
#include "apps/chart/core/LabelPlacer.h"
#include "apps/chart/core/LabelText.h"
#include "apps/chart/core/Route.h"
#include "apps/chart/core/SymbolShapes.h"

#include <vector>

namespace vorn::chart
{

/// A region's data, made ready to be drawn from any place: what does not depend on the view is computed once.
struct ChartModel
{
    ChartData data;
    Extent region; ///< that the outlines of the land fill; nothing between south and north without any
    std::vector<Waypoint> route;
    std::vector<LatLon> sheet;                           ///< outline of what the data covers
    std::vector<std::vector<std::vector<LatLon>>> bands; ///< outlines of each height from the second on
    std::vector<SymbolShape> fields;                     ///< of the aerodromes, north up
    std::vector<Shore> coarse;                           ///< the shores with fewer points, for small charts
};

/// Heights in feet at which the bands begin.
inline constexpr double kBandHeights[] = {0, 500, 1000, 2000, 3000, 4000, 5000, 6000};
inline constexpr int kBands = 8;

/// @param route idents parted by blanks
ChartModel ModelOf(ChartData data, std::string_view route);

/// Everything that has a place on the ground, to begin with a chart.
std::vector<LatLon> PlacesOf(const ChartModel& model);

/// What a chart is drawn with: each has its colour by day and night.
enum class Ink
{
    Aid,    ///< aids with radials
    Beacon, ///< the others
    Field,
    Text,
    Grid,
    Route,
    Direct, ///< the performance line
};

struct SceneSymbol
{
    PixelPoint at;
    SymbolShape shape;
    Ink ink = Ink::Aid;
};

enum class TextSide
{
    Left,
    Centre,
    Right,
};

struct SceneLabel
{
    LabelText text;
    PixelBox box;
    TextSide side = TextSide::Left;
    Ink ink = Ink::Text;
};

struct PixelSize
{
    int width = 0;
    int height = 0;
};

/// Measures a label as it will be drawn.
class LabelMeter
{
public:
    virtual ~LabelMeter() = default;
    virtual PixelSize Measure(const LabelText& label) = 0;
};

/// Everything that a view shows, in pixels.
struct ChartScene
{
    double unit = 1;       ///< pixels for one of a 96-dpi screen
    double symbolUnit = 1; ///< for one of the symbols' own, which small charts draw smaller
    std::vector<PixelLine> sheet;
    std::vector<std::vector<PixelLine>> bands; ///< areas by even and odd, one after the other
    std::vector<PixelLine> land;
    std::vector<PixelLine> coasts;
    std::vector<PixelLine> borders;
    Graticule graticule;
    std::vector<PixelLine> limb; ///< of the globe
    std::vector<SceneSymbol> roses;
    std::vector<SceneSymbol> symbols;
    std::vector<PixelLine> runways; ///< outlines, true to scale
    std::vector<PixelLine> way;
    std::vector<PixelLine> direct;
    std::vector<PixelPoint> marks;
    double markMiles = 0;
    std::vector<SceneLabel> labels;
    LabelMemory memory; ///< for the next scene
};

/// @param closed where panels lie over the chart
/// @param before the memory of the scene before
ChartScene SceneOf(const ChartModel& model, const ChartView& view, LabelMeter& meter,
                   const std::vector<PixelBox>& closed, const LabelMemory& before);

/// Where true north points at a position, degrees clockwise from straight up.
double NorthAt(const ChartView& view, const LatLon& position);

} // namespace vorn::chart
