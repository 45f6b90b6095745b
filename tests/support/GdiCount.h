#pragma once

namespace vorn::test
{

/// How many drawing objects (pens, fonts, bitmaps, contexts, ...) the process has now.
unsigned CountGdiObjects();

} // namespace vorn::test
