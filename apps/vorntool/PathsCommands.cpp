#include "apps/vorntool/Applications.h"
#include "apps/vorntool/Commands.h"
#include "apps/vorntool/FolderNames.h"
#include "apps/vorntool/FolderRecord.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/Utf8.h"

namespace vorn::tool
{

namespace
{

// What both commands are asked for.
struct Place
{
    CString application;
    PathCfgVer layout;
};

std::optional<PathCfgVer> LayoutNamed(const std::string& word)
{
    const std::pair<const char*, PathCfgVer> layouts[] = {
        {"legacy", PCV_LEGACY}, {"user", PCV_VISTA}, {"auto", PCV_AUTO}};
    for (const auto& [name, layout] : layouts)
    {
        if (word == name)
        {
            return layout;
        }
    }
    return std::nullopt;
}

const char* NameOfLayout(PathCfgVer layout)
{
    return layout == PCV_LEGACY ? "legacy" : "user";
}

std::optional<Place> TakePlace(const Command& self, const Invocation& call, Output& output)
{
    const std::string word = call.ValueOf("layout", "auto");
    const std::optional<PathCfgVer> layout = LayoutNamed(word);
    if (!layout)
    {
        ReportError(output, self, "--layout takes legacy, user or auto, not " + Quoted(word));
        return std::nullopt;
    }
    const std::optional<CString> application = ApplicationOf(self, call, output);
    return application ? std::optional(Place{*application, *layout}) : std::nullopt;
}

std::string FolderText(FolderRecord& record, int path)
{
    return Utf8FromLibrary(record.GetPathInst(static_cast<DefinedPath>(path)).GetString());
}

void WriteFolder(JsonWriter& json, FolderRecord& record, int path)
{
    const FolderOrigin& origin = record.OriginOf(path);
    json.Name("number").Whole(path).Name("name").Text(NameOfFolder(path)).Name("key");
    origin.key.empty() ? json.Null() : json.Text(origin.key);
    json.Name("folder").Text(FolderText(record, path)).Name("source").Text(origin.source);
}

JsonWriter& BeginJson(JsonWriter& json, const Place& place, FolderRecord& record)
{
    json.BeginObject().Name("app").Text(Utf8FromLibrary(place.application.GetString()));
    return json.Name("layout").Text(NameOfLayout(record.GetPathCfgVer()));
}

std::string JsonOf(const Place& place, FolderRecord& record)
{
    JsonWriter json;
    BeginJson(json, place, record).Name("folders").BeginArray();
    for (int path = 0; path < DP_COUNT; ++path)
    {
        WriteFolder(json.BeginObject(), record, path);
        json.EndObject();
    }
    return json.EndArray().EndObject().Line();
}

std::string Padded(std::string text, std::size_t width)
{
    return text.append(text.size() < width ? width - text.size() : 1, ' ');
}

std::string TextOf(FolderRecord& record)
{
    std::string text;
    for (int path = 0; path < DP_COUNT; ++path)
    {
        text += Padded(std::to_string(path), 4) + Padded(NameOfFolder(path), 20) +
                Padded(record.OriginOf(path).source, 20) + OneLine(FolderText(record, path)) + "\n";
    }
    return text;
}

ExitStatus List(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<Place> place = TakePlace(self, call, output);
    if (!place)
    {
        return ExitStatus::WrongUse;
    }
    FolderRecord record(place->layout, place->application);
    output.text = call.Has("json") ? JsonOf(*place, record) : TextOf(record);
    return ExitStatus::Done;
}

// A kind of folder by name or number, else the first one that the word is the settings key of.
int FolderOf(const FolderRecord& record, const std::string& word)
{
    const int named = FolderNamed(word);
    for (int path = 0; named < 0 && path < DP_COUNT; ++path)
    {
        if (!word.empty() && lstrcmpiA(record.OriginOf(path).key.c_str(), word.c_str()) == 0)
        {
            return path;
        }
    }
    return named;
}

ExitStatus Get(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<Place> place = TakePlace(self, call, output);
    if (!place)
    {
        return ExitStatus::WrongUse;
    }
    FolderRecord record(place->layout, place->application);
    const int path = FolderOf(record, call.values[0]);
    if (path < 0)
    {
        ReportError(output, self,
                    "there is no folder " + Quoted(call.values[0]) + "; 'vorntool paths list' names them");
        return ExitStatus::Refused;
    }
    JsonWriter json;
    WriteFolder(BeginJson(json, *place, record), record, path);
    output.text = call.Has("json") ? json.EndObject().Line() : FolderText(record, path) + "\n";
    return ExitStatus::Done;
}

constexpr Option kOptions[] = {{"layout", "LAYOUT", "legacy, user, or auto (if not given): as the application chooses"},
                               kAppOption};

constexpr Command kCommands[] = {
    {"paths", "list", "", "List the folders of an application, and where each came from",
     "Printed are number, name, source and folder. The source is where a setting is\n"
     "stored that moves the folder, \"installation\" for the application's own folder as\n"
     "the family's INI file names it, or \"default\".",
     0, 0, kOptions, List},
    {"paths", "get", "NAME|NUMBER", "Print a folder of an application",
     "NAME is a name of 'paths list', with or without DP_, or the key of a setting\n"
     "(\"Charts Path\"); where a key serves several folders, the first one is printed.",
     1, 1, kOptions, Get},
};

} // namespace

const CommandGroup& PathsCommands()
{
    static const CommandGroup group = {"paths", "Folders of the applications.", kCommands};
    return group;
}

} // namespace vorn::tool
