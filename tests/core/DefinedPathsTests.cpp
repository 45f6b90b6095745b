#include "config/core/PathCompose.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <vector>

using namespace vorn;

namespace
{

/// The folders of an installation, as an application's record holds them.
struct Installation
{
    std::string module;
    std::map<PathField, std::string> fields;
};

const Installation kStandard = {"Planner",
                                {{PathField::Executable, R"(C:\Program Files\Vornwald\Planner\)"},
                                 {PathField::Root, R"(C:\Program Files\)"},
                                 {PathField::UserProfile, R"(C:\users\pilot\)"},
                                 {PathField::LocalData, R"(C:\users\pilot\AppData\Local\)"},
                                 {PathField::RoamingData, R"(C:\users\pilot\AppData\Roaming\)"},
                                 {PathField::PublicFolder, R"(C:\users\Public\)"},
                                 {PathField::CommonData, R"(C:\ProgramData\)"},
                                 {PathField::ProgramFiles, R"(C:\Program Files\)"},
                                 {PathField::Home, R"(C:\Program Files\Vornwald\Planner\)"}}};

/// Every field on a drive of its own, so that no two sources can be mistaken for one another.
const Installation kScattered = {"Plan",
                                 {{PathField::Executable, R"(E:\Bin\)"},
                                  {PathField::Root, R"(R:\Root\)"},
                                  {PathField::UserProfile, R"(U:\pilot\)"},
                                  {PathField::LocalData, R"(L:\Local\)"},
                                  {PathField::RoamingData, R"(M:\Roaming\)"},
                                  {PathField::PublicFolder, R"(W:\Public\)"},
                                  {PathField::CommonData, R"(D:\ProgramData\)"},
                                  {PathField::ProgramFiles, R"(P:\Programs\)"},
                                  {PathField::Home, R"(H:\Fam\Vornwald\Plan\)"}}};

/// What the system's full-path call makes of the texts that occur here: "..", doubled separators, the root of drive C.
std::string Canonical(const std::string& path)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (start < path.size())
    {
        const std::size_t end = std::min(path.find('\\', start), path.size());
        const std::string part = path.substr(start, end - start);
        start = end + 1;
        if (part == "..")
            parts.pop_back();
        else if (!part.empty())
            parts.push_back(part);
    }
    if (parts.empty())
        parts.emplace_back("C:");
    std::string result;
    for (const std::string& part : parts)
        result += part + "\\";
    return result;
}

/// An application's record on paper: settings in a map, no file in any folder.
class PaperSource : public PathSource
{
public:
    explicit PaperSource(const Installation& installation, std::map<std::string, std::string> settings = {})
        : m_installation(installation), m_settings(std::move(settings))
    {
    }

    std::string Field(PathField field) const override
    {
        const auto found = m_installation.fields.find(field);
        return found != m_installation.fields.end() ? found->second : "";
    }

    std::string Setting(const char* key, const std::string& standard, const char* section) override
    {
        const auto found = m_settings.find(std::string(section) + "/" + key);
        return Canonical(WithBackslash(found != m_settings.end() ? found->second : standard));
    }

    std::string AirportDiagrams(const char* key, const std::string& first, const std::string& second) override
    {
        const auto found = m_settings.find(std::string("Paths/") + key);
        return ChooseDiagramFolder(found != m_settings.end() ? found->second : "", first, second,
                                   [](const std::string&)
                                   {
                                       return false;
                                   });
    }

    std::string Known(KnownPath base, VornPath beneath, const char* subfolder) override
    {
        const std::optional<DefinedPath> row = RowOfKnownPath(base);
        return ComposedFolder(row ? folders.at(static_cast<std::size_t>(*row)) : "?", beneath,
                              {m_installation.module, m_installation.fields.at(PathField::CommonData), false},
                              subfolder != nullptr ? std::optional<std::string_view>(subfolder) : std::nullopt);
    }

    void Add(DefinedPath path, const std::string& folder) override
    {
        EXPECT_EQ(static_cast<std::size_t>(path), folders.size()) << "rows come in ascending order";
        folders.push_back(folder);
    }

