#pragma once

#include <windows.h>

namespace vorn::test
{

/// Puts the cursor to a place even where the system takes it to be there already, as it does after a movement of its
/// own that it learns of late.
void PutCursor(POINT point);

} // namespace vorn::test
