#pragma once

#include <string_view>

namespace vorn::tool
{

/// A program of the family, and the key of its folder in the family's INI file.
struct Program
{
    const char* name;
    const char* pathKey;
};

inline constexpr Program kPrograms[] = {
    {"Aerolune", "AeroluneDir"}, {"VornView", "VornView3Dir"}, {"Glasspad", "Glasspad3Dir"}};

/// The program of that name, whatever its case; null for none.
const Program* ProgramNamed(std::string_view name);

} // namespace vorn::tool
