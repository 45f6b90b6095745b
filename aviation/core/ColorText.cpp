#include "aviation/core/ColorText.h"

#include "aviation/core/NightColors.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace
{

int LeadingInt(const CString& text)
{
    return static_cast<int>(std::clamp<long long>(std::strtoll(text, nullptr, 10), INT_MIN, INT_MAX));
}

} // namespace

CString ColorToString(COLORREF c)
{
    CString text;
    text.Format("%d,%d,%d", vorn::RedOf(c), vorn::GreenOf(c), vorn::BlueOf(c));
    return text;
}

COLORREF StringToColor(const CString& s)
{
    CString text = s;
    text.Trim();
    const int first = text.Find(',');
    if (first < 0)
    {
        return vorn::PaletteColor(0, 0, 0);
    }
    const int red = LeadingInt(text.Left(first));
    const int second = text.Find(',', first + 1);
    if (second < 0)
    {
        return vorn::PaletteColor(red, 0, 0);
    }
    return vorn::PaletteColor(red, LeadingInt(text.Mid(first + 1, second - first - 1)),
                              LeadingInt(text.Mid(second + 1)));
}
