#include "files/core/PngWrite.h"
#include "files/core/ImagePixels.h"
#include "files/core/PackedImage.h"
#include "files/core/PngStream.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <memory>
#include <new>

#include <png.h>

namespace vorn
{
namespace
{
constexpr unsigned kMostSide = 0x7FFFFFFF;

bool HasTable(const ImageFormat& format)
{
    return format.depth <= 8;
}

/// Whether the fourth bytes are anything.
bool HasAlpha(const ImageView& image)
{
    if (image.depth != 32 || image.isMasked)
        return false;
    for (int y = 0; y < image.height; ++y)
    {
        const unsigned char* row = image.Row(y);
        unsigned any = 0;
        for (int x = 0; x < image.width; ++x)
            any |= row[x * 4 + 3];
        if (any != 0)
            return true;
    }
    return false;
}

int HighestIndex(const ImageView& image)
{
    DWORD highest = 0;
    for (int y = 0; y < image.height; ++y)
        for (int x = 0; x < image.width; ++x)
            highest = std::max(highest, StoredPixel(image.Row(y), x, image.depth));
    return static_cast<int>(highest);
}

/// Entries of the file's palette: the table's, and as many black ones as the pixels need.
int PaletteSize(const ImageView& image)
{
    const int most = 1 << image.depth;
    const int own = static_cast<int>(std::min<std::size_t>(image.table.size(), static_cast<std::size_t>(most)));
    return own == most ? own : std::max(own, HighestIndex(image) + 1);
}

/// One writing. What libpng finds wrong ends in Write: nothing with a destructor may live on the way there.
///
/// libpng frames the chunks. The pixels come compressed: for a picture that is there as a whole, that takes a fraction
/// of the time.
class PngWriter
{
public:
    PngWriter(const ImageView& image, const EncodedSink& sink);
    ~PngWriter();
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;

    bool Write();

private:
    [[noreturn]] static void OnError(png_structp png, png_const_charp text);
    static void OnWarning(png_structp png, png_const_charp text);
    static void OnWrite(png_structp png, png_bytep from, std::size_t size);
    static void OnFlush(png_structp png);

    bool GiveToSink(const png_byte* from, std::size_t size) noexcept;
    int ColorType() const;
    void WriteHead();
    void WritePalette();
    bool WritePixels();
    void WriteChunk(const char* type, const png_byte* data, std::size_t size);

    const ImageView& m_image;
    const EncodedSink& m_sink;
    bool m_hasAlpha;
    std::unique_ptr<PngStream> m_stream;
    std::array<png_color, 256> m_palette{};
    std::jmp_buf m_failed;
    png_structp m_png;
    png_infop m_info;
};

PngWriter::PngWriter(const ImageView& image, const EncodedSink& sink)
    : m_image(image), m_sink(sink), m_hasAlpha(HasAlpha(image)), m_stream(StreamPng(image, m_hasAlpha)),
      m_png(png_create_write_struct(PNG_LIBPNG_VER_STRING, this, &OnError, &OnWarning)),
      m_info(m_png != nullptr ? png_create_info_struct(m_png) : nullptr)
{
}

PngWriter::~PngWriter()
{
    png_destroy_write_struct(&m_png, &m_info);
}

void PngWriter::OnError(png_structp png, png_const_charp)
{
    std::longjmp(static_cast<PngWriter*>(png_get_error_ptr(png))->m_failed, 1);
}

void PngWriter::OnWarning(png_structp, png_const_charp)
{
}

void PngWriter::OnWrite(png_structp png, png_bytep from, std::size_t size)
{
    if (!static_cast<PngWriter*>(png_get_io_ptr(png))->GiveToSink(from, size))
        png_error(png, "refused");
}

void PngWriter::OnFlush(png_structp)
{
}

bool PngWriter::GiveToSink(const png_byte* from, std::size_t size) noexcept
{
    try
    {
        m_sink(reinterpret_cast<const char*>(from), static_cast<unsigned>(size));
        return true;
    }
    catch (...)
    {
        return false;
    }
}

bool PngWriter::Write()
{
    if (m_info == nullptr || m_stream == nullptr || setjmp(m_failed) != 0)
        return false;
    WriteHead();
    if (!WritePixels())
        return false;
    WriteChunk("IEND", nullptr, 0);
    return true;
}

int PngWriter::ColorType() const
{
    if (HasTable(m_image))
        return PNG_COLOR_TYPE_PALETTE;
    return m_hasAlpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB;
}

void PngWriter::WriteHead()
{
    png_set_write_fn(m_png, this, &OnWrite, &OnFlush);
    png_set_user_limits(m_png, kMostSide, kMostSide);
    png_set_IHDR(m_png, m_info, static_cast<png_uint_32>(m_image.width), static_cast<png_uint_32>(m_image.height),
                 std::min(m_image.depth, 8), ColorType(), PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    if (HasTable(m_image))
        WritePalette();
    png_write_info(m_png, m_info);
}

void PngWriter::WritePalette()
{
    const int count = PaletteSize(m_image);
    for (std::size_t i = 0; i < m_image.table.size() && i < m_palette.size(); ++i)
    {
        const RGBQUAD& entry = m_image.table[i];
        m_palette[i] = {entry.rgbRed, entry.rgbGreen, entry.rgbBlue};
    }
    png_set_PLTE(m_png, m_info, m_palette.data(), count);
}

bool PngWriter::WritePixels()
{
    for (auto piece = m_stream->Next(); !piece.empty(); piece = m_stream->Next())
        WriteChunk("IDAT", piece.data(), piece.size());
    return m_stream->IsComplete();
}

void PngWriter::WriteChunk(const char* type, const png_byte* data, std::size_t size)
{
    png_write_chunk(m_png, reinterpret_cast<png_const_bytep>(type), data, size);
}
} // namespace

bool EncodePng(const ImageView& image, const EncodedSink& sink)
{
    if (!sink || !image.hasRows || image.width < 1 || image.height < 1)
        return false;
    try
    {
        PngWriter writer(image, sink);
        return writer.Write();
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
}
} // namespace vorn
