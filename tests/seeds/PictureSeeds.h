#pragma once

#include <map>
#include <string>

namespace vorn::test
{

/// Inputs that the fuzz targets of picture files begin with: paths below fuzz/seeds and their bytes.
std::map<std::string, std::string> PictureSeeds();

} // namespace vorn::test
