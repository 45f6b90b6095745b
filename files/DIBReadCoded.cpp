#include "files/DIB.h"
#include "files/PaletteOfMapper.h"
#include "files/core/JpegRead.h"
#include "files/core/NoThrow.h"
#include "files/core/PngRead.h"

#include <optional>

namespace
{
/// What a JPEG file is read with.
class JpegArguments
{
public:
    JpegArguments(const JpegArguments&) = delete;
    JpegArguments& operator=(const JpegArguments&) = delete;
    JpegArguments(int scale, PaletteMapper* mapper, double red, double green, double blue)
        : m_how{.scale = scale, .reducer = nullptr, .red = red, .green = green, .blue = blue}
    {
        if (mapper)
            m_how.reducer = &m_palette.emplace(*mapper);
    }
    const vorn::JpegReading& Get() const
    {
        return m_how;
    }

private:
    std::optional<vorn::PaletteOfMapper> m_palette;
    vorn::JpegReading m_how;
};

// A file that was written to before must be told a place even where it stays; a pipe knows none.
bool Advance(FILE* file, long offset)
{
    return std::fseek(file, offset, SEEK_CUR) == 0 || offset == 0;
}
} // namespace

bool DIB::ReadPNG(const char* path)
{
    Free();
    return vorn::NoThrow(false,
                         [&]
                         {
                             return Adopt(vorn::ReadPngFile(path));
                         });
}

bool DIB::ReadJPEG(const char* path, long offset, int scale, PaletteMapper* mapper, double red, double green,
                   double blue)
{
    Free();
    return vorn::NoThrow(false,
                         [&]
                         {
                             const JpegArguments arguments(scale, mapper, red, green, blue);
                             return Adopt(vorn::ReadJpegFile(path, offset, arguments.Get()));
                         });
}

bool DIB::ReadJPEG(FILE* file, long offset, int scale, PaletteMapper* mapper, double red, double green, double blue)
{
    Free();
    return file && Advance(file, offset) &&
           vorn::NoThrow(false,
                         [&]
                         {
                             const JpegArguments arguments(scale, mapper, red, green, blue);
                             return Adopt(vorn::DecodeJpeg(file, arguments.Get()));
                         });
}
