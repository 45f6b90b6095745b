#pragma once

#include "apps/vorntool/core/Command.h"
#include "apps/vorntool/core/ImageWords.h"

#include <VornCommon.h>

#include <string>

namespace vorn::tool
{

/// A picture from a file, and what the file says about it.
struct ImagePicture
{
    DIB dib;
    std::string format; ///< "BMP", "PCX", "GIF", "PNG" or "JPEG".
    int transparent = -1;
};

/// Reads a file (UTF-8 name); `frame` counts the images of a GIF file, of others there is frame 0 alone. A ToolFailure
/// when there is no picture to be read.
void ReadPicture(const std::string& name, int frame, ImagePicture& picture);

/// How many images a file has that ReadPicture() reads, as far as they are counted.
int CountFrames(const std::string& name, const ImagePicture& picture);

/// Makes compressed pixels, which only the system can read, those of a picture of 24 bits. A ToolFailure when it
/// cannot.
void Decompress(const std::string& name, ImagePicture& picture);

/// How a picture is written.
struct ImageWriting
{
    ImageKind kind = ImageKind::Png;
    bool mayReplace = false;
    int quality = 85;
    bool isProgressive = false;
};

/// Writes a file (UTF-8 name) that is there whole or not at all. A ToolFailure when it cannot be, or may not.
void WritePicture(const DIB& dib, const std::string& name, const ImageWriting& how);

} // namespace vorn::tool
