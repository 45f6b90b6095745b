#include "files/core/GifFile.h"
#include "fuzz/PictureUse.h"

/// Any bytes as a GIF file, image by image: those that are there come one after the other. A transparent index is that
/// of an image.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    constexpr int kMostImages = 4;
    for (int index = -1; index < kMostImages; ++index)
    {
        int transparent = 1000;
        vorn::PackedImage image = vorn::DecodeGif({data, size}, index, transparent);
        vorn::fuzz::Require(transparent >= -1 && transparent <= 255);
        vorn::fuzz::Require(!image.IsEmpty() || transparent == -1);
        vorn::fuzz::Require(image.IsEmpty() || image.View().table.size() == 256);
        vorn::fuzz::UsePicture(image);
    }
    return 0;
}
