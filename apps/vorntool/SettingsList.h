#pragma once

#include "apps/vorntool/StoredSetting.h"

namespace vorn::tool
{

/// One line of JSON on one setting.
std::string JsonOf(const CString& application, const StoredSetting& setting);

/// One line of JSON on all settings, an array.
std::string JsonOf(const CString& application, const std::vector<StoredSetting>& settings);

/// One line of JSON on what was deleted; an empty key is a whole section.
std::string JsonOfDeleted(const CString& application, const CString& section, const CString& key);

/// The settings section by section in lined-up columns: key, type, place, value.
std::string TextOf(const std::vector<StoredSetting>& settings);

} // namespace vorn::tool
