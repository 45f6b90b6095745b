#include "tests/windows/paths/PathSettings.h"

#include "config/AppRegMgr.h"

#include <windows.h>

#include <shlobj.h>

namespace vorn::test
{

PathSettings::PathSettings()
{
    PathMgr::FreeInst();
    AppRegMgr::FreeInst();
}

PathSettings::~PathSettings()
{
    PathMgr::FreeInst();
    AppRegMgr::FreeInst();
}

void PathSettings::Set(const char* key, const std::string& value, const char* app)
{
    AppRegMgr::Instance()->AddApp(app);
    ASSERT_TRUE(AppRegMgr::Instance()->WriteVornString("Paths", key, value.c_str(), app));
}

void PathSettings::SetServer(const std::string& themePath)
{
    AppRegMgr::Instance()->AddApp("Global");
    ASSERT_TRUE(
        AppRegMgr::Instance()->WriteVornString("Network", "VV3 Server Theme Path", themePath.c_str(), "Global"));
}

std::string PathSettings::Folder() const
{
    std::string folder = m_folder.File("");
    return folder.ends_with('\\') ? folder : folder + "\\";
}

std::string PathSettings::MakeFolder(const std::string& name) const
{
    const std::string folder = Folder() + name + "\\";
    SHCreateDirectoryExA(nullptr, folder.c_str(), nullptr);
    return folder;
}

std::string PathSettings::Shell(int code)
{
    char path[MAX_PATH] = {};
    EXPECT_EQ(SHGetFolderPathA(nullptr, code, nullptr, SHGFP_TYPE_CURRENT, path), S_OK);
    return std::string(path) + "\\";
}

} // namespace vorn::test
