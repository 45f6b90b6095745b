#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorn::test
{
/// What the registry itself holds.
struct RawValue
{
    DWORD type;
    std::string bytes;
    bool operator==(const RawValue&) const = default;
};

/// A value REG_SZ with its terminating zero.
RawValue RawText(std::string_view text);
/// A value REG_DWORD.
RawValue RawNumber(DWORD number);

/// Gives every test an application name of its own, with no settings and no INI file under either root before and
/// after it, and raw access to both as another program would have it.
class ScratchSettings : public testing::Test
{
protected:
    ScratchSettings();
    ~ScratchSettings() override;

    const std::string& App() const
    {
        return m_app;
    }

    void Put(const char* section, const char* key, const RawValue& value, HKEY root = HKEY_CURRENT_USER) const;
    std::optional<RawValue> Get(const char* section, const char* key, HKEY root = HKEY_CURRENT_USER) const;
    bool HasKey(const std::string& section, HKEY root = HKEY_CURRENT_USER) const;
    void DeleteKey(const std::string& section, HKEY root = HKEY_CURRENT_USER) const;

    /// The application's INI file in the Windows folder, and the user's copy of it.
    std::string SharedIni() const;
    std::string UserIni() const;
    void WriteSharedIni(std::string_view text) const;
    void WriteUserIni(std::string_view text) const;

private:
    void CleanUp() const;
    std::string KeyPath(const std::string& section) const;

    std::string m_app;
};

void WriteFile(const std::string& path, std::string_view text);

/// A text file of the test's own in the temporary folder.
class ScratchFile
{
public:
    explicit ScratchFile(std::string_view text);
    ~ScratchFile();
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    const char* Path() const
    {
        return m_path.c_str();
    }

private:
    std::string m_path;
};
} // namespace vorn::test
