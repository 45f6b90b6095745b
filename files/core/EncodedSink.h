#pragma once

/// @file
/// Where encoded pictures go.
#include <cstdio>
#include <functional>

namespace vorn
{
/// Takes the bytes of a file piece by piece, in order. One that throws ends the writing, which then has failed; what it
/// throws goes no further.
using EncodedSink = std::function<void(const char* data, unsigned size)>;

/// Writes to an open file, which stays the caller's, and throws when it takes less. Behind the last piece the file
/// stands behind the last byte. No sink at all for a null file.
EncodedSink FileSink(std::FILE* file);
} // namespace vorn
