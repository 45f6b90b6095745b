#pragma once

/// @file
/// Reading the initial contents of a dialog's lists (resource type 240): a row of records, each a control id, a message
/// number and data of a stated length, ended by an id of 0.
#include "framework/core/Export.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace vorn
{
/// One message to a control.
struct DialogInitEntry
{
    std::uint16_t controlId = 0;
    std::uint16_t message = 0; ///< as stored: 0x401 adds to a list box, 0x403 to a combo box
    std::string data;          ///< the data up to its first zero
};

/// The records up to the end mark, or up to the first one that the bytes do not hold whole.
HOSTFRAMEWORK_API std::vector<DialogInitEntry> ReadDialogInit(std::span<const std::uint8_t> bytes);
} // namespace vorn
