#pragma once

#include <string>

namespace vorn
{
/// Name of the host application: that of the framework's application object, or, where there is none or it has no name
/// yet, the executable's base name, which start-up would give it.
std::string HostName();
} // namespace vorn
