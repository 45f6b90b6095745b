#include "apps/chart/Chart.h"

#include "apps/chart/ChartPainter.h"
#include "apps/chart/ChartText.h"
#include "apps/chart/core/HalfSize.h"
#include "apps/chart/core/ScaleBar.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace vorn::chart
{

namespace
{

constexpr const char* kRoute = "KSEA SEA ELN EPH GEG MLP KMSO";
constexpr int kFirstProjection = PROJECTION_LAMBERT_CONFORMAL;
constexpr int kMargin = 40;
constexpr double kSomewhere[] = {45, 0}; // where every map can lie

/// So many decimals of a stored view; the same view is stored alike again.
constexpr int kScaleDigits = 6;
constexpr int kDegreeDigits = 8;

double Rounded(double value, int decimals)
{
    const double factor = std::pow(10.0, decimals);
    return std::round(value * factor) / factor;
}

/// Lambert's parallels lie a sixth of the region from its edges; the equidistant map is true to scale amid them.
std::vector<double> OwnParameters(int number)
{
    switch (number)
    {
    case PROJECTION_LAMBERT_CONFORMAL:
        return {44, 52};
    case PROJECTION_EQUIDISTANT_CYLINDRICAL:
        return {48};
    default:
        return {};
    }
}

/// Takes as many parameters as the projection has. False when it refuses one, or what they make together.
bool SetParameters(Projection& projection, const std::vector<double>& parameters)
{
    const int count = std::min(static_cast<int>(parameters.size()), projection.NumParams());
    for (int i = 0; i < count; ++i)
    {
        if (!projection.SetParamValue(i, parameters[static_cast<std::size_t>(i)]))
            return false;
    }
    return count == 0 || projection.SetMapPole(kSomewhere[0], kSomewhere[1]);
}

std::unique_ptr<ProjectionPlane> PlaneOf(int number, const std::vector<double>& parameters)
{
    if (ProjectionLib::mpInstance == nullptr)
        WinProjectionLib::Init(nullptr, 0);
    ProjectionLib* const projections = ProjectionLib::mpInstance;
    std::unique_ptr<Projection> projection(projections != nullptr ? projections->CreateProjection(number) : nullptr);
    if (projection == nullptr || !SetParameters(*projection, parameters))
        return nullptr;
    return std::make_unique<ProjectionPlane>(std::move(projection));
}

} // namespace

Chart::Chart()
    : m_plane(PlaneOf(kFirstProjection, OwnParameters(kFirstProjection))), m_projection(kFirstProjection),
      m_view(*m_plane), m_terrain(false)
{
    std::array<double, kBands> heights{};
    std::copy(std::begin(kBandHeights), std::end(kBandHeights), heights.begin());
    m_terrain.GenColorMap(kBands, heights.data());
}

std::string Chart::OwnFolder()
{
    std::array<char, MAX_PATH> program{};
    GetModuleFileName(nullptr, program.data(), MAX_PATH);
    const std::string path = program.data();
    return path.substr(0, path.find_last_of('\\') + 1) + "data\\";
}

std::string Chart::Load(const std::string& folder)
{
    ChartData data;
    std::string missing = ReadChartData(folder, data);
    m_model = ModelOf(std::move(data), kRoute);
    m_memory.clear();
    return missing;
}

ChartView& Chart::View()
{
    return m_view;
}

const ChartView& Chart::View() const
{
    return m_view;
}

const ChartModel& Chart::Model() const
{
    return m_model;
}

void Chart::ShowRegion()
{
    const std::vector<LatLon> places = PlacesOf(m_model);
    // Twice, for the farthest place is another one after the first.
    for (int turn = 0; turn < 2; ++turn)
        m_view.ShowAll(places.data(), static_cast<int>(places.size()),
                       static_cast<int>(kMargin * m_view.DotsPerInch() / 96));
}

bool Chart::SetProjection(int number)
{
    return TakeMap(number, OwnParameters(number));
}

bool Chart::TakeMap(int number, const std::vector<double>& parameters)
{
    std::unique_ptr<ProjectionPlane> plane = PlaneOf(number, parameters);
    if (plane == nullptr)
        return false;
    m_view.SetPlane(*plane);
    m_plane = std::move(plane);
    m_projection = number;
    m_memory.clear();
    return true;
}

int Chart::ProjectionNumber() const
{
    return m_projection;
}

const char* Chart::ProjectionName() const
{
    return m_plane->Of().QueryProjectionName();
}

bool Chart::Restore(const ViewDefinition& view)
{
    if (!TakeMap(view.mProjection, view.mParams.empty() ? OwnParameters(view.mProjection) : view.mParams))
        return false;
    if (!(view.mScale > 0))
    {
        ShowRegion();
        return true;
    }
    m_view.SetCentre(LatLon(view.mCenterLat, view.mCenterLon));
    m_view.SetPixelsPerRadius(view.mScale);
    return true;
}

void Chart::Store(ViewDefinition& view) const
{
    const Projection& projection = m_plane->Of();
    view.mProjection = m_projection;
    view.mParams.clear();
    for (int i = 0; i < projection.NumParams(); ++i)
        view.mParams.push_back(projection.GetParamValue(i));
    view.mLogX = m_view.Width() / 2.0;
    view.mLogY = m_view.Height() / 2.0;
    projection.CenterMapXY(view.mMapX, view.mMapY);
    view.mScale = Rounded(m_view.PixelsPerRadius(), kScaleDigits);
    view.mSkew = projection.GetSkew();
    view.mCenterLat = Rounded(m_view.Centre().Lat(), kDegreeDigits);
    view.mCenterLon = Rounded(m_view.Centre().Lon(), kDegreeDigits);
}

PanelTexts Chart::Texts() const
{
    return {"Pacific Northwest", "Enroute chart \xB7 not for navigation", ProjectionName(), ScaleText(m_view.Scale())};
}

void Chart::MakeScene(CDC& dc)
{
    m_panels.Place(m_view);
    if (std::exchange(m_lastScale, m_view.Scale()) != m_view.Scale())
        m_memory.clear();
    TextMeter meter(dc, m_view.DotsPerInch() / 96);
    m_scene = SceneOf(m_model, m_view, meter, m_panels.Boxes(), m_memory);
    m_memory = m_scene.memory;
}

void Chart::DrawTexts(CDC& dc, Quality quality)
{
    PaintLabels(dc, m_scene, quality == Quality::Fast);
    m_panels.Draw(dc, Texts(), m_terrain);
}

bool Chart::Compose(Quality quality)
{
    const int width = m_view.Width();
    const int height = m_view.Height();
    const COLORREF ground = ColorContext::Instance()->GetColor(APPCOLOR_BACKGROUND);
    if (!m_surface.SetSize(width, height))
        return false;
    MakeScene(m_surface.Get());
    if (quality == Quality::Smooth && m_large.SetSize(2 * width, 2 * height))
    {
        const CRect area(0, 0, 2 * width, 2 * height);
        m_large.Get().FillSolidRect(&area, ground);
        PaintScene(m_large.Get(), m_scene, m_terrain, 2);
        const std::uint32_t* const source = m_large.Pixels();
        HalveSize(source, width, height, m_surface.Pixels());
    }
    else
    {
        const CRect area(0, 0, width, height);
        m_surface.Get().FillSolidRect(&area, ground);
        PaintScene(m_surface.Get(), m_scene, m_terrain, 1);
    }
    DrawTexts(m_surface.Get(), quality);
    return true;
}

void Chart::Draw(CDC& dc, int x, int y, Quality quality)
{
    if (Compose(quality))
        dc.BitBlt(x, y, m_view.Width(), m_view.Height(), &m_surface.Get(), 0, 0, SRCCOPY);
}

void Chart::DrawDirectly(CDC& dc, int x, int y)
{
    const int saved = dc.SaveDC();
    dc.SetViewportOrg(x, y);
    const CRect area(0, 0, m_view.Width(), m_view.Height());
    dc.IntersectClipRect(&area);
    MakeScene(dc);
    PaintScene(dc, m_scene, m_terrain, 1);
    DrawTexts(dc, Quality::Smooth);
    dc.RestoreDC(saved);
}

bool Chart::DrawInto(DIB& image)
{
    if (!Compose(Quality::Smooth))
        return false;
    const int width = m_view.Width();
    const int height = m_view.Height();
    image = DIB(width, height, 24, DIB_RGB_COLORS, 0, nullptr, nullptr);
    if (image.Bits() == nullptr)
        return false;
    const std::uint32_t* source = m_surface.Pixels();
    for (int row = height - 1; row >= 0; --row) // the lowest row is the first
    {
        unsigned char* target = image.Bits() + static_cast<std::ptrdiff_t>(row) * image.BytesPerScan();
        for (int column = 0; column < width; ++column, ++source)
        {
            *target++ = static_cast<unsigned char>(*source);
            *target++ = static_cast<unsigned char>(*source >> 8);
            *target++ = static_cast<unsigned char>(*source >> 16);
        }
    }
    return true;
}

} // namespace vorn::chart
