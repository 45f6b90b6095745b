#pragma once

#include "toolkit/textlayout/core/Item.h"

namespace TextLayout
{

/// Children in a column, each below the end of the one before and with the height that is left. After the layout the
/// table has a "width" and "height" of its own: the largest width, and the end of the last child.
class VORNCOMMON_API Table : public Item
{
public:
    /// `table` is kept as the attribute "table", for the host's own use; null stores none.
    Table(LPCSTR table, Item* first, Item* second);

    bool ComputeSize(CDC* dc) override;
    bool ComputeLayout(CDC* dc) override;
    /// The largest width and the sum of the heights.
    bool CalcSize(CDC* dc, CSize& size, int& fontHeight) override;

private:
    /// Places the children below one another.
    bool Stack(const Lay& lay);
    void StoreEnds();
};

} // namespace TextLayout