    std::vector<std::string> folders;

private:
    const Installation& m_installation;
    std::map<std::string, std::string> m_settings;
};

std::vector<std::string> Filled(PathCfgVer layout, const Installation& installation,
                                std::map<std::string, std::string> settings = {})
{
    PaperSource source(installation, std::move(settings));
    FillLayout(layout, source);
    return source.folders;
}

struct Folders
{
    const char* legacy;
    const char* user;
};

// The three tables below were worked out by a script from the written rules of the 94 folders, not from the table in
// the code; no file stands in the first airport diagram folder.

// clang-format off
constexpr Folders kStandardFolders[] = {
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 0
    {R"(C:\Program Files\)", R"(C:\Program Files\)"}, // 1
    {R"(C:\Program Files\)", R"(C:\users\pilot\)"}, // 2
    {R"(C:\Program Files\)", R"(C:\users\pilot\AppData\Local\)"}, // 3
    {R"(C:\Program Files\)", R"(C:\users\pilot\AppData\Roaming\)"}, // 4
    {R"(C:\Program Files\)", R"(C:\users\Public\)"}, // 5
    {R"(C:\Program Files\)", R"(C:\ProgramData\)"}, // 6
    {R"(C:\Program Files\)", R"(C:\Program Files\)"}, // 7
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 8
    {R"(C:\Program Files\Vornwald\Common\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 9
    {R"(C:\Program Files\Vornwald\Planner\EnrouteData\)", R"(C:\ProgramData\Vornwald\Planner\EnrouteData\)"}, // 10
    {R"(C:\ProgramData\Vornwald\Planner\EnrouteData\)", R"(C:\ProgramData\Vornwald\Planner\EnrouteData\)"}, // 11
    {R"(C:\Program Files\Vornwald\Common\VPL\)", R"(C:\ProgramData\Vornwald\Common\VPL\)"}, // 12
    {R"(C:\Program Files\Vornwald\Planner\Bitmaps\)", R"(C:\ProgramData\Vornwald\Planner\Bitmaps\)"}, // 13
    {R"(C:\Program Files\Vornwald\Planner\Track\)", R"(C:\users\pilot\Vornwald\Planner\Track\)"}, // 14
    {R"(C:\Program Files\Vornwald\Planner\Cache\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\Cache\)"}, // 15
    {R"(C:\Program Files\Vornwald\Planner\Notebook\)", R"(C:\users\pilot\Vornwald\Planner\Notebook\)"}, // 16
    {R"(C:\Program Files\Vornwald\Planner\Checklist\)", R"(C:\ProgramData\Vornwald\Planner\Checklist\)"}, // 17
    {R"(C:\Program Files\Vornwald\Common\Aircraft\)", R"(C:\users\pilot\Vornwald\Common\Aircraft\)"}, // 18
    {R"(C:\Program Files\Vornwald\Common\Aircraft\)", R"(C:\ProgramData\Vornwald\Common\Aircraft\)"}, // 19
    {R"(C:\Program Files\Vornwald\Common\Ter\)", R"(C:\ProgramData\Vornwald\Common\Ter\)"}, // 20
    {R"(C:\Program Files\Vornwald\Common\Fonts\)", R"(C:\ProgramData\Vornwald\Common\Fonts\)"}, // 21
    {R"(C:\Program Files\Vornwald\Planner\Charts\)", R"(C:\users\pilot\Vornwald\Planner\Charts\)"}, // 22
    {R"(C:\Program Files\Vornwald\Planner\Charts\Approach\)", R"(C:\users\pilot\Vornwald\Planner\Charts\Approach\)"}, // 23
    {R"(C:\Program Files\Vornwald\Planner\Reports\)", R"(C:\ProgramData\Vornwald\Planner\Reports\)"}, // 24
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\ProgramData\Vornwald\Planner\Themes\)"}, // 25
    {R"(C:\Program Files\Vornwald\Common\AptDiagram\)", R"(C:\ProgramData\Vornwald\Planner\AptDiagram\)"}, // 26
    {R"(C:\Program Files\Vornwald\Planner\WxOverlay\)", R"(C:\ProgramData\Vornwald\Planner\WxOverlay\)"}, // 27
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\Vornwald\Planner\)"}, // 28
    {R"(C:\Program Files\Vornwald\Common\RoutePack\)", R"(C:\users\pilot\Vornwald\Common\RoutePack\)"}, // 29
    {R"(C:\Program Files\Vornwald\Common\Weather\)", R"(C:\users\pilot\Vornwald\Common\Weather\)"}, // 30
    {R"(C:\Program Files\Vornwald\Common\Weather\Graphics\)", R"(C:\users\pilot\Vornwald\Planner\Charts\Graphics\)"}, // 31
    {R"(C:\Program Files\Vornwald\Common\Weather\Vector\)", R"(C:\users\pilot\Vornwald\Planner\Charts\Graphics\)"}, // 32
    {R"(C:\Program Files\Vornwald\Common\Weather\Text\)", R"(C:\users\pilot\Vornwald\Planner\Charts\Text\)"}, // 33
    {R"(C:\Program Files\Vornwald\Planner\WxScript\)", R"(C:\ProgramData\Vornwald\Planner\WxScript\)"}, // 34
    {R"(C:\Program Files\Vornwald\Planner\WxRender\)", R"(C:\ProgramData\Vornwald\Common\WxRender\)"}, // 35
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\ProgramData\Vornwald\Common\WxInventory\)"}, // 36
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 37
    {R"(C:\Program Files\Vornwald\Common\TerminalCharts\)", R"(C:\ProgramData\Vornwald\Common\TerminalCharts\)"}, // 38
    {R"(C:\Program Files\Vornwald\Planner\Training\)", R"(C:\ProgramData\Vornwald\Planner\Training\)"}, // 39
    {R"(C:\Program Files\Vornwald\Common\Training\)", R"(C:\ProgramData\Vornwald\Common\Training\)"}, // 40
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\users\pilot\Vornwald\Common\Themes\)"}, // 41
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\users\pilot\Vornwald\Common\Themes\)"}, // 42
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 43
    {R"(C:\Program Files\Vornwald\Common\OAM\)", R"(C:\ProgramData\Vornwald\Common\OAM\)"}, // 44
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\Vornwald\Planner\)"}, // 45
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 46
    {R"(C:\Program Files\Vornwald\Common\Text\Database\)", R"(C:\ProgramData\Vornwald\Common\Text\Database\)"}, // 47
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 48
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 49
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 50
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 51
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 52
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 53
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 54
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 55
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 56
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 57
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 58
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 59
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 60
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 61
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 62
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 63
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 64
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Common\WxInventory\)"}, // 65
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 66
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\users\pilot\AppData\Local\Vornwald\Planner\)"}, // 67
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 68
    {R"(C:\Program Files\Vornwald\Planner\Themes\)", R"(C:\ProgramData\Vornwald\Common\WxInventory\)"}, // 69
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 70
    {R"(C:\Program Files\Vornwald\Common\Utilities\)", R"(C:\Program Files\Vornwald\Common\Utilities\)"}, // 71
    {R"(C:\Program Files\Vornwald\Common\Text\)", R"(C:\ProgramData\Vornwald\Common\Text\)"}, // 72
    {R"(C:\Program Files\Vornwald\Common\Utilities\)", R"(C:\users\pilot\Vornwald\Common\Logfiles\)"}, // 73
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 74
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 75
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 76
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 77
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 78
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 79
    {R"(C:\)", R"(C:\)"}, // 80
    {R"(C:\)", R"(C:\)"}, // 81
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 82
    {R"(C:\Program Files\Vornwald\Downloads\)", R"(C:\ProgramData\Downloads\)"}, // 83
    {R"(C:\Program Files\Vornwald\Planner\Formats\)", R"(C:\ProgramData\Vornwald\Planner\Formats\)"}, // 84
    {R"(C:\Program Files\Vornwald\Planner\Data\)", R"(C:\ProgramData\Vornwald\Planner\Data\)"}, // 85
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\ProgramData\Vornwald\Planner\)"}, // 86
    {R"(C:\Program Files\Vornwald\Planner\Data\)", R"(C:\users\pilot\Vornwald\Common\Data\)"}, // 87
    {R"(C:\Program Files\Vornwald\Planner\Data\)", R"(C:\users\pilot\Vornwald\Common\Data\)"}, // 88
    {R"(C:\Program Files\Vornwald\Planner\Data\)", R"(C:\users\pilot\Vornwald\Common\Data\)"}, // 89
    {R"(C:\Program Files\Vornwald\Planner\)", R"(C:\Program Files\Vornwald\Planner\)"}, // 90
    {R"(C:\Program Files\Vornwald\Planner\DrawingAPI\)", R"(C:\users\pilot\Vornwald\Common\DrawingAPI\)"}, // 91
    {R"(C:\Program Files\Vornwald\Planner\DrawingTools\)", R"(C:\users\pilot\Vornwald\Planner\DrawingTools\)"}, // 92
    {R"(C:\ProgramData\Vornwald\Common\NTQ\config\)", R"(C:\ProgramData\Vornwald\Common\NTQ\config\)"}, // 93
};

