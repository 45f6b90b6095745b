#pragma once

#include "toolkit/textlayout/core/FitTextItem.h"
#include "toolkit/textlayout/core/TextMeasure.h"

#include <string_view>
#include <vector>

namespace vorn::test
{

/// Fonts of a made-up device in which everything can be worked out by hand: a line is as high as its font, a letter
/// half as wide, an "i" a quarter, both cut to whole units. Remembers the heights asked for.
class GridMeasure : public TextMeasure
{
public:
    bool UseFont(int height) override
    {
        if (height < 1 || height == m_missing)
        {
            return false;
        }
        m_height = height;
        m_asked.push_back(height);
        return true;
    }
    int LineHeight() override
    {
        return m_height;
    }
    int LineWidth(std::string_view line) override
    {
        int width = 0;
        for (const char letter : line)
        {
            width += m_height / (letter == 'i' ? 4 : 2);
        }
        ++m_widths;
        return width;
    }

    /// A height in which there is no font.
    void Miss(int height)
    {
        m_missing = height;
    }
    const std::vector<int>& Asked() const
    {
        return m_asked;
    }
    /// How many lines were measured.
    int Widths() const
    {
        return m_widths;
    }

private:
    int m_height = 1;
    int m_missing = 0;
    int m_widths = 0;
    std::vector<int> m_asked;
};

/// A text of the tree in the fonts above.
class GridText : public TextLayout::Item
{
public:
    explicit GridText(const char* text)
    {
        Set("text", text);
    }
    bool CalcSize(CDC*, CSize& size, int& fontHeight) override
    {
        GridMeasure measure;
        return FitTextItem(*this, measure, size, fontHeight);
    }
    bool ComputeSize(CDC* dc) override
    {
        CSize size;
        int fontHeight = 0;
        return CalcSize(dc, size, fontHeight);
    }
    bool ComputeLayout(CDC* dc) override
    {
        return ComputeSize(dc);
    }
};

/// A box of a fixed size.
class SizedBox : public TextLayout::Item
{
public:
    SizedBox(int width, int height)
    {
        Set("width", width);
        Set("height", height);
    }
};

/// The number under a name of the node itself; -12345 when it has none.
inline int NumberIn(const TextLayout::Item& node, const char* key)
{
    int value = -12345;
    node.Get(key, value);
    return value;
}

inline CString TextIn(const TextLayout::Item& node, const char* key)
{
    CString value = "(none)";
    node.Get(key, value);
    return value;
}

} // namespace vorn::test
