#include "toolkit/textlayout/CharWidths.h"

namespace vorn
{

bool CharWidths::Read(HDC dc, std::string_view sample, int sampleWidth)
{
    CPINFO codePage{};
    return ::GetCPInfo(CP_ACP, &codePage) && codePage.MaxCharSize == 1 &&
           ::GetCharWidth32(dc, 0, static_cast<UINT>(m_widths.size() - 1), m_widths.data()) &&
           Sum(sample) == sampleWidth;
}

int CharWidths::Sum(std::string_view text) const
{
    int sum = 0;
    for (const char character : text)
    {
        sum += m_widths[static_cast<unsigned char>(character)];
    }
    return sum;
}

} // namespace vorn
