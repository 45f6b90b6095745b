#pragma once

#include "frame/core/ByteReading.h"
#include "frame/core/ProgramRules.h"

#include <optional>

/// @file
/// The fixed part of a program's version resource.
namespace vorn
{
/// Product version (not file version) in a version resource, as it stands in the program file: a header of length,
/// value length and type, the key as 16-bit text, and on the next multiple of 4 bytes the fixed information. Nothing
/// when the fixed part is absent, cut off, reaches outside the resource or lacks its signature 0xFEEF04BD.
std::optional<ProgramVersion> ProductVersion(Bytes resource);
} // namespace vorn