constexpr Folders kScatteredFolders[] = {
    {R"(E:\Bin\)", R"(E:\Bin\)"}, // 0
    {R"(R:\Root\)", R"(R:\Root\)"}, // 1
    {R"(R:\Root\)", R"(U:\pilot\)"}, // 2
    {R"(R:\Root\)", R"(L:\Local\)"}, // 3
    {R"(R:\Root\)", R"(M:\Roaming\)"}, // 4
    {R"(R:\Root\)", R"(W:\Public\)"}, // 5
    {R"(R:\Root\)", R"(D:\ProgramData\)"}, // 6
    {R"(P:\Programs\)", R"(P:\Programs\)"}, // 7
    {R"(H:\Fam\Vornwald\Plan\)", R"(H:\Fam\Vornwald\Plan\)"}, // 8
    {R"(H:\Fam\Vornwald\Common\)", R"(H:\Fam\Vornwald\Plan\)"}, // 9
    {R"(H:\Fam\Vornwald\Plan\EnrouteData\)", R"(D:\ProgramData\Vornwald\Plan\EnrouteData\)"}, // 10
    {R"(D:\ProgramData\Vornwald\Plan\EnrouteData\)", R"(D:\ProgramData\Vornwald\Plan\EnrouteData\)"}, // 11
    {R"(H:\Fam\Vornwald\Common\VPL\)", R"(D:\ProgramData\Vornwald\Common\VPL\)"}, // 12
    {R"(H:\Fam\Vornwald\Plan\Bitmaps\)", R"(D:\ProgramData\Vornwald\Plan\Bitmaps\)"}, // 13
    {R"(H:\Fam\Vornwald\Plan\Track\)", R"(U:\pilot\Vornwald\Plan\Track\)"}, // 14
    {R"(H:\Fam\Vornwald\Plan\Cache\)", R"(L:\Local\Vornwald\Plan\Cache\)"}, // 15
    {R"(H:\Fam\Vornwald\Plan\Notebook\)", R"(U:\pilot\Vornwald\Plan\Notebook\)"}, // 16
    {R"(H:\Fam\Vornwald\Plan\Checklist\)", R"(D:\ProgramData\Vornwald\Plan\Checklist\)"}, // 17
    {R"(H:\Fam\Vornwald\Common\Aircraft\)", R"(U:\pilot\Vornwald\Common\Aircraft\)"}, // 18
    {R"(H:\Fam\Vornwald\Common\Aircraft\)", R"(D:\ProgramData\Vornwald\Common\Aircraft\)"}, // 19
    {R"(H:\Fam\Vornwald\Common\Ter\)", R"(D:\ProgramData\Vornwald\Common\Ter\)"}, // 20
    {R"(H:\Fam\Vornwald\Common\Fonts\)", R"(D:\ProgramData\Vornwald\Common\Fonts\)"}, // 21
    {R"(H:\Fam\Vornwald\Plan\Charts\)", R"(U:\pilot\Vornwald\Plan\Charts\)"}, // 22
    {R"(H:\Fam\Vornwald\Plan\Charts\Approach\)", R"(U:\pilot\Vornwald\Plan\Charts\Approach\)"}, // 23
    {R"(H:\Fam\Vornwald\Plan\Reports\)", R"(D:\ProgramData\Vornwald\Plan\Reports\)"}, // 24
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(D:\ProgramData\Vornwald\Plan\Themes\)"}, // 25
    {R"(H:\Fam\Vornwald\Common\AptDiagram\)", R"(D:\ProgramData\Vornwald\Plan\AptDiagram\)"}, // 26
    {R"(H:\Fam\Vornwald\Plan\WxOverlay\)", R"(D:\ProgramData\Vornwald\Plan\WxOverlay\)"}, // 27
    {R"(H:\Fam\Vornwald\Plan\)", R"(U:\pilot\Vornwald\Plan\)"}, // 28
    {R"(H:\Fam\Vornwald\Common\RoutePack\)", R"(U:\pilot\Vornwald\Common\RoutePack\)"}, // 29
    {R"(H:\Fam\Vornwald\Common\Weather\)", R"(U:\pilot\Vornwald\Common\Weather\)"}, // 30
    {R"(H:\Fam\Vornwald\Common\Weather\Graphics\)", R"(U:\pilot\Vornwald\Plan\Charts\Graphics\)"}, // 31
    {R"(H:\Fam\Vornwald\Common\Weather\Vector\)", R"(U:\pilot\Vornwald\Plan\Charts\Graphics\)"}, // 32
    {R"(H:\Fam\Vornwald\Common\Weather\Text\)", R"(U:\pilot\Vornwald\Plan\Charts\Text\)"}, // 33
    {R"(H:\Fam\Vornwald\Plan\WxScript\)", R"(D:\ProgramData\Vornwald\Plan\WxScript\)"}, // 34
    {R"(H:\Fam\Vornwald\Plan\WxRender\)", R"(D:\ProgramData\Vornwald\Common\WxRender\)"}, // 35
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(D:\ProgramData\Vornwald\Common\WxInventory\)"}, // 36
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 37
    {R"(H:\Fam\Vornwald\Common\TerminalCharts\)", R"(D:\ProgramData\Vornwald\Common\TerminalCharts\)"}, // 38
    {R"(H:\Fam\Vornwald\Plan\Training\)", R"(D:\ProgramData\Vornwald\Plan\Training\)"}, // 39
    {R"(H:\Fam\Vornwald\Common\Training\)", R"(D:\ProgramData\Vornwald\Common\Training\)"}, // 40
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(U:\pilot\Vornwald\Common\Themes\)"}, // 41
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(U:\pilot\Vornwald\Common\Themes\)"}, // 42
    {R"(H:\Fam\Vornwald\Plan\)", R"(R:\Root\Vornwald\Plan\)"}, // 43
    {R"(H:\Fam\Vornwald\Common\OAM\)", R"(D:\ProgramData\Vornwald\Common\OAM\)"}, // 44
    {R"(H:\Fam\Vornwald\Plan\)", R"(U:\pilot\Vornwald\Plan\)"}, // 45
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(L:\Local\Vornwald\Plan\)"}, // 46
    {R"(H:\Fam\Vornwald\Common\Text\Database\)", R"(D:\ProgramData\Vornwald\Common\Text\Database\)"}, // 47
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 48
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 49
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 50
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 51
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 52
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 53
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 54
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 55
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 56
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 57
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 58
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 59
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 60
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 61
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 62
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 63
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 64
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Common\WxInventory\)"}, // 65
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 66
    {R"(H:\Fam\Vornwald\Plan\)", R"(L:\Local\Vornwald\Plan\)"}, // 67
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 68
    {R"(H:\Fam\Vornwald\Plan\Themes\)", R"(D:\ProgramData\Vornwald\Common\WxInventory\)"}, // 69
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 70
    {R"(H:\Fam\Vornwald\Common\Utilities\)", R"(P:\Programs\Vornwald\Common\Utilities\)"}, // 71
    {R"(H:\Fam\Vornwald\Common\Text\)", R"(D:\ProgramData\Vornwald\Common\Text\)"}, // 72
    {R"(H:\Fam\Vornwald\Common\Utilities\)", R"(U:\pilot\Vornwald\Common\Logfiles\)"}, // 73
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 74
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 75
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 76
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 77
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 78
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 79
    {R"(C:\)", R"(C:\)"}, // 80
    {R"(C:\)", R"(C:\)"}, // 81
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 82
    {R"(R:\Root\Vornwald\Downloads\)", R"(D:\ProgramData\Downloads\)"}, // 83
    {R"(H:\Fam\Vornwald\Plan\Formats\)", R"(D:\ProgramData\Vornwald\Plan\Formats\)"}, // 84
    {R"(H:\Fam\Vornwald\Plan\Data\)", R"(D:\ProgramData\Vornwald\Plan\Data\)"}, // 85
    {R"(H:\Fam\Vornwald\Plan\)", R"(D:\ProgramData\Vornwald\Plan\)"}, // 86
    {R"(H:\Fam\Vornwald\Plan\Data\)", R"(U:\pilot\Vornwald\Common\Data\)"}, // 87
    {R"(H:\Fam\Vornwald\Plan\Data\)", R"(U:\pilot\Vornwald\Common\Data\)"}, // 88
    {R"(H:\Fam\Vornwald\Plan\Data\)", R"(U:\pilot\Vornwald\Common\Data\)"}, // 89
    {R"(H:\Fam\Vornwald\Plan\)", R"(P:\Programs\Vornwald\Plan\)"}, // 90
    {R"(H:\Fam\Vornwald\Plan\DrawingAPI\)", R"(U:\pilot\Vornwald\Common\DrawingAPI\)"}, // 91
    {R"(H:\Fam\Vornwald\Plan\DrawingTools\)", R"(U:\pilot\Vornwald\Plan\DrawingTools\)"}, // 92
    {R"(D:\ProgramData\Vornwald\Common\NTQ\config\)", R"(D:\ProgramData\Vornwald\Common\NTQ\config\)"}, // 93
};

