#pragma once

#include "config/Registry.h"
#include "tests/support/ScratchKey.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorn::test
{
/// A value as the bare system calls store and read it.
struct RawValue
{
    DWORD type = REG_NONE;
    std::string bytes;
    bool operator==(const RawValue&) const = default;
};

/// An object with an open scratch key, and the bare calls beside it.
class ScratchRegistry : public testing::Test
{
protected:
    ScratchRegistry();

    /// Path of the scratch key, or of one below it, under the current user.
    std::string Path(const std::string& below = "") const;

    /// Another object with the key open.
    Registry Opened(Registry::CreatePermissions access = Registry::PermissionAllAccess,
                    const std::string& below = "") const;

    void MakeKey(const std::string& below) const;
    /// Makes keys one below the other, in paths of any length.
    void MakeDeepKey(const std::vector<std::string>& names) const;
    bool HasKey(const std::string& below) const;
    void Put(const std::string& name, DWORD type, std::string_view bytes, const std::string& below = "") const;
    std::optional<RawValue> Get(const std::string& name, const std::string& below = "") const;

    Registry key;

private:
    const ScratchKey m_scratch;
};

/// A call that reported success, with last error 0.
testing::AssertionResult Done(const Registry& key, bool result);

/// A call that reported failure with this code.
testing::AssertionResult Refused(const Registry& key, bool result, DWORD code);

std::string Std(const CString& text);
std::vector<std::string> Std(const CStringArray& texts);
std::string Std(const CByteArray& bytes);
void Fill(CByteArray& array, std::string_view bytes);
void Fill(CStringArray& array, const std::vector<std::string>& texts);

/// Number of the first handle that is free. Handles are given out from the lowest number on, so it tells how many are
/// in use.
std::size_t FirstFreeHandle();
} // namespace vorn::test
