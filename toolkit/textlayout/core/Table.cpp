#include "toolkit/textlayout/core/Table.h"

#include "files/core/NoThrow.h"
#include "toolkit/textlayout/core/LayoutNumber.h"

#include <algorithm>

namespace TextLayout
{

Table::Table(LPCSTR table, Item* first, Item* second)
{
    if (table != nullptr)
    {
        Set("table", table);
    }
    Add(first);
    Add(second);
}

bool Table::ComputeSize(CDC* dc)
{
    return Stack(
        [dc](Item& child, CSize& size)
        {
            return child.ComputeSize(dc) && SizeOf(child, dc, size);
        });
}

bool Table::ComputeLayout(CDC* dc)
{
    return Stack(
               [dc](Item& child, CSize& size)
               {
                   return child.ComputeLayout(dc) && SizeOf(child, dc, size);
               }) &&
           vorn::NoThrow(false,
                         [this]
                         {
                             StoreEnds();
                             return true;
                         });
}

bool Table::CalcSize(CDC* dc, CSize& size, int& fontHeight)
{
    int smallest = kNoFontHeight;
    const bool done = Stack(
        [dc, &smallest](Item& child, CSize& childSize)
        {
            return Measure(child, dc, childSize, smallest);
        });
    size = GetComputed();
    fontHeight = smallest;
    return done;
}

bool Table::Stack(const Lay& lay)
{
    return vorn::NoThrow(false,
                         [&]
                         {
                             int space = 0;
                             const bool hasSpace = GetSpace("height", "maxHeight", space);
                             CSize total(0, 0);
                             int end = 0;
                             for (const std::unique_ptr<Item>& child : GetChildren())
                             {
                                 const int start = end;
                                 child->Set("y", start);
                                 if (hasSpace)
                                 {
                                     child->Set("maxHeight", std::max(vorn::SubtractClamped(space, start), 0));
                                 }
                                 ImposeSpace("width", "maxWidth", *child);
                                 HandDownFont(*child);
                                 CSize size(0, 0);
                                 if (!lay(*child, size))
                                 {
                                     return false;
                                 }
                                 end = vorn::AddClamped(start, size.cy);
                                 child->Get("bottom", end);
                                 total = CSize(std::max(total.cx, size.cx), vorn::AddClamped(total.cy, size.cy));
                             }
                             SetComputed(total);
                             return true;
                         });
}

void Table::StoreEnds()
{
    int x = 0;
    int y = 0;
    Get("x", x);
    Get("y", y);
    const CSize size = GetComputed();
    Set("width", size.cx);
    Set("height", size.cy);
    Set("right", vorn::AddClamped(x, size.cx));
    Set("bottom", vorn::AddClamped(y, size.cy));
}

} // namespace TextLayout
