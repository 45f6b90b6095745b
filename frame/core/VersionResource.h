#pragma once

#include "frame/core/ByteReading.h"

/// @file
/// The version resource in a program file. The file is read here rather than by the system, whose version calls trust
/// the sizes and places that a damaged file claims.
namespace vorn
{
/// The version resource of a 32-bit or 64-bit program file, in the first of its languages; none when the file holds
/// none or is no such program. A resource that claims more than its section holds ends with the section.
Bytes VersionResourceOf(Bytes programFile);
} // namespace vorn