/// Which setting moves which row in which layout.
struct KeyRow
{
    int row;
    const char* legacy;
    const char* user;
};

constexpr KeyRow kKeys[] = {
    {1, "Root Path", "Root Path"},
    {2, "User Path", "User Path"},
    {3, "UserHidden Path", "UserHidden Path"},
    {4, "UserRoam Path", "UserRoam Path"},
    {5, "Public Path", "Public Path"},
    {6, "PublicHidden Path", "PublicHidden Path"},
    {9, "Common Path", ""},
    {10, "Data Path", "Data Path"},
    {11, "Data Path", "Data Path"},
    {12, "VPL Path", "VPL Path"},
    {13, "Bitmap Path", "Bitmap Path"},
    {14, "Track Path", "Track Path"},
    {15, "Cache Path", "Cache Path"},
    {16, "Notebook Path", "Notebook Path"},
    {17, "Checklist Path", "Checklist Path"},
    {18, "Vehicle Path", "Vehicle Path"},
    {19, "Aircraft Path", "Aircraft Path"},
    {20, "Terrain Path", "Terrain Path"},
    {21, "Font Path", "Font Path"},
    {22, "Charts Path", "Charts Path"},
    {23, "Approach Path", "Approach Path"},
    {24, "Report Path", "Report Path"},
    {25, "Theme Path", "Theme Path"},
    {26, "AptDiagram Path", "AptDiagram Path"},
    {27, "WxOverlay Path", "WxOverlay Path"},
    {28, "UserWP Path", "UserWP Path"},
    {29, "Route Path", "Route Path"},
    {30, "Wx Path", "Wx Path"},
    {31, "WxGraphics Path", "WxGraphics Path"},
    {32, "WxVector Path", ""},
    {33, "WxText Path", "WxText Path"},
    {34, "WxScript Path", "WxScript Path"},
    {35, "WxRender Path", "WxRender Path"},
    {36, "WxInventory Path", "WxInventory Path"},
    {38, "TerminalCharts Path", "TerminalCharts Path"},
    {39, "Training Path", "Training Path"},
    {40, "TrainingCommon Path", "TrainingCommon Path"},
    {41, "Theme Path", "UserThemes Path"},
    {43, "UpdateClient Path", "UpdateClient Path"},
    {45, "Smiths Path", "Smiths Path"},
    {46, "Theme Path", ""},
    {69, "Theme Path", ""},
    {71, "Utilities Path", "Utilities Path"},
    {80, "XMDataPath", "XMDataPath"},
    {81, "XMTextData", "XMTextData"},
    {83, "", "Downloads Path"},
    {92, "Drawing Tools Path", "Drawing Tools Path"},
    {93, "TerminalCharts Path", "TerminalCharts Path"},
};
// clang-format on

