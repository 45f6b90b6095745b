#include "toolkit/textlayout/core/Split.h"

#include "files/core/NoThrow.h"
#include "toolkit/textlayout/core/LayoutNumber.h"
#include "toolkit/textlayout/core/SplitShare.h"

#include <algorithm>

namespace TextLayout
{

namespace
{
/// The attributes along the split, and those across.
struct Axis
{
    LPCSTR place;
    LPCSTR size;
    LPCSTR space;
    LPCSTR end;
};
constexpr Axis kAcross = {"x", "width", "maxWidth", "right"};
constexpr Axis kDown = {"y", "height", "maxHeight", "bottom"};

CSize Joined(CSize first, CSize second, bool sideBySide)
{
    return sideBySide ? CSize(vorn::AddClamped(first.cx, second.cx), std::max(first.cy, second.cy))
                      : CSize(std::max(first.cx, second.cx), vorn::AddClamped(first.cy, second.cy));
}
} // namespace

Split::Split(LPCSTR split, Item* first, Item* second)
{
    if (split != nullptr)
    {
        Set("split", split);
    }
    Add(first);
    Add(second);
}

bool Split::ComputeSize(CDC* dc)
{
    return Divide(
        [dc](Item& child, CSize& size)
        {
            return child.ComputeSize(dc) && SizeOf(child, dc, size);
        });
}

bool Split::ComputeLayout(CDC* dc)
{
    return Divide(
        [dc](Item& child, CSize& size)
        {
            return child.ComputeLayout(dc) && SizeOf(child, dc, size);
        });
}

bool Split::CalcSize(CDC* dc, CSize& size, int& fontHeight)
{
    int smallest = kNoFontHeight;
    const bool done = Divide(
        [dc, &smallest](Item& child, CSize& childSize)
        {
            return Measure(child, dc, childSize, smallest);
        });
    size = GetComputed();
    fontHeight = smallest;
    return done;
}

bool Split::Divide(const Lay& lay)
{
    return vorn::NoThrow(false,
                         [&]
                         {
                             CString text;
                             Get("split", text);
                             const std::optional<vorn::SplitShare> share =
                                 vorn::ReadSplitShare(static_cast<LPCSTR>(text));
                             if (!share || GetChildren().size() != 2)
                             {
                                 return false;
                             }
                             const Axis& along = share->sideBySide ? kAcross : kDown;
                             const Axis& across = share->sideBySide ? kDown : kAcross;
                             int extent = 0;
                             if (!GetSpace(along.size, along.space, extent))
                             {
                                 return false;
                             }

                             CSize sizes[2];
                             const int firstPart = vorn::FirstPartOf(*share, extent);
                             int start = 0;
                             int space = firstPart;
                             for (int i = 0; i < 2; ++i)
                             {
                                 Item& child = *GetChildren()[static_cast<std::size_t>(i)];
                                 child.Set(along.place, start);
                                 child.Set(along.space, space);
                                 ImposeSpace(across.size, across.space, child);
                                 HandDownFont(child);
                                 if (!lay(child, sizes[i]))
                                 {
                                     return false;
                                 }
                                 start = firstPart;
                                 child.Get(along.end, start);
                                 space = vorn::SubtractClamped(extent, start);
                             }
                             SetComputed(Joined(sizes[0], sizes[1], share->sideBySide));
                             return true;
                         });
}

} // namespace TextLayout
