#include "frame/core/ProgramRules.h"

#include "frame/core/TextCase.h"

namespace vorn
{
namespace
{
constexpr SiblingRule kPlanner{"Aerolune", "AeroluneDir", {9, 1}};
constexpr SiblingRule kViewer{"VornView", "VornView3Dir", {3, 3}};
constexpr SiblingRule kMovingMap{"Glasspad", "Glasspad3Dir", {3, 1}};

struct Program
{
    const char* product;
    const char* file;
    SiblingRules siblings;
};

constexpr Program kPrograms[] = {
    {"Aerolune", "Aerolune\\Aerolune.exe", {kViewer, kMovingMap}},
    {"VornView", "VornView3\\VornView3.exe", {kPlanner, kMovingMap}},
    {"Glasspad", "Glasspad3\\Glasspad3.exe", {kPlanner, kViewer}},
};

const Program* FindProgram(std::string_view product)
{
    for (const Program& program : kPrograms)
    {
        if (EqualsNoCase(program.product, product))
        {
            return &program;
        }
    }
    return nullptr;
}
} // namespace

const SiblingRules* FindSiblingRules(std::string_view product)
{
    const Program* program = FindProgram(product);
    return program ? &program->siblings : nullptr;
}

const char* ProgramFile(std::string_view product)
{
    const Program* program = FindProgram(product);
    return program ? program->file : nullptr;
}

std::optional<std::string> ProgramPath(std::string_view folder, std::string_view file)
{
    std::string path(folder);
    if (!path.ends_with('\\'))
    {
        path += '\\';
    }
    path += file;
    return path.size() <= kLongestProgramPath ? std::optional(path) : std::nullopt;
}
} // namespace vorn
