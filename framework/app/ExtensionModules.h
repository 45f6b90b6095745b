#pragma once

/// @file
/// The extension modules' part of the resource chain; not public interface.
#include <windows.h>

#include <vector>

namespace vorn
{

/// Resource modules in search order: newest first, system modules behind the others.
std::vector<HMODULE> ExtensionResources();

} // namespace vorn
