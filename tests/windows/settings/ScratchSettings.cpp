#include "tests/windows/settings/ScratchSettings.h"

#include "config/AppRegMgr.h"
#include "config/GlobalRegData.h"

#include <shlobj.h>

#include <cstdio>

namespace vorn::test
{
namespace
{
std::string windowsFolder()
{
    char path[MAX_PATH];
    GetWindowsDirectoryA(path, MAX_PATH);
    return path;
}

std::string userCopyFolder()
{
    char path[MAX_PATH];
    SHGetFolderPathA(nullptr, CSIDL_LOCAL_APPDATA, nullptr, 0, path);
    return std::string(path) + "\\VirtualStore" + windowsFolder().substr(2);
}
} // namespace

RawValue rawText(std::string_view text)
{
    return {REG_SZ, std::string(text) + '\0'};
}

RawValue rawNumber(DWORD number)
{
    return {REG_DWORD, std::string(reinterpret_cast<const char*>(&number), sizeof number)};
}

ScratchSettings::ScratchSettings() : m_app("VornTest" + std::to_string(GetCurrentProcessId()))
{
    cleanUp();
}

ScratchSettings::~ScratchSettings()
{
    cleanUp();
}

void ScratchSettings::cleanUp() const
{
    AppRegMgr::FreeInst();
    GlobalRegData::SetGlobalSections("");
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
    {
        RegDeleteTreeA(root, keyPath("").c_str());
    }
    DeleteFileA(sharedIni().c_str());
    DeleteFileA(userIni().c_str());
}

std::string ScratchSettings::keyPath(const std::string& section) const
{
    return "Software\\Vornwald\\" + m_app + (section.empty() ? "" : "\\" + section);
}

void ScratchSettings::put(const char* section, const char* key, const RawValue& value, HKEY root) const
{
    // The system takes a zero behind an unterminated text along: something else must stand there.
    const std::string guarded = value.bytes + '#';
    HKEY opened = nullptr;
    ASSERT_EQ(RegCreateKeyExA(root, keyPath(section).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS | KEY_WOW64_32KEY, nullptr,
                              &opened, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExA(opened, key, 0, value.type, reinterpret_cast<const BYTE*>(guarded.data()),
                             static_cast<DWORD>(value.bytes.size())),
              ERROR_SUCCESS);
    RegCloseKey(opened);
}

std::optional<RawValue> ScratchSettings::get(const char* section, const char* key, HKEY root) const
{
    RawValue value{0, std::string(4096, '\0')};
    auto size = static_cast<DWORD>(value.bytes.size());
    HKEY opened = nullptr;
    if (RegOpenKeyExA(root, keyPath(section).c_str(), 0, KEY_READ | KEY_WOW64_32KEY, &opened) != ERROR_SUCCESS)
    {
        return std::nullopt;
    }
    const LSTATUS status =
        RegQueryValueExA(opened, key, nullptr, &value.type, reinterpret_cast<BYTE*>(value.bytes.data()), &size);
    RegCloseKey(opened);
    value.bytes.resize(size);
    return status == ERROR_SUCCESS ? std::optional(value) : std::nullopt;
}

bool ScratchSettings::hasKey(const std::string& section, HKEY root) const
{
    HKEY opened = nullptr;
    const bool found =
        RegOpenKeyExA(root, keyPath(section).c_str(), 0, KEY_READ | KEY_WOW64_32KEY, &opened) == ERROR_SUCCESS;
    RegCloseKey(opened);
    return found;
}

void ScratchSettings::deleteKey(const std::string& section, HKEY root) const
{
    EXPECT_EQ(RegDeleteTreeA(root, keyPath(section).c_str()), ERROR_SUCCESS);
}

std::string ScratchSettings::sharedIni() const
{
    return windowsFolder() + '\\' + m_app + ".INI";
}

std::string ScratchSettings::userIni() const
{
    return userCopyFolder() + '\\' + m_app + ".INI";
}

void ScratchSettings::writeSharedIni(std::string_view text) const
{
    writeFile(sharedIni(), text);
}

void ScratchSettings::writeUserIni(std::string_view text) const
{
    SHCreateDirectoryExA(nullptr, userCopyFolder().c_str(), nullptr);
    writeFile(userIni(), text);
}

void writeFile(const std::string& path, std::string_view text)
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
    writeFile(m_path, text);
}

ScratchFile::~ScratchFile()
{
    DeleteFileA(m_path.c_str());
}
} // namespace vorn::test
