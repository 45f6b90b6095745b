#pragma once

#include "toolkit/textlayout/core/Item.h"

namespace TextLayout
{

/// The node at the top, which knows the size of the whole: its "maxWidth" and "maxHeight".
class VORNCOMMON_API Root : public Item
{
public:
    Root(int cx, int cy, Item* child);
    Root(const CSize& size, Item* child);
};

} // namespace TextLayout