static_assert(std::size(kStandardFolders) == DP_COUNT && std::size(kScatteredFolders) == DP_COUNT);

void ExpectFolders(const std::vector<std::string>& folders, const Folders (&expected)[DP_COUNT],
                   const char* Folders::*layout)
{
    ASSERT_EQ(folders.size(), std::size(expected));
    for (std::size_t row = 0; row < std::size(expected); ++row)
        EXPECT_EQ(folders[row], expected[row].*layout) << "row " << row;
}

const KeyRow* KeyOf(int row)
{
    for (const KeyRow& key : kKeys)
    {
        if (key.row == row)
            return &key;
    }
    return nullptr;
}

std::string SectionOf(const char* key)
{
    return std::string(std::strncmp(key, "XM", 2) == 0 ? "Weather/" : "Paths/") + key;
}

/// Every key set to a folder of its own name: rows with a key must take it.
std::map<std::string, std::string> EverySetting(const char* KeyRow::*layout)
{
    std::map<std::string, std::string> settings;
    for (const KeyRow& key : kKeys)
    {
        if (key.*layout != std::string())
            settings[SectionOf(key.*layout)] = std::string("Q:\\") + key.*layout;
    }
    return settings;
}

void ExpectOverrides(PathCfgVer layout, const char* KeyRow::*keys)
{
    const std::vector<std::string> folders = Filled(layout, kScattered, EverySetting(keys));
    for (int row = 0; row < DP_COUNT; ++row)
    {
        const KeyRow* const key = KeyOf(row);
        const std::string& folder = folders[static_cast<std::size_t>(row)];
        const bool repeats = row == DP_PATH42 || (layout == PCV_VISTA && row == DP_WXVECTOR);
        if (repeats)
            EXPECT_EQ(folder, folders[static_cast<std::size_t>(row) - 1]) << row;
        else if (row == DP_APTDIAGRAM)
            EXPECT_EQ(folder, "Q:\\AptDiagram Path") << "the setting as it stands";
        else if (key != nullptr && key->*keys != std::string())
            EXPECT_EQ(folder, std::string("Q:\\") + key->*keys + "\\") << row;
        else
            EXPECT_NE(folder.substr(0, folder.find('\\', 3)), std::string("Q:\\") + (key != nullptr ? key->legacy : ""))
                << row;
    }
}

} // namespace

