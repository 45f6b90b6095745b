#pragma once

#include <string>

namespace vorn::tool
{

/// The name of a kind of folder as programs write it: "DP_CHARTS", "DP_PATH48".
std::string NameOfFolder(int path);

/// The kind of folder of a name, with or without its "DP_" and whatever its case, or of a number; -1 for none.
int FolderNamed(const std::string& word);

} // namespace vorn::tool
