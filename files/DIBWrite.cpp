#include "files/DIB.h"
#include "files/PaletteOfMapper.h"
#include "files/core/ImageFile.h"
#include "files/core/JpegWrite.h"
#include "files/core/NoThrow.h"
#include "files/core/PngWrite.h"

#include <optional>
#include <ostream>
#include <stdexcept>
#include <utility>

namespace
{
/// Pieces go into the stream; one that takes them no more ends the writing.
void WritePiece(std::ostream& stream, const char* data, unsigned size)
{
    if (!stream.write(data, static_cast<std::streamsize>(size)))
        throw std::runtime_error("the stream takes no more");
}

bool HasPixels(const vorn::ImageView& image)
{
    return image.hasRows && image.height > 0;
}
} // namespace

bool DIB::WriteBMP(const char* path) const
{
    return m_info && vorn::NoThrow(false,
                                   [&]
                                   {
                                       return vorn::WriteBmpFile(path, m_info->bmiHeader, View());
                                   });
}

bool DIB::WritePNG(const char* path) const
{
    return HasPixels(View()) && vorn::NoThrow(false,
                                              [&]
                                              {
                                                  return vorn::WriteToFile(path,
                                                                           [this](FILE* file)
                                                                           {
                                                                               return WritePNG(file);
                                                                           });
                                              });
}

bool DIB::WritePNG(FILE* file) const
{
    return vorn::NoThrow(false,
                         [&]
                         {
                             return WritePNG(vorn::FileSink(file));
                         });
}

bool DIB::WritePNG(std::ostream& stream) const
{
    return WritePNG(
        [&stream](const char* data, unsigned size)
        {
            WritePiece(stream, data, size);
        });
}

bool DIB::WritePNG(std::function<void(const char* data, unsigned size)> sink) const
{
    return vorn::NoThrow(false,
                         [&]
                         {
                             return vorn::EncodePng(View(), sink);
                         });
}

bool DIB::WriteJPEG(const char* path, int quality, int progressive, PaletteMapper* mapper) const
{
    return vorn::CanWriteJpeg(View()) &&
           vorn::NoThrow(false,
                         [&]
                         {
                             std::optional<vorn::PaletteOfMapper> palette;
                             vorn::JpegWriting how{.quality = quality, .isProgressive = progressive != 0};
                             if (mapper)
                                 how.reducer = &palette.emplace(*mapper);
                             return vorn::WriteToFile(path,
                                                      [&](FILE* file)
                                                      {
                                                          return vorn::EncodeJpeg(View(), vorn::FileSink(file), how);
                                                      });
                         });
}
