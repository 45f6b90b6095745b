#pragma once

#include "apps/vorntool/core/FileList.h"

#include <VornCommon.h>

namespace vorn::tool
{

/// The files of a folder that have one of the extensions of a set, extension by extension, each once; with
/// @p recursive, those of the folders below it as well, folder by folder. Folders that stand for others are not
/// entered.
std::vector<ListedFile> SearchFiles(const CString& folder, const CString& extensions, bool recursive);

} // namespace vorn::tool
