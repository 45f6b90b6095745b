#include "tests/windows/textlayout/Fitted.h"

#include <algorithm>

namespace vorn::test
{

Fitted Fit(CDC& dc, CSize box, const char* text, std::initializer_list<std::pair<const char*, const char*>> set)
{
    Fitted fitted;
    fitted.text = new TextLayout::Text(text, "Arial");
    for (const auto& [name, value] : set)
    {
        fitted.text->Set(name, value);
    }
    fitted.root = std::make_unique<TextLayout::Root>(box, fitted.text);
    fitted.done = fitted.root->ComputeLayout(&dc);
    return fitted;
}

int NumberIn(const TextLayout::Item& node, const char* key)
{
    int value = -12345;
    node.Get(key, value);
    return value;
}

CString TextIn(const TextLayout::Item& node, const char* key)
{
    CString value = "(none)";
    node.Get(key, value);
    return value;
}

CRect InkOf(const Canvas& canvas, CSize size)
{
    CRect ink(size.cx, size.cy, 0, 0);
    for (int y = 0; y < size.cy; ++y)
    {
        for (int x = 0; x < size.cx; ++x)
        {
            if (canvas.At(x, y) != kWhite)
            {
                ink = CRect(std::min<int>(ink.left, x), std::min<int>(ink.top, y), std::max<int>(ink.right, x + 1),
                            std::max<int>(ink.bottom, y + 1));
            }
        }
    }
    return ink.left < ink.right ? ink : CRect(0, 0, 0, 0);
}

} // namespace vorn::test
