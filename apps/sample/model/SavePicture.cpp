#include "apps/sample/model/SavePicture.h"

#include <cstring>

namespace
{

constexpr int kJpegQuality = 90;

bool EndsWith(const std::string& path, const char* ending)
{
    const CString text(path.c_str());
    return text.Right(static_cast<int>(std::strlen(ending))).CompareNoCase(ending) == 0;
}

// Bitmap files have 24 bits.
bool WriteBmp(const DIB& picture, const std::string& path)
{
    DIB colors;
    return picture.To24Bit(&colors) && colors.WriteBMP(path.c_str());
}

} // namespace

std::string SavePicture(const DIB& picture, const std::string& path)
{
    bool done = false;
    if (EndsWith(path, ".png"))
        done = picture.WritePNG(path.c_str());
    else if (EndsWith(path, ".jpg") || EndsWith(path, ".jpeg"))
        done = picture.WriteJPEG(path.c_str(), kJpegQuality, 0, nullptr);
    else if (EndsWith(path, ".bmp"))
        done = WriteBmp(picture, path);
    else
        return "The name must end in .png, .jpg or .bmp.";
    return done ? "" : "The picture could not be written to " + path + ".";
}
