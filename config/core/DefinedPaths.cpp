#include "config/core/DefinedPaths.h"

namespace vorn
{

namespace
{

constexpr PathText Of(PathField field, const char* tail = nullptr)
{
    return {PathStart::Field, field, 0, VP_NONE, tail};
}

constexpr PathText Home(const char* tail = nullptr)
{
    return Of(PathField::Home, tail);
}

/// The value of an earlier row with a tail.
constexpr PathText Under(DefinedPath row, const char* tail)
{
    return {PathStart::Row, PathField::None, row, VP_NONE, tail};
}

constexpr PathText Known(KnownPath base, VornPath beneath, const char* subfolder = nullptr)
{
    return {PathStart::Known, PathField::None, base, beneath, subfolder};
}

constexpr PathRule Built(PathText text)
{
    return {PathReading::Built, nullptr, text, {}};
}

constexpr PathRule Setting(const char* key, PathText standard)
{
    return {PathReading::Setting, key, standard, {}};
}

constexpr PathRule Weather(const char* key)
{
    return {PathReading::WeatherSetting, key, {}, {}};
}

constexpr PathRule Diagrams(const char* key, PathText first, PathText second)
{
    return {PathReading::AirportDiagram, key, first, second};
}

constexpr PathRule Repeat()
{
    return {PathReading::Repeat, nullptr, {}, {}};
}

/// Folders of the application itself, without a setting of their own.
constexpr DefinedPathRow Plain(DefinedPath path, KnownPath base)
{
    return {path, Built(Home()), Built(Known(base, VP_APP))};
}

/// The same rule in both layouts.
constexpr DefinedPathRow Both(DefinedPath path, PathRule rule)
{
    return {path, rule, rule};
}

} // namespace

// clang-format off
constexpr std::array<DefinedPathRow, DP_COUNT> kDefinedPaths = {{
    Both(DP_EXE, Built(Of(PathField::Executable))),
    Both(DP_ROOT, Setting("Root Path", Of(PathField::Root))),
    {DP_USER, Setting("User Path", Of(PathField::Root)), Setting("User Path", Of(PathField::UserProfile))},
    {DP_USERHIDDEN, Setting("UserHidden Path", Of(PathField::Root)), Setting("UserHidden Path", Of(PathField::LocalData))},
    {DP_USERROAM, Setting("UserRoam Path", Of(PathField::Root)), Setting("UserRoam Path", Of(PathField::RoamingData))},
    {DP_PUBLIC, Setting("Public Path", Of(PathField::Root)), Setting("Public Path", Of(PathField::PublicFolder))},
    {DP_PUBLICHIDDEN, Setting("PublicHidden Path", Of(PathField::Root)), Setting("PublicHidden Path", Of(PathField::CommonData))},
    Both(DP_PATH7, Built(Of(PathField::ProgramFiles))),
    Both(DP_PATH8, Built(Home())),
    {DP_COMMON, Setting("Common Path", Home("..\\Common\\")), Repeat()},
    {DP_DATA, Setting("Data Path", Home("EnrouteData\\")), Setting("Data Path", Known(KP_PUBLICHIDDEN, VP_APP, "EnrouteData"))},
    Both(DP_DATA2, Setting("Data Path", Known(KP_PUBLICHIDDEN, VP_COMMONAPPDATA, "EnrouteData"))),
    {DP_VPL, Setting("VPL Path", Under(DP_COMMON, "VPL\\")), Setting("VPL Path", Known(KP_PUBLICHIDDEN, VP_COMMON, "VPL"))},
    {DP_BITMAP, Setting("Bitmap Path", Home("Bitmaps\\")), Setting("Bitmap Path", Known(KP_PUBLICHIDDEN, VP_APP, "Bitmaps"))},
    {DP_TRACK, Setting("Track Path", Home("Track\\")), Setting("Track Path", Known(KP_USER, VP_APP, "Track"))},
    {DP_CACHE, Setting("Cache Path", Home("Cache\\")), Setting("Cache Path", Known(KP_USERHIDDEN, VP_APP, "Cache"))},
    {DP_NOTEBOOK, Setting("Notebook Path", Home("Notebook\\")), Setting("Notebook Path", Known(KP_USER, VP_APP, "Notebook"))},
    {DP_CHECKLIST, Setting("Checklist Path", Home("Checklist\\")), Setting("Checklist Path", Known(KP_PUBLICHIDDEN, VP_APP, "Checklist"))},
    {DP_VEHICLE, Setting("Vehicle Path", Under(DP_COMMON, "Aircraft\\")), Setting("Vehicle Path", Known(KP_USER, VP_COMMON, "Aircraft"))},
    {DP_AIRCRAFT, Setting("Aircraft Path", Under(DP_COMMON, "Aircraft\\")), Setting("Aircraft Path", Known(KP_PUBLICHIDDEN, VP_COMMON, "Aircraft"))},
    {DP_TERRAIN, Setting("Terrain Path", Under(DP_COMMON, "Ter\\")), Setting("Terrain Path", Known(KP_PUBLICHIDDEN, VP_COMMON, "Ter"))},
    {DP_FONT, Setting("Font Path", Under(DP_COMMON, "Fonts\\")), Setting("Font Path", Known(KP_PUBLICHIDDEN, VP_COMMON, "Fonts"))},
    {DP_CHARTS, Setting("Charts Path", Home("Charts\\")), Setting("Charts Path", Known(KP_USER, VP_APP, "Charts"))},
    Both(DP_APPROACH, Setting("Approach Path", Under(DP_CHARTS, "Approach\\"))),
    {DP_REPORT, Setting("Report Path", Home("Reports\\")), Setting("Report Path", Known(KP_PUBLICHIDDEN, VP_APP, "Reports"))},
    {DP_THEME, Setting("Theme Path", Home("Themes\\")), Setting("Theme Path", Known(KP_PUBLICHIDDEN, VP_APP, "Themes"))},
    {DP_APTDIAGRAM, Diagrams("AptDiagram Path", Home("AptDiagram\\"), Under(DP_COMMON, "AptDiagram\\")),
                    Diagrams("AptDiagram Path", Home("AptDiagram\\"), Known(KP_PUBLICHIDDEN, VP_APP, "AptDiagram"))},
    {DP_WXOVERLAY, Setting("WxOverlay Path", Home("WxOverlay\\")), Setting("WxOverlay Path", Known(KP_PUBLICHIDDEN, VP_APP, "WxOverlay"))},
    {DP_USERWP, Setting("UserWP Path", Home()), Setting("UserWP Path", Known(KP_USER, VP_APP))},
    {DP_ROUTE, Setting("Route Path", Under(DP_COMMON, "RoutePack\\")), Setting("Route Path", Known(KP_USER, VP_COMMON, "RoutePack"))},
    {DP_WX, Setting("Wx Path", Under(DP_COMMON, "Weather\\")), Setting("Wx Path", Known(KP_USER, VP_COMMON, "Weather"))},
    {DP_WXGRAPHICS, Setting("WxGraphics Path", Under(DP_WX, "Graphics\\")), Setting("WxGraphics Path", Under(DP_CHARTS, "Graphics\\"))},
    {DP_WXVECTOR, Setting("WxVector Path", Under(DP_WX, "Vector\\")), Repeat()},
    {DP_WXTEXT, Setting("WxText Path", Under(DP_WX, "Text\\")), Setting("WxText Path", Under(DP_CHARTS, "Text\\"))},
    {DP_WXSCRIPT, Setting("WxScript Path", Home("WxScript\\")), Setting("WxScript Path", Known(KP_PUBLICHIDDEN, VP_APP, "WxScript"))},
    {DP_WXRENDER, Setting("WxRender Path", Home("WxRender\\")), Setting("WxRender Path", Known(KP_PUBLICHIDDEN, VP_COMMON, "WxRender"))},
    {DP_WXINVENTORY, Setting("WxInventory Path", Home("Themes\\")), Setting("WxInventory Path", Known(KP_PUBLICHIDDEN, VP_COMMON, "WxInventory"))},
    Plain(DP_PATH37, KP_USERHIDDEN),
    {DP_TERMINALCHARTS, Setting("TerminalCharts Path", Under(DP_COMMON, "TerminalCharts\\")),
                        Setting("TerminalCharts Path", Known(KP_PUBLICHIDDEN, VP_COMMON, "TerminalCharts"))},
    {DP_TRAINING, Setting("Training Path", Home("Training\\")), Setting("Training Path", Known(KP_PUBLICHIDDEN, VP_APP, "Training"))},
    {DP_TRAININGCOMMON, Setting("TrainingCommon Path", Under(DP_COMMON, "Training\\")),
                        Setting("TrainingCommon Path", Known(KP_PUBLICHIDDEN, VP_COMMON, "Training"))},
    {DP_USERTHEMES, Setting("Theme Path", Home("Themes\\")), Setting("UserThemes Path", Known(KP_USER, VP_COMMON, "Themes"))},
    Both(DP_PATH42, Repeat()),
    {DP_UPDATECLIENT, Setting("UpdateClient Path", Home()), Setting("UpdateClient Path", Known(KP_ROOT, VP_APP))},
    {DP_PATH44, Built(Under(DP_COMMON, "OAM\\")), Built(Known(KP_PUBLICHIDDEN, VP_COMMON, "OAM"))},
    {DP_SMITHS, Setting("Smiths Path", Home()), Setting("Smiths Path", Known(KP_USER, VP_APP))},
    {DP_THEME2, Setting("Theme Path", Home("Themes\\")), Built(Known(KP_USERHIDDEN, VP_APP))},
    {DP_PATH47, Built(Under(DP_COMMON, "Text\\Database\\")), Built(Known(KP_PUBLICHIDDEN, VP_COMMON, "Text\\Database"))},
    Plain(DP_PATH48, KP_PUBLICHIDDEN),
    Plain(DP_PATH49, KP_PUBLICHIDDEN),
    Plain(DP_PATH50, KP_PUBLICHIDDEN),
    Plain(DP_PATH51, KP_PUBLICHIDDEN),
    Plain(DP_PATH52, KP_USERHIDDEN),
    Plain(DP_PATH53, KP_PUBLICHIDDEN),
    Plain(DP_PATH54, KP_PUBLICHIDDEN),
    Plain(DP_PATH55, KP_PROGRAMFILES),
    Plain(DP_PATH56, KP_PROGRAMFILES),
    Plain(DP_PATH57, KP_PROGRAMFILES),
    Plain(DP_PATH58, KP_PUBLICHIDDEN),
    Plain(DP_PATH59, KP_PUBLICHIDDEN),
    Plain(DP_PATH60, KP_PUBLICHIDDEN),
    Plain(DP_PATH61, KP_USERHIDDEN),
    Plain(DP_PATH62, KP_PROGRAMFILES),
    Plain(DP_PATH63, KP_USERHIDDEN),
    Plain(DP_PATH64, KP_USERHIDDEN),
    {DP_PATH65, Built(Home()), Built(Known(KP_PUBLICHIDDEN, VP_COMMON, "WxInventory"))},
    Plain(DP_PATH66, KP_USERHIDDEN),
    Plain(DP_PATH67, KP_USERHIDDEN),
    Plain(DP_PATH68, KP_PROGRAMFILES),
    {DP_PATH69, Setting("Theme Path", Home("Themes\\")), Built(Known(KP_PUBLICHIDDEN, VP_COMMON, "WxInventory"))},
    Plain(DP_PATH70, KP_PROGRAMFILES),
    {DP_UTILITIES, Setting("Utilities Path", Under(DP_COMMON, "Utilities\\")), Setting("Utilities Path", Known(KP_PROGRAMFILES, VP_COMMON, "Utilities"))},
    {DP_PATH72, Built(Under(DP_COMMON, "Text\\")), Built(Known(KP_PUBLICHIDDEN, VP_COMMON, "Text"))},
    {DP_PATH73, Built(Under(DP_COMMON, "Utilities\\")), Built(Known(KP_USER, VP_COMMON, "Logfiles"))},
    Plain(DP_PATH74, KP_PROGRAMFILES),
    Plain(DP_PATH75, KP_PUBLICHIDDEN),
    Plain(DP_PATH76, KP_PUBLICHIDDEN),
    Plain(DP_PATH77, KP_PROGRAMFILES),
    Plain(DP_PATH78, KP_PUBLICHIDDEN),
    Plain(DP_PATH79, KP_PUBLICHIDDEN),
    Both(DP_XMDATAPATH, Weather("XMDataPath")),
    Both(DP_XMTEXTDATA, Weather("XMTextData")),
    Plain(DP_PATH82, KP_PROGRAMFILES),
    {DP_DOWNLOADS, Built(Known(KP_ROOT, VP_VORN, "Downloads")), Setting("Downloads Path", Known(KP_PUBLICHIDDEN, VP_NONE, "Downloads"))},
    {DP_PATH84, Built(Home("Formats\\")), Built(Known(KP_PUBLICHIDDEN, VP_APP, "Formats"))},
    {DP_PATH85, Built(Home("Data\\")), Built(Known(KP_PUBLICHIDDEN, VP_APP, "Data"))},
    Plain(DP_PATH86, KP_PUBLICHIDDEN),
    {DP_PATH87, Built(Home("Data\\")), Built(Known(KP_USER, VP_COMMON, "Data"))},
    {DP_PATH88, Built(Home("Data\\")), Built(Known(KP_USER, VP_COMMON, "Data"))},
    {DP_PATH89, Built(Home("Data\\")), Built(Known(KP_USER, VP_COMMON, "Data"))},
    Plain(DP_PATH90, KP_PROGRAMFILES),
    {DP_PATH91, Built(Home("DrawingAPI\\")), Built(Known(KP_USER, VP_COMMON, "DrawingAPI"))},
    {DP_DRAWINGTOOLS, Setting("Drawing Tools Path", Home("DrawingTools\\")), Setting("Drawing Tools Path", Known(KP_USER, VP_APP, "DrawingTools"))},
    Both(DP_TERMINALCHARTS2, Setting("TerminalCharts Path", Of(PathField::CommonData, "Vornwald\\Common\\NTQ\\config\\"))),
}};
// clang-format on

namespace
{

/// Each row stands at the index of its own name, settings have keys, and rows build on earlier rows only.
constexpr bool IsSound(const PathText& text, int row)
{
    return text.start != PathStart::Row || (text.number < row && text.tail != nullptr);
}

constexpr bool IsSound(const PathRule& rule, int row)
{
    const bool needsKey = rule.reading != PathReading::Built && rule.reading != PathReading::Repeat;
    return needsKey == (rule.key != nullptr) && (rule.reading != PathReading::Repeat || row > 0) &&
           IsSound(rule.text, row) && IsSound(rule.second, row);
}

constexpr bool IsSound()
{
    int row = 0;
    for (const DefinedPathRow& path : kDefinedPaths)
    {
        if (path.path != row || !IsSound(path.legacy, row) || !IsSound(path.user, row))
            return false;
        ++row;
    }
    return row == DP_COUNT;
}

static_assert(IsSound(), "every defined path stands in its place");

} // namespace

} // namespace vorn
