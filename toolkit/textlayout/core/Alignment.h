#pragma once

#include "toolkit/textlayout/core/Item.h"

namespace TextLayout
{

/// Places its child in its own space: "left", "right" or "center", and "top", "bottom" or "vcenter", parted by blanks
/// or commas ("right bottom"). A direction that is not named, or named by another word, begins at 0; so do left and
/// top.
class VORNCOMMON_API Alignment : public Item
{
public:
    Alignment(LPCSTR align, Item* child);
    Alignment(const CString& align, Item* child);

    bool ComputeLayout(CDC* dc) override;

private:
    void Place(Item& child, CSize size) const;
};

} // namespace TextLayout
