#pragma once

namespace vorn::test
{

/// The number of this process: keeps apart what two runs of one test leave in shared places.
unsigned long ProcessId();

} // namespace vorn::test
