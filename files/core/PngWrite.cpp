#include "files/core/PngWrite.h"
#include "files/core/ImagePixels.h"
#include "files/core/PackedImage.h"
#include "files/core/PngRows.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstdint>

#include <png.h>
#include <zlib.h>

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

/// The least window, as a power of 2, that reaches over so many bytes: a small picture needs little memory.
int WindowBits(std::uint64_t bytes)
{
    constexpr int kLeast = 9;
    constexpr int kMost = 15;
    constexpr std::uint64_t kUnreached = 262; // zlib keeps that much ahead
    int bits = kLeast;
    while (bits < kMost && (std::uint64_t{1} << bits) < bytes + kUnreached)
        ++bits;
    return bits;
}

/// Lets the stream look for repetitions within others too, but for long ones, which are most of a flat picture: a
/// little slower than without, and a sixth smaller.
bool SearchLonger(z_stream& stream)
{
    constexpr int kGood = 4;
    constexpr int kLongestLookedInto = 192;
    constexpr int kNice = 64;
    constexpr int kTries = 16;
    return deflateTune(&stream, kGood, kLongestLookedInto, kNice, kTries) == Z_OK;
}

/// One writing. What libpng finds wrong ends in Write: nothing with a destructor may live on the way there.
///
/// libpng frames the chunks. Rows are filtered here and compressed by zlib directly: what a picture needs is known, and
/// each row is touched less often on its way.
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
    bool StartStream();
    int ColorType() const;
    void WriteHead();
    void WritePalette();
    void WriteRows();
    void Compress(int flush);
    void WritePiece();
    void WriteChunk(const char* type, const png_byte* data, std::size_t size);

    const ImageView& m_image;
    const EncodedSink& m_sink;
    bool m_hasAlpha;
    PngPlan m_plan;
    PngRows m_rows;
    ImageBlock m_piece;
    z_stream m_stream{};
    bool m_hasStream = false;
    std::array<png_color, 256> m_palette{};
    std::jmp_buf m_failed;
    png_structp m_png;
    png_infop m_info;
};

PngWriter::PngWriter(const ImageView& image, const EncodedSink& sink)
    : m_image(image), m_sink(sink), m_hasAlpha(HasAlpha(image)), m_plan(PngPlanOf(image)),
      m_rows(image, m_hasAlpha, m_plan.filter), m_piece(ImageBlock::Unfilled(kPngPiece)),
      m_png(png_create_write_struct(PNG_LIBPNG_VER_STRING, this, &OnError, &OnWarning)),
      m_info(m_png != nullptr ? png_create_info_struct(m_png) : nullptr)
{
}

PngWriter::~PngWriter()
{
    if (m_hasStream)
        deflateEnd(&m_stream);
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
    if (m_info == nullptr || !m_rows.IsReady() || m_piece.Bytes().empty() || !StartStream() || setjmp(m_failed) != 0)
        return false;
    WriteHead();
    WriteRows();
    WriteChunk("IEND", nullptr, 0);
    return true;
}

bool PngWriter::StartStream()
{
    constexpr int kLevel = 3;
    constexpr int kMemory = 8;
    const int strategy = m_plan.filter == PngFilter::None ? Z_DEFAULT_STRATEGY : Z_FILTERED;
    const std::uint64_t bytes = std::uint64_t{m_rows.Size()} * static_cast<unsigned>(m_image.height);
    m_hasStream = deflateInit2(&m_stream, kLevel, Z_DEFLATED, WindowBits(bytes), kMemory, strategy) == Z_OK;
    return m_hasStream && (!m_plan.isThorough || SearchLonger(m_stream));
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

void PngWriter::WriteRows()
{
    m_stream.next_out = m_piece.Bytes().data();
    m_stream.avail_out = kPngPiece;
    for (int y = 0; y < m_image.height; ++y)
    {
        m_stream.next_in = const_cast<Bytef*>(m_rows.Next()); // zlib only reads it
        m_stream.avail_in = static_cast<uInt>(m_rows.Size());
        Compress(Z_NO_FLUSH);
    }
    Compress(Z_FINISH);
    WritePiece();
}

void PngWriter::Compress(int flush)
{
    int result = Z_OK;
    do
    {
        if (m_stream.avail_out == 0)
            WritePiece();
        result = deflate(&m_stream, flush);
        if (result == Z_STREAM_ERROR)
            png_error(m_png, "not compressed");
    } while (flush == Z_FINISH ? result != Z_STREAM_END : m_stream.avail_in > 0);
}

/// What has been compressed, as a chunk.
void PngWriter::WritePiece()
{
    unsigned char* piece = m_piece.Bytes().data();
    WriteChunk("IDAT", piece, kPngPiece - m_stream.avail_out);
    m_stream.next_out = piece;
    m_stream.avail_out = kPngPiece;
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
    PngWriter writer(image, sink);
    return writer.Write();
}
} // namespace vorn
