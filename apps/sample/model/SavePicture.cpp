#include "apps/sample/model/SavePicture.h"

#include "apps/chart/PictureFile.h"

#include <cstring>

namespace
{

constexpr int kJpegQuality = 90;

bool EndsWith(const std::string& path, const char* ending)
{
    const CString text(path.c_str());
    return text.Right(static_cast<int>(std::strlen(ending))).CompareNoCase(ending) == 0;
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
        done = vorn::chart::WriteBitmap(picture, path.c_str());
    else
        return "The name must end in .png, .jpg or .bmp.";
    return done ? "" : "The picture could not be written to " + path + ".";
}
