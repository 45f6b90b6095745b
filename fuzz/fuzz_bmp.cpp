#include "files/core/BmpFile.h"
#include "fuzz/PictureUse.h"

/// Any bytes as a bitmap file. What is read as 24 bits is written and read the same.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    vorn::PackedImage image = vorn::DecodeBmp({data, size});
    vorn::fuzz::UsePicture(image);
    const auto written = vorn::EncodeBmp(image);
    if (!written.empty())
    {
        vorn::fuzz::RequireSamePicture(vorn::DecodeBmp(written), image);
    }
    return 0;
}
