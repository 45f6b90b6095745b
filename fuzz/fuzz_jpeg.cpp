#include "files/core/JpegRead.h"
#include "files/core/JpegWrite.h"
#include "fuzz/PictureUse.h"

/// Any bytes as a JPEG file, whole, at a quarter of its size, and with a palette. What is read can be written.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    constexpr std::int64_t kMostBytes = 1 << 18;
    vorn::PackedImage image = vorn::DecodeJpeg({data, size}, {.maxBytes = kMostBytes});
    vorn::fuzz::UsePicture(image);
    vorn::PackedImage small = vorn::DecodeJpeg({data, size}, {.scale = 4, .red = 1.5, .maxBytes = kMostBytes});
    vorn::fuzz::UsePicture(small);
    vorn::NearestReducer reducer({},
                                 [](unsigned char red, unsigned char green, unsigned char blue)
                                 {
                                     return static_cast<unsigned char>((red & 0xE0) | (green & 0xE0) >> 3 | blue >> 6);
                                 });
    vorn::PackedImage reduced = vorn::DecodeJpeg({data, size}, {.reducer = &reducer, .maxBytes = kMostBytes});
    vorn::fuzz::UsePicture(reduced);
    std::size_t length = 0;
    const bool isWritten = vorn::EncodeJpeg(image.View(),
                                            [&](const char*, unsigned piece)
                                            {
                                                length += piece;
                                            });
    vorn::fuzz::Require(isWritten == !image.IsEmpty() && isWritten == (length != 0));
    return 0;
}
