#ifndef _WIN32
#include "family/VornChart/core/ModuleHold.h"

namespace vorn
{
/// Nothing is unloaded here.
std::shared_ptr<void> HoldModuleOf(const void*)
{
    return nullptr;
}
} // namespace vorn
#endif