TEST(DefinedPaths, LegacyFoldersOfAStandardInstallation)
{
    ExpectFolders(Filled(PCV_LEGACY, kStandard), kStandardFolders, &Folders::legacy);
}

TEST(DefinedPaths, UserFoldersOfAStandardInstallation)
{
    ExpectFolders(Filled(PCV_VISTA, kStandard), kStandardFolders, &Folders::user);
}

TEST(DefinedPaths, LegacyFoldersOfAScatteredInstallation)
{
    ExpectFolders(Filled(PCV_LEGACY, kScattered), kScatteredFolders, &Folders::legacy);
}

TEST(DefinedPaths, UserFoldersOfAScatteredInstallation)
{
    ExpectFolders(Filled(PCV_VISTA, kScattered), kScatteredFolders, &Folders::user);
}

TEST(DefinedPaths, TakeTheirSettingsInTheLegacyLayout)
{
    ExpectOverrides(PCV_LEGACY, &KeyRow::legacy);
}

TEST(DefinedPaths, TakeTheirSettingsInTheUserLayout)
{
    ExpectOverrides(PCV_VISTA, &KeyRow::user);
}

TEST(DefinedPaths, OneKeyMovesEveryRowThatReadsIt)
{
    const auto folders = Filled(PCV_LEGACY, kScattered, {{"Paths/Theme Path", "Q:\\T"}});
    for (const int row : {25, 41, 42, 46, 69})
        EXPECT_EQ(folders[static_cast<std::size_t>(row)], "Q:\\T\\") << row;
    EXPECT_EQ(folders[DP_WXINVENTORY], R"(H:\Fam\Vornwald\Plan\Themes\)") << "has a key of its own";
}

