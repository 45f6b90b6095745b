#include "toolkit/textlayout/Text.h"

#include "files/core/NoThrow.h"
#include "toolkit/textlayout/DeviceTextMeasure.h"
#include "toolkit/textlayout/core/FitTextItem.h"
#include "toolkit/textlayout/core/LayoutNumber.h"
#include "toolkit/textlayout/core/TextLines.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

namespace TextLayout
{

namespace
{
LOGFONT FontOf(const Item& node)
{
    LOGFONT font{};
    font.lfWeight = FW_NORMAL;
    int weight = FW_NORMAL;
    if (node.Get("weight", weight, true))
    {
        font.lfWeight = weight;
    }
    font.lfCharSet = DEFAULT_CHARSET;
    CString face = "Arial";
    node.Get("face", face, true);
    lstrcpyn(font.lfFaceName, face, LF_FACESIZE);
    return font;
}

bool MeasureText(const CDC& dc, const char* text, const CFont* font, int spacing, CSize& size)
{
    vorn::DeviceTextMeasure measure(dc, LOGFONT{});
    if (!measure.UseFont(font != nullptr ? static_cast<HFONT>(*font) : nullptr))
    {
        return false;
    }
    const std::vector<std::string> lines = vorn::TextLines(text);
    for (const std::string& line : lines)
    {
        size.cx = std::max<LONG>(size.cx, measure.LineWidth(line));
    }
    const auto count = static_cast<std::int64_t>(lines.size());
    size.cy = vorn::ClampToInt(count * vorn::LineAdvance(measure.LineHeight(), spacing));
    return true;
}

/// Changes a text by a function of the core; it stays when memory runs out.
template <class Change>
void ChangeText(CString& text, Change change)
{
    vorn::NoThrow(false,
                  [&]
                  {
                      std::string changed(text, static_cast<std::size_t>(text.GetLength()));
                      change(changed);
                      text = changed.c_str();
                      return true;
                  });
}
} // namespace

Text::Text(LPCSTR text, LPCSTR face, int weight, int spacing, int maxFontHeight, COLORREF color, int minFontHeight)
{
    if (text != nullptr)
    {
        Set("text", text);
    }
    if (face != nullptr)
    {
        Set("face", face);
    }
    const auto setFrom = [this](LPCSTR key, int value, int least)
    {
        if (value >= least)
        {
            Set(key, value);
        }
    };
    setFrom("weight", weight, 0);
    setFrom("spacing", spacing, 1);
    setFrom("maxFontHeight", maxFontHeight, 1);
    setFrom("minFontHeight", minFontHeight, 1);
    if (color != 0)
    {
        Set("color", static_cast<int>(color));
    }
}

bool Text::CalcSize(CDC* dc, CSize& size, int& fontHeight)
{
    if (dc == nullptr)
    {
        return false;
    }
    return vorn::NoThrow(false,
                         [&]
                         {
                             vorn::DeviceTextMeasure measure(*dc, FontOf(*this));
                             return vorn::FitTextItem(*this, measure, size, fontHeight);
                         });
}

bool Text::ComputeSize(CDC* dc)
{
    CSize size;
    int fontHeight = 0;
    return CalcSize(dc, size, fontHeight);
}

bool Text::ComputeLayout(CDC* dc)
{
    return ComputeSize(dc);
}

CFont* Text::CreateFont(int height) const
{
    if (height < 1)
    {
        return nullptr;
    }
    return vorn::NoThrow<CFont*>(nullptr,
                                 [&]
                                 {
                                     LOGFONT description = FontOf(*this);
                                     description.lfHeight = height;
                                     auto font = std::make_unique<CFont>();
                                     return font->CreateFontIndirect(&description) ? font.release() : nullptr;
                                 });
}

bool Text::GetTextSize(CDC* dc, LPCSTR text, CFont* font, int spacing, CSize& size)
{
    size = CSize(0, 0);
    return dc != nullptr && vorn::NoThrow(false,
                                          [&]
                                          {
                                              return MeasureText(*dc, text != nullptr ? text : "", font, spacing, size);
                                          });
}

bool Text::IsSingleLine(const CString& text)
{
    return text.Find('\n') < 0;
}

void Text::ShortenLine(CString& line)
{
    ChangeText(line, vorn::ShortenLine);
}

void Text::RemoveLine(CString& text, int hidden)
{
    ChangeText(text,
               [hidden](std::string& shorter)
               {
                   vorn::RemoveLine(shorter, hidden);
               });
}

} // namespace TextLayout
