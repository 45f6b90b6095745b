#include "files/DIB.h"
#include "files/core/GifFile.h"
#include "files/core/ImageFile.h"
#include "files/core/NoThrow.h"
#include "files/core/PcxFile.h"

bool DIB::ReadBMP(const char* path)
{
    Free();
    return Adopt(vorn::ReadBmpFile(path));
}

bool DIB::ReadPCX(const char* path)
{
    Free();
    return vorn::NoThrow(false,
                         [&]
                         {
                             return Adopt(vorn::DecodePcx(vorn::ReadImageFile(path).Bytes()));
                         });
}

bool DIB::ReadGIF(const char* path, int& transparent, int imageIndex)
{
    Free();
    transparent = -1;
    return vorn::NoThrow(false,
                         [&]
                         {
                             return Adopt(vorn::DecodeGif(vorn::ReadImageFile(path).Bytes(), imageIndex, transparent));
                         });
}
