#include "tests/windows/projection/ProjectionFixture.h"

#include <algorithm>

namespace vorn::test
{
namespace
{
std::string ProgramFolder()
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string whole = path;
    return whole.substr(0, whole.rfind('\\') + 1);
}

std::string FileName(const std::string& name)
{
    return "projection_" + name + ".dll";
}
} // namespace

ProjectionRegistry::ProjectionRegistry()
{
    EXPECT_EQ(ProjectionLib::mpInstance, nullptr);
}

ProjectionRegistry::~ProjectionRegistry()
{
    WinProjectionLib::Deinit();
}

std::string ProjectionRegistry::PluginPath(const std::string& name)
{
    return ProgramFolder() + "test-plugins\\" + FileName(name);
}

std::string ProjectionRegistry::SamplePath()
{
    return ProgramFolder() + "plugins\\AzimuthalEquidistant.dll";
}

bool ProjectionRegistry::IsLoaded(const std::string& name)
{
    return GetModuleHandleA(FileName(name).c_str()) != nullptr;
}

int ProjectionRegistry::Counter(const std::string& name, const char* counter)
{
    const HMODULE module = GetModuleHandleA(FileName(name).c_str());
    const FARPROC address = module ? GetProcAddress(module, counter) : nullptr;
    EXPECT_NE(address, nullptr) << name;
    return address ? *reinterpret_cast<const int*>(reinterpret_cast<const void*>(address)) : -1;
}

bool ProjectionRegistry::Start(const std::vector<std::string>& paths)
{
    std::vector<std::string> copies = paths;
    std::vector<char*> pointers(copies.size());
    std::transform(copies.begin(), copies.end(), pointers.begin(),
                   [](std::string& path)
                   {
                       return path.data();
                   });
    return WinProjectionLib::Init(pointers.data(), static_cast<int>(pointers.size()));
}

bool ProjectionRegistry::StartWith(const std::vector<std::string>& names)
{
    std::vector<std::string> paths(names.size());
    std::transform(names.begin(), names.end(), paths.begin(), PluginPath);
    for (const std::string& path : paths)
    {
        EXPECT_EQ(GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_DIRECTORY, 0U) << path;
    }
    return Start(paths);
}

std::vector<std::string> ProjectionRegistry::Names()
{
    std::vector<std::string> names;
    const ProjectionLib* library = ProjectionLib::mpInstance;
    for (int i = library ? library->NumBuiltIn() : 0; library && i < library->NumProjections(); ++i)
    {
        names.emplace_back(library->ProjectionName(i));
    }
    return names;
}

std::unique_ptr<Projection> ProjectionRegistry::Make(int index)
{
    return std::unique_ptr<Projection>(ProjectionLib::mpInstance->CreateProjection(index));
}
} // namespace vorn::test
