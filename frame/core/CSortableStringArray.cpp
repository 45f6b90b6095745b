#include "frame/core/CSortableStringArray.h"

#include "frame/core/StringSort.h"
#include "frame/core/StringViews.h"

#include <new>
#include <utility>

namespace
{

std::vector<std::string_view> ViewsOf(const CString* texts, std::size_t count)
{
    std::vector<std::string_view> views(count);
    for (std::size_t i = 0; i < count; ++i)
        views[i] = vorn::ViewOf(texts[i]);
    return views;
}

/// Only moves: after the room is there, nothing can fail.
void Arrange(CString* texts, const std::vector<std::uint32_t>& order)
{
    std::vector<CString> sorted(order.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        sorted[i] = std::move(texts[order[i]]);
    for (std::size_t i = 0; i < order.size(); ++i)
        texts[i] = std::move(sorted[i]);
}

} // namespace

void CSortableStringArray::Sort(bool caseSensitive)
{
    if (GetSize() < 2)
        return;
    try
    {
        Arrange(GetData(), vorn::SortedOrder(ViewsOf(GetData(), static_cast<std::size_t>(GetSize())), caseSensitive));
    }
    catch (const std::bad_alloc&)
    {
    }
}
