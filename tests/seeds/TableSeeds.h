#pragma once

#include <map>
#include <string>

namespace vorn::test
{

/// Inputs that the fuzz targets of tables begin with: paths below fuzz/seeds and their bytes.
std::map<std::string, std::string> TableSeeds();

} // namespace vorn::test
