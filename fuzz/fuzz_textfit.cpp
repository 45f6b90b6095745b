#include "tests/support/GridText.h"
#include "toolkit/textlayout/core/TextFit.h"
#include "toolkit/textlayout/core/TextLines.h"

#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace
{
struct Bounds
{
    int maxWidth;
    int maxHeight;
    int minFontHeight;
    int maxFontHeight;
    int spacing;
};

/// Whether what was found is within the bounds and fits. A text that was cut has the smallest font.
bool Holds(const vorn::FittedText& fitted, const vorn::TextSpace& space)
{
    const bool fits = fitted.width <= space.maxWidth && fitted.height <= space.maxHeight;
    const bool smallest = fitted.fontHeight == std::clamp(space.minFontHeight, 1, 999);
    const bool largest = fitted.fontHeight <= std::max(space.maxFontHeight, std::clamp(space.minFontHeight, 1, 999));
    return fitted.fontHeight >= 1 && largest && (fits || smallest) && (!fitted.cut || smallest);
}
} // namespace

/// The first bytes are the space and the bounds, the others the text.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    Bounds bounds{};
    if (size < sizeof(bounds))
    {
        return 0;
    }
    std::memcpy(&bounds, data, sizeof(bounds));
    const std::string_view text(reinterpret_cast<const char*>(data) + sizeof(bounds), size - sizeof(bounds));
    const vorn::TextSpace space = {bounds.maxWidth,      bounds.maxHeight, bounds.minFontHeight,
                                   bounds.maxFontHeight, bounds.spacing,   std::nullopt};
    vorn::test::GridMeasure measure;
    const auto fitted = vorn::FitText(text, space, measure);
    if (!fitted || !Holds(*fitted, space) || measure.Asked().size() > 40)
    {
        std::abort();
    }
    if (fitted->cut)
    {
        const std::size_t lines = vorn::TextLines(text).size();
        if (vorn::TextLines(*fitted->cut).size() > lines || fitted->cut->find('\r') != std::string::npos)
        {
            std::abort();
        }
    }
    return 0;
}
