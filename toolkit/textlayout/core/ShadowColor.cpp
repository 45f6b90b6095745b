#include "toolkit/textlayout/core/ShadowColor.h"

namespace vorn
{

COLORREF ShadowColor(COLORREF text)
{
    constexpr COLORREF kBlack = 0;
    constexpr COLORREF kLightGrey = 0xC0C0C0;
    const unsigned red = text & 0xFF;
    const unsigned green = text >> 8 & 0xFF;
    const unsigned blue = text >> 16 & 0xFF;
    const unsigned thousandLuma = 299 * red + 587 * green + 114 * blue;
    return thousandLuma < 128 * 1000 ? kLightGrey : kBlack;
}

} // namespace vorn
