#include "toolkit/textlayout/core/Alignment.h"

#include "files/core/NoThrow.h"
#include "toolkit/textlayout/core/AlignWords.h"
#include "toolkit/textlayout/core/LayoutNumber.h"

namespace TextLayout
{

Alignment::Alignment(LPCSTR align, Item* child)
{
    if (align != nullptr)
    {
        Set("align", align);
    }
    Add(child);
}

Alignment::Alignment(const CString& align, Item* child) : Alignment(static_cast<LPCSTR>(align), child)
{
}

bool Alignment::ComputeLayout(CDC* dc)
{
    if (!Item::ComputeLayout(dc))
    {
        return false;
    }
    return vorn::NoThrow(false,
                         [&]
                         {
                             for (const std::unique_ptr<Item>& child : GetChildren())
                             {
                                 CSize size(0, 0);
                                 if (!SizeOf(*child, dc, size))
                                 {
                                     return false;
                                 }
                                 Place(*child, size);
                             }
                             return true;
                         });
}

void Alignment::Place(Item& child, CSize size) const
{
    CString text;
    Get("align", text);
    const vorn::AlignWords words = vorn::ReadAlignWords(static_cast<LPCSTR>(text));
    CSize space = size;
    int extent = 0;
    space.cx = GetSpace("width", "maxWidth", extent) ? extent : size.cx;
    space.cy = GetSpace("height", "maxHeight", extent) ? extent : size.cy;
    const int x = vorn::AlignedStart(words.across, space.cx, size.cx);
    const int y = vorn::AlignedStart(words.down, space.cy, size.cy);
    child.Set("x", x);
    child.Set("y", y);
    child.Set("right", vorn::AddClamped(x, size.cx));
    child.Set("bottom", vorn::AddClamped(y, size.cy));
}

} // namespace TextLayout
