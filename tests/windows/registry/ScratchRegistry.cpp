#include "tests/windows/registry/ScratchRegistry.h"

#include "config/RegistryKey.h"

#include <algorithm>

namespace vorn::test
{
namespace
{
RegistryKey OpenedKey(const std::string& path)
{
    HKEY opened = nullptr;
    const LSTATUS status = RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ | KEY_WOW64_32KEY, &opened);
    return RegistryKey(status == ERROR_SUCCESS ? opened : nullptr);
}

RegistryKey MadeKey(HKEY root, const std::string& path)
{
    HKEY made = nullptr;
    EXPECT_EQ(RegCreateKeyExA(root, path.c_str(), 0, nullptr, 0, KEY_WRITE | KEY_WOW64_32KEY, nullptr, &made, nullptr),
              ERROR_SUCCESS)
        << path;
    return RegistryKey(made);
}
} // namespace

ScratchRegistry::ScratchRegistry()
{
    MakeKey("");
    key = Opened();
}

std::string ScratchRegistry::Path(const std::string& below) const
{
    return m_scratch.Path() + (below.empty() ? "" : "\\" + below);
}

Registry ScratchRegistry::Opened(Registry::CreatePermissions access, const std::string& below) const
{
    Registry opened;
    EXPECT_TRUE(Done(opened, opened.Connect(HKEY_CURRENT_USER, nullptr)));
    EXPECT_TRUE(Done(opened, opened.Open(Path(below).c_str(), access)));
    return opened;
}

void ScratchRegistry::MakeKey(const std::string& below) const
{
    MadeKey(HKEY_CURRENT_USER, Path(below));
}

void ScratchRegistry::MakeDeepKey(const std::vector<std::string>& names) const
{
    RegistryKey parent = MadeKey(HKEY_CURRENT_USER, Path());
    for (const std::string& name : names)
    {
        parent = MadeKey(parent.get(), name);
    }
}

bool ScratchRegistry::HasKey(const std::string& below) const
{
    return OpenedKey(Path(below)) != nullptr;
}

void ScratchRegistry::Put(const std::string& name, DWORD type, std::string_view bytes, const std::string& below) const
{
    // The system takes a zero behind an unterminated text along: something else must stand there.
    const std::string guarded = std::string(bytes) + '#';
    const RegistryKey made = MadeKey(HKEY_CURRENT_USER, Path(below));
    EXPECT_EQ(RegSetValueExA(made.get(), name.c_str(), 0, type, reinterpret_cast<const BYTE*>(guarded.data()),
                             static_cast<DWORD>(bytes.size())),
              ERROR_SUCCESS);
}

std::optional<RawValue> ScratchRegistry::Get(const std::string& name, const std::string& below) const
{
    const RegistryKey opened = OpenedKey(Path(below));
    RawValue value{REG_NONE, std::string(100000, '\0')};
    auto size = static_cast<DWORD>(value.bytes.size());
    const bool found =
        opened != nullptr && RegQueryValueExA(opened.get(), name.c_str(), nullptr, &value.type,
                                              reinterpret_cast<BYTE*>(value.bytes.data()), &size) == ERROR_SUCCESS;
    value.bytes.resize(size);
    return found ? std::optional(value) : std::nullopt;
}

testing::AssertionResult Done(const Registry& key, bool result)
{
    return result && key.GetLastError() == 0
               ? testing::AssertionSuccess()
               : testing::AssertionFailure() << "result " << result << ", code " << key.GetLastError();
}

testing::AssertionResult Refused(const Registry& key, bool result, DWORD code)
{
    return !result && key.GetLastError() == code ? testing::AssertionSuccess()
                                                 : testing::AssertionFailure()
                                                       << "result " << result << ", code " << key.GetLastError()
                                                       << ", not " << code;
}

std::string Std(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

std::vector<std::string> Std(const CStringArray& texts)
{
    std::vector<std::string> result;
    for (INT_PTR i = 0; i < texts.GetSize(); ++i)
    {
        result.push_back(Std(texts[i]));
    }
    return result;
}

std::string Std(const CByteArray& bytes)
{
    return {reinterpret_cast<const char*>(bytes.GetData()), static_cast<std::size_t>(bytes.GetSize())};
}

void Fill(CByteArray& array, std::string_view bytes)
{
    array.SetSize(static_cast<INT_PTR>(bytes.size()));
    std::ranges::copy(bytes, reinterpret_cast<char*>(array.GetData()));
}

void Fill(CStringArray& array, const std::vector<std::string>& texts)
{
    array.RemoveAll();
    for (const std::string& text : texts)
    {
        array.Add(text.c_str());
    }
}

std::size_t FirstFreeHandle()
{
    const HANDLE event = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    CloseHandle(event);
    return reinterpret_cast<std::size_t>(event) / 4;
}
} // namespace vorn::test
