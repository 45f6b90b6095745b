#include "tests/support/DefinedFolders.h"
#include "tests/windows/paths/PathSettings.h"

#include <windows.h>

#include <shlobj.h>

#include <cstdio>

using namespace vorn::test;

namespace
{

/// A folder of the table with this system's folders in place of those that it was worked out with.
std::string OnThisSystem(std::string folder, const std::string& written, const std::string& actual)
{
    return folder.starts_with(written) ? actual + folder.substr(written.size()) : folder;
}

class StandardFolders : public PathSettings
{
protected:
    /// Rows without a setting and default stand at the root of the current drive, which is C in the table.
    StandardFolders()
    {
        GetCurrentDirectoryA(MAX_PATH, m_before);
        SetCurrentDirectoryA("C:\\");
    }
    ~StandardFolders() override
    {
        SetCurrentDirectoryA(m_before);
    }

    std::string Localised(const std::string& folder) const
    {
        std::string text = OnThisSystem(folder, R"(C:\users\pilot\AppData\Local\)", Shell(CSIDL_LOCAL_APPDATA));
        text = OnThisSystem(text, R"(C:\users\pilot\AppData\Roaming\)", Shell(CSIDL_APPDATA));
        text = OnThisSystem(text, R"(C:\users\pilot\)", Shell(CSIDL_PROFILE));
        return text;
    }

    void ExpectLayout(PathCfgVer layout, const char* Folders::*expected)
    {
        Set("Home Path", R"(C:\Program Files\Vornwald\Planner)");
        PathMgr* const paths = PathMgr::Instance();
        ASSERT_EQ(paths->SetPathCfgVer(layout, kApp), 0);
        for (int path = 0; path < DP_COUNT; ++path)
        {
            const CString folder = paths->GetPathInst(static_cast<DefinedPath>(path), kApp);
            std::printf("%2d  %s\n", path, folder.GetString());
            EXPECT_EQ(std::string(folder), Localised(kStandardFolders[path].*expected)) << path;
        }
    }

private:
    char m_before[MAX_PATH] = {};
};

} // namespace

TEST_F(StandardFolders, OfTheLegacyLayout)
{
    ExpectLayout(PCV_LEGACY, &Folders::legacy);
}

TEST_F(StandardFolders, OfTheUserLayout)
{
    ExpectLayout(PCV_VISTA, &Folders::user);
}

TEST_F(StandardFolders, MoveWithTheirSettings)
{
    Set("Home Path", Folder());
    for (const KeyRow& row : kKeys)
    {
        if (row.legacy != std::string() && row.row != DP_XMDATAPATH && row.row != DP_XMTEXTDATA)
            Set(row.legacy, std::string("Q:\\") + row.legacy);
    }
    PathMgr* const paths = PathMgr::Instance();
    paths->SetPathCfgVer(PCV_LEGACY, kApp);
    for (const KeyRow& row : kKeys)
    {
        if (row.legacy == std::string() || row.row == DP_XMDATAPATH || row.row == DP_XMTEXTDATA)
            continue;
        const std::string end = row.row == DP_APTDIAGRAM ? "" : "\\";
        EXPECT_EQ(std::string(paths->GetPathInst(static_cast<DefinedPath>(row.row), kApp)),
                  std::string("Q:\\") + row.legacy + end)
            << row.row;
    }
}
