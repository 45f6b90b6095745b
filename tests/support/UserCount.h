#pragma once

namespace vorn::test
{

/// How many windows of this thread and menus there are now; where the system counts them, all of its user objects.
unsigned CountUserObjects();

} // namespace vorn::test
