#include "tests/support/RandomLayout.h"

#include <cstdlib>

/// Any tree is laid out, or fails, and ends; laid out again nothing fails that did not. Texts that were placed have a
/// size, and a font that fits or is the smallest.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const vorn::test::RandomLayout layout({data, size});
    CSize room;
    int fontHeight = 0;
    if (size % 3 == 0)
    {
        layout.root->CalcSize(nullptr, room, fontHeight);
    }
    if (size % 3 == 1)
    {
        layout.root->ComputeSize(nullptr);
    }
    if (!layout.root->ComputeLayout(nullptr))
    {
        return 0;
    }
    for (const vorn::test::GridText* text : layout.texts)
    {
        int sum = 0;
        text->GetSum("x", sum);
        text->GetSum("y", sum);
        if (!text->Has("width") || !text->Has("height") || !text->Has("fontHeight") || !text->Has("bottom"))
        {
            std::abort();
        }
    }
    if (!layout.root->ComputeLayout(nullptr) || !layout.root->CalcSize(nullptr, room, fontHeight))
    {
        std::abort();
    }
    layout.root->Draw(nullptr);
    return 0;
}
