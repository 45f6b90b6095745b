#include "toolkit/textlayout/core/FitTextItem.h"

#include "toolkit/textlayout/core/TextFit.h"

namespace vorn
{

namespace
{
bool GetOwnSize(const TextLayout::Item& node, CSize& size, int& fontHeight)
{
    int width = 0;
    int height = 0;
    int font = 0;
    if (!node.Get("width", width) || !node.Get("height", height) || !node.Get("fontHeight", font))
    {
        return false;
    }
    size = CSize(width, height);
    fontHeight = font;
    return true;
}

TextSpace BoundsOf(const TextLayout::Item& node)
{
    TextSpace space;
    node.Get("minFontHeight", space.minFontHeight, true);
    node.Get("maxFontHeight", space.maxFontHeight, true);
    node.Get("spacing", space.spacing, true);
    if (int imposed = 0; node.Get("fontHeight", imposed))
    {
        space.imposedFontHeight = imposed;
    }
    return space;
}

bool Fit(TextLayout::Item& node, TextMeasure& measure, CSize& size, int& fontHeight)
{
    TextSpace space = BoundsOf(node);
    if (!node.Get("maxWidth", space.maxWidth) || !node.Get("maxHeight", space.maxHeight))
    {
        return false;
    }
    CString text;
    node.Get("text", text);
    const std::optional<FittedText> fitted = FitText(static_cast<LPCSTR>(text), space, measure);
    if (!fitted)
    {
        return false;
    }
    if (fitted->cut)
    {
        node.Set("text", fitted->cut->c_str());
    }
    size = CSize(fitted->width, fitted->height);
    fontHeight = fitted->fontHeight;
    return true;
}
} // namespace

bool FitTextItem(TextLayout::Item& node, TextMeasure& measure, CSize& size, int& fontHeight)
{
    if (!GetOwnSize(node, size, fontHeight) && !Fit(node, measure, size, fontHeight))
    {
        return false;
    }
    node.SetSize(size, fontHeight);
    return true;
}

} // namespace vorn
