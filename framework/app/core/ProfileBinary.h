#pragma once

/// @file
/// Binary values in INI files: each byte is two letters 'A' to 'P', the lower half first.
/// The bytes 0x00 0x1F 0xA0 are the text "AAPBAK".
#include "framework/core/Export.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vorn
{

HOSTFRAMEWORK_API std::string EncodeProfileBinary(std::span<const std::uint8_t> bytes);

/// False, with empty bytes, for an odd length or any other character than 'A' to 'P'.
HOSTFRAMEWORK_API bool DecodeProfileBinary(std::string_view text, std::vector<std::uint8_t>& bytes);

} // namespace vorn
