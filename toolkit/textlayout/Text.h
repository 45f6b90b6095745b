#pragma once

#include "toolkit/textlayout/core/Item.h"

class CFont;

namespace TextLayout
{

/// A text in the largest font with which it fits its space ("maxWidth" and "maxHeight", which must be there).
///
/// Font heights are those of a line. What does not even fit at the smallest height is cut: lines go from the end until
/// 3 are left, a last line "...(n)" counting those not shown, and lines that are too wide end in "...". The "text" is
/// then the cut one, and what of it is still too large sticks out.
///
/// "\r" is dropped, a tab is a blank, "&" is a letter. "face", "weight", "spacing", the colours, "shadowOffset" and the
/// bounds of the font height are inherited. Spacing is not below -99 percent, font heights are within 1 and 9999.
class VORNCOMMON_API Text : public Item
{
public:
    /// Only what is given is stored: `text` and `face` when not null, `weight` when not negative, `spacing` and
    /// `maxFontHeight` when above 0, `color` when not 0, `minFontHeight` when at least 1.
    Text(LPCSTR text, LPCSTR face, int weight = -1, int spacing = 0, int maxFontHeight = 0, COLORREF color = 0,
         int minFontHeight = 0);

    /// Measures the text and stores its size. A node that has "width", "height" and "fontHeight" keeps them.
    /// @return false without a device context or a space.
    bool CalcSize(CDC* dc, CSize& size, int& fontHeight) override;
    bool ComputeSize(CDC* dc) override;
    bool ComputeLayout(CDC* dc) override;
    /// Fills the box with "bgcolor", draws the shadow, moved right and down by its offset (black, below a dark text
    /// light grey), then the text. Leaves the device context as it was. A text without a layout is not drawn.
    void Draw(CDC* dc) override;

    /// The node's font at a height. The caller deletes it.
    /// @return null for a height below 1, or when the system has no more fonts.
    CFont* CreateFont(int height) const;
    /// The size of a text in a font (null: the one selected): the widest line, and the sum of the lines' heights, each
    /// longer by `spacing` percent.
    /// @return false without a device context; `size` is then empty.
    static bool GetTextSize(CDC* dc, LPCSTR text, CFont* font, int spacing, CSize& size);

    static bool IsSingleLine(const CString& text);
    /// Cuts off the last 6 characters and the blanks before them, and appends "...". 6 characters or fewer stay.
    static void ShortenLine(CString& line);
    /// Replaces the last line, and a closing line behind it, by the closing line "...(hidden)".
    static void RemoveLine(CString& text, int hidden);
};

} // namespace TextLayout
