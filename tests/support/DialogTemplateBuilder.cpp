#include "tests/support/DialogTemplateBuilder.h"

namespace
{
using ByteList = std::vector<std::uint8_t>;

void Word(ByteList& out, std::uint32_t value)
{
    out.push_back(static_cast<std::uint8_t>(value));
    out.push_back(static_cast<std::uint8_t>(value >> 8));
}

void DoubleWord(ByteList& out, std::uint32_t value)
{
    Word(out, value & 0xffff);
    Word(out, value >> 16);
}

void Text(ByteList& out, std::string_view text)
{
    for (const char c : text)
        Word(out, static_cast<unsigned char>(c));
    Word(out, 0);
}

void Rect(ByteList& out, const DialogTemplateBuilder::Place& place)
{
    for (const int value : {place.x, place.y, place.cx, place.cy})
        Word(out, static_cast<std::uint32_t>(value));
}

void Align(ByteList& out)
{
    while (out.size() % 4 != 0)
        out.push_back(0);
}
} // namespace

DialogTemplateBuilder& DialogTemplateBuilder::Style(std::uint32_t style, std::uint32_t exStyle)
{
    m_style = style;
    m_exStyle = exStyle;
    return *this;
}

DialogTemplateBuilder& DialogTemplateBuilder::Title(std::string_view title)
{
    m_title = title;
    return *this;
}

DialogTemplateBuilder& DialogTemplateBuilder::At(Place place)
{
    m_place = place;
    return *this;
}

DialogTemplateBuilder& DialogTemplateBuilder::Font(int points, std::string_view face)
{
    m_points = points;
    m_face = face;
    return *this;
}

DialogTemplateBuilder& DialogTemplateBuilder::WindowClass(std::string_view name)
{
    m_class = name;
    return *this;
}

DialogTemplateBuilder& DialogTemplateBuilder::Add(Class controlClass, std::uint32_t id, std::uint32_t style,
                                                  Place place, std::string_view text)
{
    m_items.push_back({controlClass, {}, id, style, place, text, {}});
    return *this;
}

DialogTemplateBuilder& DialogTemplateBuilder::Add(std::string_view controlClass, std::uint32_t id, std::uint32_t style,
                                                  Place place, std::string_view text)
{
    m_items.push_back({0, controlClass, id, style, place, text, {}});
    return *this;
}

DialogTemplateBuilder& DialogTemplateBuilder::CreationData(ByteList data)
{
    m_items.back().data = std::move(data);
    return *this;
}

ByteList DialogTemplateBuilder::Bytes() const
{
    ByteList out;
    AppendHead(out);
    for (const Item& item : m_items)
        AppendItem(out, item);
    return out;
}

void DialogTemplateBuilder::AppendHead(ByteList& out) const
{
    constexpr std::uint32_t kSetFont = 0x40;
    const std::uint32_t style = m_points ? m_style | kSetFont : m_style;
    const bool extended = m_layout == Layout::Extended;
    if (extended)
    {
        Word(out, 1);
        Word(out, 0xffff);
        DoubleWord(out, 0);
    }
    DoubleWord(out, extended ? m_exStyle : style);
    DoubleWord(out, extended ? style : m_exStyle);
    Word(out, static_cast<std::uint32_t>(m_items.size()));
    Rect(out, m_place);
    Word(out, 0); // no menu
    Text(out, m_class);
    Text(out, m_title);
    if (!m_points)
        return;
    Word(out, static_cast<std::uint32_t>(m_points));
    if (extended)
        DoubleWord(out, 0x01000190); // weight 400, not italic, default character set
    Text(out, m_face);
}

void DialogTemplateBuilder::AppendItem(ByteList& out, const Item& item) const
{
    constexpr std::uint32_t kChildVisible = 0x50000000;
    const bool extended = m_layout == Layout::Extended;
    const std::uint32_t style = item.style | kChildVisible;
    Align(out);
    if (extended)
        DoubleWord(out, 0);
    DoubleWord(out, extended ? 0 : style);
    DoubleWord(out, extended ? style : 0);
    Rect(out, item.place);
    if (extended)
        DoubleWord(out, item.id);
    else
        Word(out, item.id);
    if (item.atom)
    {
        Word(out, 0xffff);
        Word(out, item.atom);
    }
    else
        Text(out, item.className);
    Text(out, item.text);
    const std::size_t size = item.data.size();
    Word(out, static_cast<std::uint32_t>(extended || size == 0 ? size : size + 2));
    out.insert(out.end(), item.data.begin(), item.data.end());
}
