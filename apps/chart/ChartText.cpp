#include "apps/chart/ChartText.h"

#include "apps/chart/ChartColors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace vorn::chart
{

namespace
{

constexpr const char* kFace = "Segoe UI";
using Offsets = std::span<const std::pair<int, int>>;
constexpr std::array kWholeHalo = {std::pair(-1, 0), std::pair(1, 0), std::pair(0, -1), std::pair(0, 1)};
constexpr std::array kQuickHalo = {std::pair(-1, -1), std::pair(1, 1)};
constexpr double kMorseGap = 5; // between a text and its Morse code, pixels at 96 dpi

struct FontFacts
{
    double height; // pixels at 96 dpi
    int weight;
};

constexpr std::array<FontFacts, kTextStyles> kFonts = {
    {{11, FW_BOLD}, {10, FW_NORMAL}, {10, FW_NORMAL}, {10, FW_NORMAL}}};

int Rounded(double value)
{
    return static_cast<int>(std::lround(value));
}

/// What has been measured: texts do not change their size. A chart of another region starts anew at some size.
using Widths = std::map<std::pair<std::string, int>, int>;
constexpr std::size_t kMostWidths = 20'000;

Widths& KnownWidths()
{
    static Widths widths;
    if (widths.size() > kMostWidths)
        widths.clear();
    return widths;
}

int LineHeight(TextStyle style, double unit)
{
    return Rounded(kFonts[static_cast<std::size_t>(style)].height * unit * 1.25);
}

/// The halo, then the letters: thin ones twice, which makes their soft edges firm. `quick` does with half of it.
void DrawHaloed(CDC& dc, int x, int y, const TextLine& line, COLORREF color, COLORREF halo, int reach, bool quick)
{
    const int length = static_cast<int>(line.text.size());
    const int turns = quick || line.style == TextStyle::Ident ? 1 : 2;
    dc.SetTextColor(halo);
    for (const auto& [dx, dy] : quick ? Offsets(kQuickHalo) : Offsets(kWholeHalo))
        dc.TextOut(x + dx * reach, y + dy * reach, line.text.c_str(), length);
    dc.SetTextColor(color);
    for (int turn = 0; turn < turns; ++turn)
        dc.TextOut(x, y, line.text.c_str(), length);
}

} // namespace

HFONT FontOf(TextStyle style, double unit)
{
    const FontFacts& facts = kFonts[static_cast<std::size_t>(style)];
    return ResMgr::Inst()->GetFont(-Rounded(facts.height * unit), 0, 0, 0, facts.weight, 0, 0, 0, ANSI_CHARSET,
                                   OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY,
                                   VARIABLE_PITCH | FF_SWISS, kFace);
}

int MorseUnit(double unit)
{
    return std::max(1, Rounded(unit * 1.5));
}

TextMeter::TextMeter(CDC& dc, double unit) : m_dc(dc), m_unit(unit)
{
}

PixelSize TextMeter::MeasureLine(const TextLine& line)
{
    const int font = Rounded(m_unit * 100) * kTextStyles + static_cast<int>(line.style);
    const auto [known, isNew] = KnownWidths().try_emplace({line.text, font}, 0);
    if (isNew)
    {
        const HGDIOBJ before = SelectObject(&m_dc, FontOf(line.style, m_unit));
        known->second = m_dc.GetTextExtent(line.text.c_str(), static_cast<int>(line.text.size())).cx;
        SelectObject(&m_dc, before);
    }
    PixelSize size{known->second, LineHeight(line.style, m_unit)};
    if (!line.morse.empty())
        size.width += Rounded(kMorseGap * m_unit) + MorseWidth(MorseUnit(m_unit), line.morse.c_str());
    return size;
}

PixelSize TextMeter::Measure(const LabelText& label)
{
    PixelSize size;
    for (const TextLine& line : label)
    {
        const PixelSize one = MeasureLine(line);
        size.width = std::max(size.width, one.width);
        size.height += one.height;
    }
    return {size.width + 2, size.height};
}

void DrawLabel(CDC& dc, const SceneLabel& label, TextMeter& meter, double unit, bool quick)
{
    const COLORREF color = InkColor(label.ink);
    const COLORREF halo = ColorContext::Instance()->GetColor(APPCOLOR_TEXTHALO);
    const int reach = std::max(1, Rounded(unit * 0.75));
    int y = label.box.top;
    for (const TextLine& line : label.text)
    {
        const PixelSize size = meter.MeasureLine(line);
        const int room = label.box.Width() - size.width;
        const int shift = label.side == TextSide::Left ? 1 : label.side == TextSide::Right ? room - 1 : room / 2;
        const int x = label.box.left + shift;
        const HGDIOBJ before = SelectObject(&dc, FontOf(line.style, unit));
        DrawHaloed(dc, x, y, line, color, halo, reach, quick);
        SelectObject(&dc, before);
        if (!line.morse.empty())
        {
            const int dot = MorseUnit(unit);
            const int left = x + size.width - MorseWidth(dot, line.morse.c_str());
            const int top = y + (size.height - dot) / 2;
            const CRect ground(left - dot, top - dot, x + size.width + dot, top + 2 * dot);
            dc.FillSolidRect(&ground, halo);
            DrawMorse(&dc, color, left, top, dot, TA_LEFT, line.morse.c_str());
        }
        y += size.height;
    }
}

} // namespace vorn::chart
