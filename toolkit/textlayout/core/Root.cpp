#include "toolkit/textlayout/core/Root.h"

namespace TextLayout
{

Root::Root(int cx, int cy, Item* child)
{
    Set("maxWidth", cx);
    Set("maxHeight", cy);
    Add(child);
}

Root::Root(const CSize& size, Item* child) : Root(size.cx, size.cy, child)
{
}

} // namespace TextLayout
