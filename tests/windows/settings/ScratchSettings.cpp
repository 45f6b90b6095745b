#include "tests/windows/settings/ScratchSettings.h"

#include "config/AppRegMgr.h"
#include "config/GlobalRegData.h"

#include <shlobj.h>

#include <cstdio>

namespace vorn::test
{
namespace
{
std::string WindowsFolder()
{
    char path[MAX_PATH];
    GetWindowsDirectoryA(path, MAX_PATH);
    return path;
}

std::string UserCopyFolder()
{
    char path[MAX_PATH];
    SHGetFolderPathA(nullptr, CSIDL_LOCAL_APPDATA, nullptr, 0, path);
    return std::string(path) + "\\VirtualStore" + WindowsFolder().substr(2);
}
} // namespace

RawValue RawText(std::string_view text)
{
    return {REG_SZ, std::string(text) + '\0'};
}

RawValue RawNumber(DWORD number)
{
    return {REG_DWORD, std::string(reinterpret_cast<const char*>(&number), sizeof number)};
}

ScratchSettings::ScratchSettings() : m_app("VornTest" + std::to_string(GetCurrentProcessId()))
{
    CleanUp();
}

ScratchSettings::~ScratchSettings()
{
    CleanUp();
}

void ScratchSettings::CleanUp() const
{
    AppRegMgr::FreeInst();
    GlobalRegData::SetGlobalSections("");
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
    {
        RegDeleteTreeA(root, KeyPath("").c_str());
    }
    DeleteFileA(SharedIni().c_str());
    DeleteFileA(UserIni().c_str());
}

std::string ScratchSettings::KeyPath(const std::string& section) const
{
    return "Software\\Vornwald\\" + m_app + (section.empty() ? "" : "\\" + section);
}

void ScratchSettings::Put(const char* section, const char* key, const RawValue& value, HKEY root) const
{
    // The system takes a zero behind an unterminated text along: something else must stand there.
    const std::string guarded = value.bytes + '#';
    HKEY opened = nullptr;
    ASSERT_EQ(RegCreateKeyExA(root, KeyPath(section).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS | KEY_WOW64_32KEY, nullptr,
                              &opened, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExA(opened, key, 0, value.type, reinterpret_cast<const BYTE*>(guarded.data()),
                             static_cast<DWORD>(value.bytes.size())),
              ERROR_SUCCESS);
    RegCloseKey(opened);
}

std::optional<RawValue> ScratchSettings::Get(const char* section, const char* key, HKEY root) const
{
    RawValue value{0, std::string(4096, '\0')};
    auto size = static_cast<DWORD>(value.bytes.size());
    HKEY opened = nullptr;
    if (RegOpenKeyExA(root, KeyPath(section).c_str(), 0, KEY_READ | KEY_WOW64_32KEY, &opened) != ERROR_SUCCESS)
    {
        return std::nullopt;
    }
    const LSTATUS status =
        RegQueryValueExA(opened, key, nullptr, &value.type, reinterpret_cast<BYTE*>(value.bytes.data()), &size);
    RegCloseKey(opened);
    value.bytes.resize(size);
    return status == ERROR_SUCCESS ? std::optional(value) : std::nullopt;
}

bool ScratchSettings::HasKey(const std::string& section, HKEY root) const
{
    HKEY opened = nullptr;
    const bool found =
        RegOpenKeyExA(root, KeyPath(section).c_str(), 0, KEY_READ | KEY_WOW64_32KEY, &opened) == ERROR_SUCCESS;
    RegCloseKey(opened);
    return found;
}

void ScratchSettings::DeleteKey(const std::string& section, HKEY root) const
{
    EXPECT_EQ(RegDeleteTreeA(root, KeyPath(section).c_str()), ERROR_SUCCESS);
}

std::string ScratchSettings::SharedIni() const
{
    return WindowsFolder() + '\\' + m_app + ".INI";
}

std::string ScratchSettings::UserIni() const
{
    return UserCopyFolder() + '\\' + m_app + ".INI";
}

void ScratchSettings::WriteSharedIni(std::string_view text) const
{
    WriteFile(SharedIni(), text);
}

void ScratchSettings::WriteUserIni(std::string_view text) const
{
    SHCreateDirectoryExA(nullptr, UserCopyFolder().c_str(), nullptr);
    WriteFile(UserIni(), text);
}

void WriteFile(const std::string& path, std::string_view text)
{
    FILE* file = std::fopen(path.c_str(), "wb");
    ASSERT_NE(file, nullptr) << path;
    EXPECT_EQ(std::fwrite(text.data(), 1, text.size(), file), text.size());
    std::fclose(file);
}

ScratchFile::ScratchFile(std::string_view text)
{
    char folder[MAX_PATH];
    char path[MAX_PATH];
    GetTempPathA(MAX_PATH, folder);
    GetTempFileNameA(folder, "vrn", 0, path);
    m_path = path;
    WriteFile(m_path, text);
}

ScratchFile::~ScratchFile()
{
    DeleteFileA(m_path.c_str());
}
} // namespace vorn::test
