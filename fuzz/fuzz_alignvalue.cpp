#include "toolkit/textlayout/core/AlignWords.h"

#include <cstdlib>
#include <string>
#include <string_view>

/// Any words. Blanks and commas more do not matter, nor does a word that is none.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const vorn::AlignWords words = vorn::ReadAlignWords(text);
    const vorn::AlignWords more = vorn::ReadAlignWords(" ," + std::string(text) + " , Left middle");
    if (words.across != more.across || words.down != more.down)
    {
        std::abort();
    }
    const auto has = [text](std::string_view word)
    {
        return text.find(word) != std::string_view::npos;
    };
    const bool across = words.across == vorn::AlignedTo::Start || has("center") || has("right");
    const bool down = words.down == vorn::AlignedTo::Start || has("vcenter") || has("bottom");
    if (!across || !down)
    {
        std::abort();
    }
    return 0;
}
