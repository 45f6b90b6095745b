#pragma once

#include "config/PathMgr.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/ScratchKey.h"

#include <gtest/gtest.h>

#include <string>

namespace vorn::test
{

/// No manager, no settings of the host, of "Planner" and of the shared records before and after each test, and a folder
/// of its own.
class PathSettings : public testing::Test
{
protected:
    static constexpr const char* kApp = "Planner";
    static constexpr const char* kHost = "windows_paths_tests";

    PathSettings();
    ~PathSettings() override;

    /// Writes a setting of section "Paths".
    static void Set(const char* key, const std::string& value, const char* app = kApp);

    /// Makes this a server installation.
    static void SetServer(const std::string& themePath);

    /// The folder of the test with a backslash, and one below it with a backslash, which is made.
    std::string Folder() const;
    std::string MakeFolder(const std::string& name) const;

    /// A folder of the shell with a backslash.
    static std::string Shell(int code);

    const ScratchFolder& Scratch() const
    {
        return m_folder;
    }

private:
    ScratchFolder m_folder;
    ScratchKey m_app{HKEY_CURRENT_USER, "Software\\Vornwald\\Planner"};
    ScratchKey m_host{HKEY_CURRENT_USER, "Software\\Vornwald\\windows_paths_tests"};
    ScratchKey m_global{HKEY_LOCAL_MACHINE, "Software\\Vornwald\\Global"};
    ScratchKey m_userGlobal{HKEY_CURRENT_USER, "Software\\Vornwald\\Global"};
    ScratchKey m_installers{HKEY_LOCAL_MACHINE, "Software\\Vornwald\\Installers"};
    ScratchKey m_userInstallers{HKEY_CURRENT_USER, "Software\\Vornwald\\Installers"};
};

} // namespace vorn::test
