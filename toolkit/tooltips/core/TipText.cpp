#include "toolkit/tooltips/core/TipText.h"

#include <algorithm>

namespace vorn
{
namespace
{
constexpr int kInfoBoxWidth = 300;
} // namespace

CString TipField(const CString& text, int index, char separator)
{
    int start = 0;
    for (int field = 0; index >= 0; ++field)
    {
        const int end = text.Find(separator, start);
        if (field == index)
        {
            return end < 0 ? text.Mid(start) : text.Mid(start, end - start);
        }
        if (end < 0)
        {
            break;
        }
        start = end + 1;
    }
    return CString();
}

int TipWrapWidth(int maxWidth, bool infoBox, int titleWidth)
{
    if (maxWidth > 0)
    {
        return maxWidth;
    }
    return infoBox ? std::max(kInfoBoxWidth, titleWidth) : 0;
}

} // namespace vorn
