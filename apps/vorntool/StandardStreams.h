#pragma once

#include "apps/vorntool/core/Command.h"

namespace vorn::tool
{

/// Writes a command's text and errors to the standard streams: as they are (UTF-8, line ends of one line feed) into
/// files and pipes, as characters onto a console.
/// @return false when the text could not be written whole (a full disk, a closed pipe)
bool WriteToStandardStreams(const Output& output);

} // namespace vorn::tool
