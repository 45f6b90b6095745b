#pragma once

#include "frame/VornCommonApp.h"
#include "tests/support/ScratchKey.h"

#include <gtest/gtest.h>

namespace vorn::test
{

/// A host with settings of its own: a registered application object whose registry key is empty before and after the
/// test.
class HostSettings : public testing::Test
{
protected:
    HostSettings();
    ~HostSettings() override;

    static void Set(const char* section, const char* key, int value);

private:
    ScratchKey m_key{HKEY_CURRENT_USER, "Software\\Vornwald\\windows_texts_tests"};
    VornCommonApp m_app;
};

} // namespace vorn::test
