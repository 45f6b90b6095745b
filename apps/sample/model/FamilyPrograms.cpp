#include "apps/sample/model/FamilyPrograms.h"

#include "apps/sample/model/ModuleVersions.h"

#include <VornCommon.h>

#include <array>

namespace
{

struct Program
{
    const char* product;
    const char* pathKey;
    const char* purpose;
};

constexpr std::array kPrograms = {
    Program{"Aerolune", "AeroluneDir", "flight planner"},
    Program{"VornView", "VornView3Dir", "chart viewer"},
    Program{"Glasspad", "Glasspad3Dir", "moving map"},
};

constexpr std::array kSystemLibraries = {"comctl32.dll", "shell32.dll"};

std::string VersionText(int major, int minor)
{
    return std::to_string(major) + '.' + std::to_string(minor);
}

void AddProgram(vorn::ReportTable& table, const Program& program)
{
    int major = 0;
    int minor = 0;
    if (GetProgramVersion(program.product, program.pathKey, major, minor) == 1)
        table.AddRow({program.product, program.purpose, VersionText(major, minor)}, vorn::Tone::Good);
    else
        table.AddRow({program.product, program.purpose, "not installed"}, vorn::Tone::Muted);
}

void AddFamilyLibrary(vorn::ReportTable& table, const ModuleVersion& module)
{
    table.AddRow({module.fileName, "loaded here", module.version}, vorn::Tone::Good);
}

void AddSystemLibrary(vorn::ReportTable& table, const char* name)
{
    const DWORD version = GetDllVersion(name);
    table.AddRow({name, "system library", version == 0 ? "unknown" : VersionText(HIWORD(version), LOWORD(version))},
                 version == 0 ? vorn::Tone::Muted : vorn::Tone::Plain);
}

} // namespace

vorn::ReportTable FamilyProgramsTable()
{
    vorn::ReportTable table{"Programs found", "", {{"Program"}, {"What it is"}, {"Version"}}, {}};
    for (const Program& program : kPrograms)
        AddProgram(table, program);
    for (const ModuleVersion& module : LoadedModules())
        AddFamilyLibrary(table, module);
    for (const char* name : kSystemLibraries)
        AddSystemLibrary(table, name);
    table.AddRow({"Windows", IsNT() ? "NT line" : "9x line", IsWindows7OrLater() ? "7 or later" : "before 7"});
    return table;
}
