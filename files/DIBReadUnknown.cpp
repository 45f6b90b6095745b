#include "files/DIB.h"
#include "files/core/ImageFile.h"
#include "files/core/ImageKind.h"

#include <array>

namespace
{
vorn::ImageKind KindOfFile(const char* path)
{
    const vorn::OwnFile file = vorn::OpenToRead(path);
    std::array<unsigned char, vorn::kImageKindBytes> start{};
    if (!file)
        return vorn::ImageKind::Unknown;
    const std::size_t count = std::fread(start.data(), 1, start.size(), file.get());
    return vorn::KindOfImage(std::span(start).first(count));
}

} // namespace

bool DIB::ReadUnknown(const char* path)
{
    int transparent = 0;
    switch (KindOfFile(path))
    {
    case vorn::ImageKind::Bmp:
        return ReadBMP(path);
    case vorn::ImageKind::Pcx:
        return ReadPCX(path);
    case vorn::ImageKind::Gif:
        return ReadGIF(path, transparent, 0);
    case vorn::ImageKind::Png:
        return ReadPNG(path);
    case vorn::ImageKind::Jpeg:
        return ReadJPEG(path, 0, 1, nullptr, 1.0, 1.0, 1.0);
    case vorn::ImageKind::Unknown:
        break;
    }
    Free();
    return false;
}
