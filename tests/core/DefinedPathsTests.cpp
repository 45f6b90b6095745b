#include "config/core/PathCompose.h"
#include "tests/support/DefinedFolders.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <vector>

using namespace vorn;
using namespace vorn::test;

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
