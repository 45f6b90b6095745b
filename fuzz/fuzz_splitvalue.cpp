#include "toolkit/textlayout/core/SplitShare.h"

#include <cstdlib>
#include <cstring>
#include <string_view>

/// The first bytes are the extent, the others say how it is divided.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    int extent = 0;
    if (size < sizeof(extent))
    {
        return 0;
    }
    std::memcpy(&extent, data, sizeof(extent));
    const std::string_view text(reinterpret_cast<const char*>(data) + sizeof(extent), size - sizeof(extent));
    const bool across = text.find('|') != std::string_view::npos;
    const auto share = vorn::ReadSplitShare(text);
    if (share.has_value() != (across || text.find('-') != std::string_view::npos))
    {
        std::abort();
    }
    if (!share)
    {
        return 0;
    }
    const int part = vorn::FirstPartOf(*share, extent);
    const bool tooLarge = share->bounded && part > extent;
    if (share->sideBySide != across || share->number < 0 || share->least < 0 || tooLarge || (part == 0 && extent != 0))
    {
        std::abort();
    }
    return 0;
}
