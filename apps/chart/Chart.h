#pragma once

#include "apps/chart/ChartPanels.h"
#include "apps/chart/PixelSurface.h"
#include "apps/chart/core/ChartScene.h"
#include "apps/chart/core/ProjectionPlane.h"

#include <VornCommon.h>

#include <memory>
#include <string>
#include <vector>

namespace vorn::chart
{

/// The chart of a region: its data, how it is looked at, and its drawing on any device context.
class Chart
{
public:
    Chart();

    /// The folder `data` beside the program, with a backslash at its end: the region's tables are there.
    static std::string OwnFolder();

    /// Reads the region's tables from a folder, whose name ends with a backslash.
    /// @return the tables that are missing, parted by commas; empty when all are there
    std::string Load(const std::string& folder);

    ChartView& View();
    const ChartView& View() const;
    const ChartModel& Model() const;

    /// Shows the whole region.
    void ShowRegion();

    /// A projection by its number in the registry. False, and no change, when there is none.
    bool SetProjection(int number);
    int ProjectionNumber() const;
    const char* ProjectionName() const;

    /// Takes projection, its parameters, centre and scale of a stored view; a scale of 0 shows the whole region. North
    /// stays up whatever the view's skew. False, and no change, for a projection that there is not, or whose parameters
    /// make no map.
    bool Restore(const ViewDefinition& view);
    void Store(ViewDefinition& view) const;

    /// How the drawing is made.
    enum class Quality
    {
        Fast,   ///< straight away, for a chart that is being moved
        Smooth, ///< lines and edges without steps
    };

    /// Draws the chart in the size of its view with its upper left corner at (x, y): first into memory, so that
    /// nothing flickers.
    void Draw(CDC& dc, int x, int y, Quality quality);

    /// Draws the chart straight to a device, as printers and metafiles need it.
    void DrawDirectly(CDC& dc, int x, int y);

    /// Draws the chart into an image of 24 bits. False when there is no memory for it.
    bool DrawInto(DIB& image);

private:
    bool TakeMap(int number, const std::vector<double>& parameters);
    void MakeScene(CDC& dc);
    void DrawTexts(CDC& dc, Quality quality);
    bool Compose(Quality quality);
    PanelTexts Texts() const;

    ChartModel m_model;
    std::unique_ptr<ProjectionPlane> m_plane;
    int m_projection = 0;
    ChartView m_view;
    ChartPanels m_panels;
    TerrainColorMap m_terrain;
    ChartScene m_scene;
    LabelMemory m_memory;
    double m_lastScale = 0; // of the drawing that the memory is of
    PixelSurface m_surface;
    PixelSurface m_large; // twice the size, for smooth drawing
};

} // namespace vorn::chart