TEST(DefinedPaths, RowsTwoToSixDefaultToTheRootFieldNotToRowOne)
{
    const auto folders = Filled(PCV_LEGACY, kScattered, {{"Paths/Root Path", "Q:\\R\\"}});
    EXPECT_EQ(folders[DP_ROOT], "Q:\\R\\");
    for (int row = DP_USER; row <= DP_PUBLICHIDDEN; ++row)
        EXPECT_EQ(folders[static_cast<std::size_t>(row)], "R:\\Root\\") << row;
}

TEST(DefinedPaths, TheUserLayoutIgnoresSettingsOfRepeatedRows)
{
    const auto folders =
        Filled(PCV_VISTA, kScattered, {{"Paths/Common Path", "Q:\\C\\"}, {"Paths/WxVector Path", "Q:\\V\\"}});
    EXPECT_EQ(folders[DP_COMMON], folders[DP_PATH8]);
    EXPECT_EQ(folders[DP_WXVECTOR], folders[DP_WXGRAPHICS]);
}

TEST(DefinedPaths, LaterRowsFollowTheRowsTheyHangUnder)
{
    const auto folders =
        Filled(PCV_LEGACY, kScattered,
               {{"Paths/Common Path", "Q:\\C"}, {"Paths/Wx Path", "Q:\\W\\"}, {"Paths/PublicHidden Path", "Q:\\H\\"}});
    EXPECT_EQ(folders[DP_VPL], "Q:\\C\\VPL\\");
    EXPECT_EQ(folders[DP_WXTEXT], "Q:\\W\\Text\\");
    EXPECT_EQ(folders[DP_DATA2], "D:\\ProgramData\\Vornwald\\Plan\\EnrouteData\\")
        << "the common data field, not row 6";
}

