#include "aviation/core/ColorText.h"
#include "aviation/core/Morse.h"

#include <cstdlib>
#include <string>

/// Any text as a colour and as an ident in Morse code.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    const COLORREF color = StringToColor(CString(text.c_str()));
    if (color >> 24 != 0x02 || StringToColor(ColorToString(color)) != color)
    {
        std::abort();
    }
    const int unit = size == 0 ? 0 : data[0] * (data[size - 1] % 2 == 0 ? 1 : 0x10000) - 16;
    const int width = MorseWidth(unit, text.c_str());
    long long end = 0;
    vorn::VisitMorse(0, unit, 0, text.c_str(),
                     [&](const vorn::MorseBlock& block)
                     {
                         if (block.left < end || block.right <= block.left)
                         {
                             std::abort();
                         }
                         end = block.right;
                     });
    if (end != 0 && width < INT_MAX && end != width)
    {
        std::abort();
    }
    return 0;
}
