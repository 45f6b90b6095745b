#include "apps/vorntool/Commands.h"
#include "apps/vorntool/ProjectionChoice.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/Decimals.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <functional>

namespace vorn::tool
{

namespace
{

std::string KindOf(const Projection& projection)
{
    std::string kind = projection.IsCylindrical() ? "cylindrical" : projection.IsConic() ? "conic" : "";
    kind += projection.IsConformal() ? kind.empty() ? "conformal" : ", conformal" : "";
    kind += projection.Is3D() ? kind.empty() ? "globe" : ", globe" : "";
    return kind;
}

void WriteJson(JsonWriter& json, int index, const Projection& projection)
{
    const ProjectionLib& library = *ProjectionLib::mpInstance;
    json.BeginObject().Name("number").Whole(index).Name("name").Text(Utf8FromLibrary(library.ProjectionName(index)));
    json.Name("builtIn").Flag(index < library.NumBuiltIn()).Name("cylindrical").Flag(projection.IsCylindrical());
    json.Name("conic").Flag(projection.IsConic()).Name("conformal").Flag(projection.IsConformal());
    json.Name("globe").Flag(projection.Is3D()).Name("parameters").BeginArray();
    for (int i = 0; i < projection.NumParams(); ++i)
    {
        json.BeginObject().Name("name").Text(Utf8FromLibrary(projection.ParamName(i)));
        json.Name("value").Number(projection.GetParamValue(i)).EndObject();
    }
    json.EndArray().EndObject();
}

std::string LineOf(int index, const Projection& projection)
{
    std::string line = std::to_string(index) + "  " + Utf8FromLibrary(ProjectionLib::mpInstance->ProjectionName(index));
    const std::string kind = KindOf(projection);
    line += kind.empty() ? "" : " (" + kind + ")";
    for (int i = 0; i < projection.NumParams(); ++i)
    {
        line += i == 0 ? ": " : ", ";
        line += Utf8FromLibrary(projection.ParamName(i)) + " " + NumberText(projection.GetParamValue(i));
    }
    return line + "\n";
}

ExitStatus ListProjections(const Command& self, const Invocation& call, Output& output)
{
    const ProjectionRegistry registry;
    if (!ProjectionRegistry::Start(self, call, output))
    {
        return ExitStatus::Refused;
    }
    JsonWriter json;
    json.BeginArray();
    std::string text;
    for (int i = 0; i < ProjectionLib::mpInstance->NumProjections(); ++i)
    {
        const std::unique_ptr<Projection> projection(ProjectionLib::mpInstance->CreateProjection(i));
        if (projection)
        {
            WriteJson(json, i, *projection);
            text += LineOf(i, *projection);
        }
    }
    output.text = call.Has("json") ? json.EndArray().Line() : text;
    return ExitStatus::Done;
}

// Two numbers, and what is made of them.
struct Projected
{
    double given[2];
    double found[2];
    double scale;
    bool done;
};

// Fills the result of one pair of numbers.
using Projector = std::function<void(const ProjectionSetup& setup, Projected& pair)>;

// The names of the numbers.
struct PairNames
{
    const char* given[2];
    const char* found[2];
};

constexpr PairNames kForwardNames = {{"lat", "lon"}, {"x", "y"}};
constexpr PairNames kInverseNames = {{"x", "y"}, {"lat", "lon"}};

void Forward(const ProjectionSetup& setup, Projected& pair)
{
    auto& [x, y] = pair.found;
    pair.done = setup.projection->LLtoXY(pair.given[0], pair.given[1], x, y);
    setup.projection->Skew(x, y);
    x *= setup.unit;
    y *= setup.unit;
    pair.scale = pair.done ? setup.projection->ScaleMult(pair.given[0], pair.given[1]) : 0;
}

void Inverse(const ProjectionSetup& setup, Projected& pair)
{
    double x = pair.given[0] / setup.unit;
    double y = pair.given[1] / setup.unit;
    setup.projection->UnSkew(x, y);
    pair.done = setup.projection->XYtoLL(x, y, pair.found[0], pair.found[1]);
    pair.scale = pair.done ? setup.projection->ScaleMult(pair.found[0], pair.found[1]) : 0;
}

void WriteJson(JsonWriter& json, const Projected& pair, const PairNames& names)
{
    json.BeginObject();
    for (int i = 0; i < 2; ++i)
    {
        json.Name(names.given[i]).Number(pair.given[i]);
    }
    for (int i = 0; i < 2; ++i)
    {
        json.Name(names.found[i]);
        pair.done ? json.Number(pair.found[i]) : json.Null();
    }
    json.Name("scale");
    pair.done ? json.Number(pair.scale) : json.Null();
    json.EndObject();
}

std::string Written(double number, int decimals)
{
    return decimals < 0 ? NumberText(number) : NumberText(number, decimals);
}

ExitStatus Print(const Command& self, const Invocation& call, Output& output, const std::vector<Projected>& pairs,
                 const PairNames& names, int decimals)
{
    ExitStatus status = ExitStatus::Done;
    JsonWriter json;
    json.BeginArray();
    for (const Projected& pair : pairs)
    {
        WriteJson(json, pair, names);
        if (!pair.done)
        {
            ReportError(output, self,
                        Quoted(NumberText(pair.given[0]) + " " + NumberText(pair.given[1])) + " is not on the map");
            status = ExitStatus::Refused;
        }
        else if (!call.Has("json"))
        {
            output.text += Written(pair.found[0], decimals) + " " + Written(pair.found[1], decimals) + "\n";
        }
    }
    output.text += call.Has("json") ? json.EndArray().Line() : "";
    return status;
}

// The numbers behind the projection's name, two by two; nothing, and a reason, when they are none.
std::optional<std::vector<Projected>> TakePairs(const Invocation& call, const PairNames& names, std::string& reason)
{
    std::vector<Projected> pairs;
    for (std::size_t i = 1; i < call.values.size(); ++i)
    {
        const auto number = ParseNumber(call.values[i]);
        if (!number)
        {
            reason = Quoted(call.values[i]) + " is no number";
            return std::nullopt;
        }
        if (i % 2 == 1)
        {
            pairs.push_back({});
        }
        pairs.back().given[(i + 1) % 2] = *number;
    }
    if (call.values.size() % 2 == 0)
    {
        reason = std::string("the last ") + names.given[0] + " has no " + names.given[1];
        return std::nullopt;
    }
    return pairs;
}

ExitStatus ProjectAll(const Command& self, const Invocation& call, Output& output, const PairNames& names,
                      const Projector& project)
{
    int decimals = -1;
    std::string reason;
    auto pairs = TakePairs(call, names, reason);
    if (!pairs || !TakeDecimals(call, decimals, reason))
    {
        ReportError(output, self, reason);
        return ExitStatus::WrongUse;
    }
    const ProjectionRegistry registry;
    ExitStatus status = ExitStatus::Refused;
    const auto setup =
        ProjectionRegistry::Start(self, call, output) ? TakeProjection(self, call, output, status) : std::nullopt;
    if (!setup)
    {
        return status;
    }
    for (Projected& pair : *pairs)
    {
        project(*setup, pair);
    }
    return Print(self, call, output, *pairs, names, decimals);
}

ExitStatus ProjectForward(const Command& self, const Invocation& call, Output& output)
{
    return ProjectAll(self, call, output, kForwardNames, Forward);
}

ExitStatus ProjectInverse(const Command& self, const Invocation& call, Output& output)
{
    return ProjectAll(self, call, output, kInverseNames, Inverse);
}

constexpr Option kListOptions[] = {kPluginsOption};
constexpr Option kProjectOptions[] = {
    {"params", "NUMBERS", "the projection's parameters in their order, A,B"},
    {"center", "LAT,LON", "lay the map around a position, else around 0,0"},
    {"skew", "DEGREES", "turn the map clockwise"},
    {"metres", nullptr, "map coordinates in metres instead of Earth radii"},
    kDecimalsOption,
    kPluginsOption,
};

constexpr const char* kProjectDetails =
    "PROJECTION is a number or a name of 'vorntool proj list', or a beginning that only one\n"
    "name has. Positions are in degrees, north and east positive; map coordinates in\n"
    "Earth radii of 6378137 m, x to the right and y up from the position of --center (from\n"
    "the pole in polar maps). --json adds the scale along the parallel.";

constexpr Command kCommands[] = {
    {"proj", "list", "", "List the map projections with their parameters", "", 0, 0, kListOptions, ListProjections},
    {"proj", "forward", "PROJECTION LAT LON...", "Print where positions lie on a map", kProjectDetails, 3, kAnyNumber,
     kProjectOptions, ProjectForward},
    {"proj", "inverse", "PROJECTION X Y...", "Print the positions of points of a map", kProjectDetails, 3, kAnyNumber,
     kProjectOptions, ProjectInverse},
};

} // namespace

const CommandGroup& ProjectionCommands()
{
    static const CommandGroup group = {"proj", "Map projections, built in and of plug-ins.", kCommands};
    return group;
}

} // namespace vorn::tool
