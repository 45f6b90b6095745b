#include "framework/core/FileFaults.h"

#include <atomic>

namespace vorn
{
namespace
{
std::atomic<FileFaults*> decider = nullptr;
}

FileFaults::~FileFaults() = default;

FileFaults* SetFileFaults(FileFaults* faults) noexcept
{
    return decider.exchange(faults);
}

SystemError FaultBefore(FileStep step, UINT& count)
{
    FileFaults* faults = decider.load(std::memory_order_acquire);
    return faults != nullptr ? faults->Before(step, count) : 0;
}

SystemError FaultBefore(FileStep step)
{
    UINT none = 0;
    return FaultBefore(step, none);
}
} // namespace vorn
