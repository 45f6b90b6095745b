#include <VornCommon.h>

#include <cstdio>

int main()
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);

    // A title above two columns: the title may have half of the height.
    auto* const title = new TextLayout::Text("ENROUTE CHART", "Arial", FW_BOLD, 0, 40);
    auto* const scale = new TextLayout::Text("1:500,000", "Arial");
    auto* const note = new TextLayout::Text("Not for navigation", "Arial");
    auto* const columns = new TextLayout::Split("50%|", scale, new TextLayout::Alignment("right bottom", note));
    TextLayout::Root root(300, 80, new TextLayout::Split("-50%", title, columns)); // owns them all
    root.Set("x", 20);
    if (!root.ComputeLayout(&dc))
        return 1;

    int height = 0;
    int width = 0;
    title->Get("fontHeight", height);
    title->Get("width", width);
    std::printf("the title fits: %s\n", width <= 300 && height <= 40 && height > 9 ? "yes" : "no");
    int right = 0;
    note->GetSum("x", right);
    note->Get("width", width);
    std::printf("the note ends at %d\n", right + width);

    root.Draw(&dc); // as often as wanted
    return 0;
}
