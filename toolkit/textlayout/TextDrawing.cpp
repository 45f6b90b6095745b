#include "files/core/NoThrow.h"
#include "framework/include/afxwin.h"
#include "toolkit/textlayout/Text.h"
#include "toolkit/textlayout/core/LayoutNumber.h"
#include "toolkit/textlayout/core/ShadowColor.h"
#include "toolkit/textlayout/core/TextLines.h"

#include <memory>
#include <string>
#include <vector>

namespace TextLayout
{

namespace
{
/// Gives a device context its state back.
class SavedState
{
public:
    explicit SavedState(CDC& dc) : m_dc(dc)
    {
        m_dc.SaveDC();
    }
    ~SavedState()
    {
        m_dc.RestoreDC(-1);
    }
    SavedState(const SavedState&) = delete;
    SavedState& operator=(const SavedState&) = delete;

private:
    CDC& m_dc;
};

bool GetOwnSize(const Item& node, CSize& size)
{
    int width = 0;
    int height = 0;
    const bool found = node.Get("width", width) && node.Get("height", height);
    size = CSize(width, height);
    return found;
}

int NumberOf(const Item& node, LPCSTR key)
{
    int number = 0;
    node.Get(key, number, true);
    return number;
}

COLORREF ColorOf(const Item& node, LPCSTR key)
{
    return static_cast<COLORREF>(NumberOf(node, key));
}

int AdvanceOf(const Item& node, const CDC& dc)
{
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    return vorn::LineAdvance(metrics.tmHeight, NumberOf(node, "spacing"));
}

void DrawLines(CDC& dc, const std::vector<std::string>& lines, CPoint place, int advance)
{
    for (const std::string& line : lines)
    {
        dc.TextOut(place.x, place.y, line.c_str(), static_cast<int>(line.size()));
        place.y = vorn::AddClamped(place.y, advance);
    }
}

void DrawShadowedText(const Item& node, CDC& dc, CPoint place)
{
    CString text;
    node.Get("text", text);
    const std::vector<std::string> lines = vorn::TextLines(static_cast<LPCSTR>(text));
    const int advance = AdvanceOf(node, dc);
    const COLORREF color = ColorOf(node, "color");
    if (const int offset = NumberOf(node, "shadowOffset"); offset != 0)
    {
        const CPoint below(vorn::AddClamped(place.x, offset), vorn::AddClamped(place.y, offset));
        dc.SetTextColor(vorn::ShadowColor(color));
        DrawLines(dc, lines, below, advance);
    }
    dc.SetTextColor(color);
    DrawLines(dc, lines, place, advance);
}
} // namespace

void Text::Draw(CDC* dc)
{
    int fontHeight = 0;
    CSize size;
    if (dc == nullptr || !Get("fontHeight", fontHeight) || !GetOwnSize(*this, size))
    {
        return;
    }
    const std::unique_ptr<CFont> font(CreateFont(fontHeight)); // before the state, so that it goes unselected
    if (!font)
    {
        return;
    }
    const SavedState state(*dc);
    int x = 0;
    int y = 0;
    GetSum("x", x);
    GetSum("y", y);
    if (Has("bgcolor", true))
    {
        dc->FillSolidRect(x, y, size.cx, size.cy, ColorOf(*this, "bgcolor"));
    }
    dc->SelectObject(font.get());
    dc->SetBkMode(TRANSPARENT);
    dc->SetTextAlign(TA_LEFT | TA_TOP | TA_NOUPDATECP);
    vorn::NoThrow(false,
                  [&]
                  {
                      DrawShadowedText(*this, *dc, CPoint(x, y));
                      return true;
                  });
}

} // namespace TextLayout
