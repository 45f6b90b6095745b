#pragma once

/// @file
/// Whether a command may be carried out now; not public interface.
#include "framework/window/CCmdTarget.h"

namespace vorn
{

/// Asks the target's update handlers; a command that nobody updates is enabled.
bool IsCommandEnabled(CCmdTarget& target, UINT id);

} // namespace vorn
