#pragma once

#include <string_view>
#include <vector>

/// @file
/// Lists of texts as registry values keep them (REG_MULTI_SZ): each text followed by a zero, the whole followed by a
/// further zero.
namespace vorn
{
/// The bytes of a list. An empty text is kept as such; an empty list is the closing zero alone.
std::vector<char> TextListData(const std::vector<std::string_view>& texts);

/// The texts of a list, in order; they look into `data`. One empty text at the end is the closing zero. Data without
/// it, or with a last text that has no zero, ends with its last byte. Empty texts before that are texts: some of the
/// system's own lists hold them.
std::vector<std::string_view> TextsOfListData(std::string_view data);
} // namespace vorn
