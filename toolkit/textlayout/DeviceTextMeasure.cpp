#include "toolkit/textlayout/DeviceTextMeasure.h"

namespace vorn
{

namespace
{
/// From so many on reading the widths of all characters costs less.
constexpr std::size_t kManyCharacters = 4000;
} // namespace

DeviceTextMeasure::DeviceTextMeasure(const CDC& dc, const LOGFONT& description)
    : m_dc(dc.m_hAttribDC != nullptr ? dc.m_hAttribDC : dc.m_hDC), m_description(description),
      m_former(::GetCurrentObject(m_dc, OBJ_FONT))
{
}

DeviceTextMeasure::~DeviceTextMeasure()
{
    ::SelectObject(m_dc, m_former); // before the font goes: a selected one cannot be deleted
}

bool DeviceTextMeasure::UseFont(int height)
{
    m_description.lfHeight = height;
    CFont font;
    if (!font.CreateFontIndirect(&m_description) || !UseFont(static_cast<HFONT>(font)))
    {
        return false;
    }
    m_font.DeleteObject();
    m_font.Attach(font.Detach());
    return true;
}

bool DeviceTextMeasure::UseFont(HFONT font)
{
    TEXTMETRIC metrics{};
    if (::SelectObject(m_dc, font != nullptr ? font : m_former) == nullptr || !::GetTextMetrics(m_dc, &metrics))
    {
        ::SelectObject(m_dc, m_former);
        return false;
    }
    m_lineHeight = metrics.tmHeight;
    m_asked = 0;
    m_summing = false;
    return true;
}

int DeviceTextMeasure::LineHeight()
{
    return m_lineHeight;
}

int DeviceTextMeasure::LineWidth(std::string_view line)
{
    if (m_summing)
    {
        return m_widths.Sum(line);
    }
    const int width = AskWidth(line);
    const bool wasShort = m_asked < kManyCharacters;
    m_asked += line.size();
    m_summing = wasShort && m_asked >= kManyCharacters && m_widths.Read(m_dc, line, width);
    return width;
}

int DeviceTextMeasure::AskWidth(std::string_view line)
{
    SIZE size{};
    ::GetTextExtentPoint32(m_dc, line.data(), static_cast<int>(line.size()), &size);
    return size.cx;
}

} // namespace vorn
