#pragma once

#include "aviation/WinProjectionLib.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace vorn::test
{
/// No registry before and after the test. Plug-ins are named as in programs.cmake.
class ProjectionRegistry : public testing::Test
{
protected:
    ProjectionRegistry();
    ~ProjectionRegistry() override;

    /// Full path of a plug-in that was built for the tests.
    static std::string PluginPath(const std::string& name);
    /// Full path of the sample plug-in.
    static std::string SamplePath();
    static bool IsLoaded(const std::string& name);
    /// A counter that a loaded plug-in exports.
    static int Counter(const std::string& name, const char* counter);

    static bool Start(const std::vector<std::string>& paths);
    static bool StartWith(const std::vector<std::string>& names);
    static std::vector<std::string> Names();
    static std::unique_ptr<Projection> Make(int index);
};
} // namespace vorn::test
