#include "tests/windows/pictures/DrawnOn.h"

#include <cstring>
#include <vector>

namespace vorn::test
{
DrawnOn::DrawnOn(int width, int height)
    : m_section(width, -height, 32, 0, 1, nullptr, nullptr), m_dc(CreateCompatibleDC(nullptr)),
      m_former(SelectObject(m_dc, m_section.DIBSect()))
{
    PatBlt(m_dc, 0, 0, width, height, WHITENESS);
}

DrawnOn::~DrawnOn()
{
    SelectObject(m_dc, m_former);
    DeleteDC(m_dc);
}

HBITMAP DrawnOn::Unselected()
{
    SelectObject(m_dc, m_former);
    return m_section.DIBSect();
}

std::string DrawnOn::Text() const
{
    return Colors(m_section);
}

TestPalette::TestPalette(int count)
{
    std::vector<unsigned char> bytes(sizeof(LOGPALETTE) + static_cast<std::size_t>(count) * sizeof(PALETTEENTRY));
    auto* palette = reinterpret_cast<LOGPALETTE*>(bytes.data());
    palette->palVersion = 0x300;
    palette->palNumEntries = static_cast<WORD>(count);
    const PALETTEENTRY pure[] = {{0, 0, 0, 0}, {255, 0, 0, 0}, {0, 255, 0, 0}, {0, 0, 255, 0}};
    for (int i = 0; i < count; ++i)
    {
        const auto grey = static_cast<BYTE>(8 + (i - 4) * 4);
        palette->palPalEntry[i] = i < 4 ? pure[i] : PALETTEENTRY{grey, grey, grey, 0};
    }
    m_palette = CreatePalette(palette);
}

TestPalette::~TestPalette()
{
    DeleteObject(m_palette);
}
} // namespace vorn::test
