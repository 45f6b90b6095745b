#include "apps/vorntool/Applications.h"
#include "apps/vorntool/Commands.h"
#include "apps/vorntool/ImagePicture.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolFailure.h"
#include "apps/vorntool/ToolHost.h"
#include "apps/vorntool/core/ChartWords.h"
#include "apps/vorntool/core/JsonWriter.h"

#include "apps/chart/Chart.h"
#include "apps/chart/ChartColors.h"

#include <cmath>
#include <memory>

namespace vorn::tool
{

namespace
{

constexpr int kDefaultWidth = 1200;
constexpr int kDefaultHeight = 900;
constexpr double kDotsPerInch = 96;

/// The folder that an option names, for the library; empty when its name cannot be written there.
std::string FolderIn(const std::string& words)
{
    const std::optional<CString> name = LibraryFromUtf8(words);
    std::string folder = name ? std::string(name->GetString()) : std::string();
    if (!folder.empty() && folder.back() != '\\' && folder.back() != '/')
        folder += '\\';
    return folder;
}

std::vector<std::string> ProjectionNames()
{
    std::vector<std::string> names;
    for (int number = 0;; ++number)
    {
        const std::unique_ptr<Projection> projection(Projection::CreateProjection(number));
        if (projection == nullptr)
            return names;
        names.emplace_back(projection->QueryProjectionName());
    }
}

/// What the words of the call ask for.
struct Wish
{
    std::string problem; ///< what is wrong with them; empty when nothing is
    PictureSize size{kDefaultWidth, kDefaultHeight};
    std::optional<ViewDefinition> view;
    std::optional<ChartPlace> centre;
    std::optional<double> scale;
    std::optional<int> projection;
    std::optional<ImageKind> kind;
};

void TakeProjection(Wish& wish, const std::string& word)
{
    wish.projection = ProjectionNamed(word, ProjectionNames());
    if (!wish.projection)
        wish.problem = Quoted(word) + " is no projection; 'vorntool proj list' names them";
}

Wish WishOf(const Invocation& call)
{
    Wish wish;
    if (call.Has("size"))
    {
        const std::optional<PictureSize> size = ParseSize(call.ValueOf("size", ""));
        if (!size)
            wish.problem = "--size takes WIDTHxHEIGHT in pixels, each from 16 to 8192";
        wish.size = size.value_or(wish.size);
    }
    if (call.Has("view"))
    {
        wish.view.emplace();
        if (!wish.view->Parse(call.ValueOf("view", "").c_str()))
            wish.problem = "--view takes the text of a view, like \"v1|1|0|0|0|0|0|0|180|0|25|0|\"";
    }
    if (call.Has("center"))
    {
        wish.centre = ParsePlace(call.ValueOf("center", ""));
        if (!wish.centre || std::abs(wish.centre->latitude) > chart::ChartView::kFarthestLatitude)
            wish.problem = "--center takes LATITUDE,LONGITUDE in degrees, for example 47.5,-122.3, and no latitude "
                           "beyond 85";
    }
    if (call.Has("scale"))
    {
        wish.scale = ParseScale(call.ValueOf("scale", ""));
        if (!wish.scale || *wish.scale < chart::ChartView::kLargestScale ||
            *wish.scale > chart::ChartView::kSmallestScale)
            wish.problem = "--scale takes the N of 1:N, from 100000 to 60000000";
    }
    if (call.Has("view") && (call.Has("center") || call.Has("scale")))
        wish.problem = "--view says centre and scale itself";
    if (call.Has("projection"))
        TakeProjection(wish, call.ValueOf("projection", ""));
    const std::string out = call.ValueOf("out", "");
    wish.kind = ImageKindOf(out);
    if (!call.Has("out"))
        wish.problem = "--out FILE says where the picture goes";
    else if (!wish.kind)
        wish.problem = Quoted(out) + " does not end in .bmp, .png, .jpg or .jpeg";
    return wish;
}

bool TurnTo(chart::Chart& chart, const Wish& wish)
{
    chart.View().SetSize(wish.size.width, wish.size.height, kDotsPerInch);
    if (wish.view && !chart.Restore(*wish.view))
        return false;
    if (wish.projection && !chart.SetProjection(*wish.projection))
        return false;
    if (!wish.view && !wish.centre)
        chart.ShowRegion();
    if (wish.centre)
        chart.View().SetCentre(LatLon(wish.centre->latitude, wish.centre->longitude));
    if (wish.scale)
        chart.View().SetScale(*wish.scale);
    return true;
}

ExitStatus Fail(const Command& self, Output& output, ExitStatus status, const std::string& reason)
{
    ReportError(output, self, reason);
    return status;
}

std::string ResultText(const Invocation& call, const chart::Chart& chart)
{
    ViewDefinition view;
    chart.Store(view);
    const std::string text = view.Format().GetString();
    if (!call.Has("json"))
        return text + '\n';
    JsonWriter json;
    json.BeginObject().Name("file").Text(call.ValueOf("out", "")).Name("width").Whole(chart.View().Width());
    json.Name("height").Whole(chart.View().Height()).Name("scale").Whole(std::llround(chart.View().Scale()));
    return json.Name("view").Text(text).EndObject().Line();
}

ExitStatus RenderChart(const Command& self, const Invocation& call, Output& output)
{
    const Wish wish = WishOf(call);
    if (!wish.problem.empty())
        return Fail(self, output, ExitStatus::WrongUse, wish.problem);
    if (!ActAsApplication(self, call, output))
        return ExitStatus::WrongUse;
    const ToolHost host;
    const chart::ColorStateScope state(call.Has("night") ? COLORSTATE_NIGHT
                                                         : ColorContext::Instance()->GetCurrentState());
    chart::Chart chart;
    const std::string named = call.ValueOf("data", "");
    const std::string folder = call.Has("data") ? FolderIn(named) : chart::Chart::OwnFolder();
    if (folder.empty())
        return Fail(self, output, ExitStatus::WrongUse, Quoted(named) + " cannot be the name of a folder");
    if (const std::string missing = chart.Load(folder); !missing.empty())
        return Fail(self, output, ExitStatus::Refused,
                    "cannot open " + missing + " in " + Quoted(Utf8FromLibrary(folder)));
    if (!TurnTo(chart, wish))
        return Fail(self, output, ExitStatus::Refused,
                    wish.view && ProjectionLib::mpInstance->ProjectionName(wish.view->mProjection) != nullptr
                        ? "the view's parameters make no map"
                        : "the view's projection is not here");
    DIB image;
    if (!chart.DrawInto(image))
        return Fail(self, output, ExitStatus::Refused, "there is no memory for the picture");
    try
    {
        WritePicture(image, call.ValueOf("out", ""), {*wish.kind, call.Has("force")});
    }
    catch (const ToolFailure& failure)
    {
        return Fail(self, output, failure.Status(), failure.what());
    }
    output.text = ResultText(call, chart);
    return ExitStatus::Done;
}

constexpr const char* kDetails =
    "The picture shows the region's radio navigation aids and aerodromes, a route and the graticule,\n"
    "as the sample application's chart does. The whole region is shown unless a centre or a view says\n"
    "otherwise. The ending of FILE chooses its kind: .bmp, .png, .jpg or .jpeg.\n"
    "\n"
    "Printed is the text of the view, which --view takes.";

} // namespace

const CommandGroup& ChartCommands()
{
    static const Option options[] = {
        {"view", "TEXT", "show this view; centre and scale stand in it, and a projection unless one is named"},
        {"center", "LAT,LON", "show the surroundings of a position, in degrees"},
        {"scale", "N", "the scale 1:N at the centre, for a screen of 96 dots an inch; N from 100000 to 60000000"},
        {"size", "WxH", "size of the picture in pixels; 1200x900 unless given"},
        {"projection", "NAME", "name of the projection or its beginning, or its number"},
        {"night", nullptr, "colours for the night"},
        {"data", "FOLDER", "folder of navaids.dbf, runways.dbf and shores.dbf"},
        {"out", "FILE", "where the picture goes"},
        {"force", nullptr, "replace FILE when it exists"},
        kAppOption,
    };
    static const Command commands[] = {
        {"chart", "render", "", "Draw the region's chart into a picture", kDetails, 0, 0, options, RenderChart},
    };
    static const CommandGroup group = {"chart", "Charts.", commands};
    return group;
}

} // namespace vorn::tool
