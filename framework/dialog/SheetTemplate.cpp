#include "framework/dialog/SheetTemplate.h"

#include <cstring>

namespace vorn
{
namespace
{
/// Bits that belong to the template rather than to the window: what follows it, and its kind.
constexpr DWORD kTemplateBits = DS_SETFONT | DS_FIXEDSYS | DS_3DLOOK;

struct StyleOffsets
{
    std::size_t style;
    std::size_t exStyle;
};

StyleOffsets OffsetsIn(const char* bytes)
{
    constexpr WORD kExtendedSignature = 0xffff;
    WORD second = 0;
    std::memcpy(&second, bytes + sizeof(WORD), sizeof(second));
    return second == kExtendedSignature ? StyleOffsets{12, 8} : StyleOffsets{0, 4};
}
} // namespace

void ChangeSheetTemplate(void* dialogTemplate, const SheetStyles& styles)
{
    auto* const bytes = static_cast<char*>(dialogTemplate);
    const StyleOffsets offsets = OffsetsIn(bytes);
    DWORD style = 0;
    std::memcpy(&style, bytes + offsets.style, sizeof(style));
    if (styles.areGiven)
    {
        style = (style & kTemplateBits) | (styles.style & ~kTemplateBits);
        std::memcpy(bytes + offsets.exStyle, &styles.exStyle, sizeof(styles.exStyle));
    }
    style &= ~static_cast<DWORD>(WS_VISIBLE);
    std::memcpy(bytes + offsets.style, &style, sizeof(style));
}
} // namespace vorn