TEST(DefinedPaths, RowsWithoutSettingsKeepTheFormInWhichTheyWereBuilt)
{
    Installation odd = kScattered;
    odd.fields[PathField::Home] = "H:\\a\\..\\b";
    odd.fields[PathField::ProgramFiles] = "P:";
    const auto folders = Filled(PCV_LEGACY, odd);
    EXPECT_EQ(folders[DP_PATH7], "P:");
    EXPECT_EQ(folders[DP_PATH8], "H:\\a\\..\\b");
    EXPECT_EQ(folders[DP_PATH84], "H:\\a\\..\\bFormats\\");
    EXPECT_EQ(folders[DP_USERWP], "H:\\b\\");
}

TEST(DefinedPaths, HaveFixedNumbers)
{
    EXPECT_EQ(DP_EXE, 0);
    EXPECT_EQ(DP_ROOT, 1);
    EXPECT_EQ(DP_DATA2, 11);
    EXPECT_EQ(DP_CHARTS, 22);
    EXPECT_EQ(DP_PATH48, 48);
    EXPECT_EQ(DP_DOWNLOADS, 83);
    EXPECT_EQ(DP_TERMINALCHARTS2, 93);
    EXPECT_EQ(DP_COUNT, 94);
    EXPECT_EQ(kDefinedPaths.size(), 94U);
}
