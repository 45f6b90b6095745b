#include "files/core/PcxFile.h"
#include "fuzz/PictureUse.h"

/// Any bytes as a PCX file.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    vorn::PackedImage image = vorn::DecodePcx({data, size});
    vorn::fuzz::UsePicture(image);
    return 0;
}
