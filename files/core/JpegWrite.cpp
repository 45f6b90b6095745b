#include "files/core/JpegWrite.h"
#include "files/core/JpegErrors.h"
#include "files/core/PackedImage.h"
#include "files/core/RowConverter.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace vorn
{
namespace
{
constexpr int kDefaultQuality = 75;
constexpr int kBestQuality = 100;
constexpr std::size_t kPieceSize = 16384;

int QualityOf(int wanted)
{
    if (wanted < 1)
        return kDefaultQuality;
    return wanted > kBestQuality ? kBestQuality : wanted;
}

/// libjpeg's way out to a sink.
struct SinkDestination
{
    jpeg_destination_mgr manager{}; ///< First: libjpeg knows only this part.
    const EncodedSink& sink;
    std::array<JOCTET, kPieceSize> piece{};

    explicit SinkDestination(const EncodedSink& to);
};

bool GiveToSink(SinkDestination& destination, std::size_t size) noexcept
{
    try
    {
        if (size != 0)
            destination.sink(reinterpret_cast<const char*>(destination.piece.data()), static_cast<unsigned>(size));
        return true;
    }
    catch (...)
    {
        return false;
    }
}

void BeginPiece(j_compress_ptr codec)
{
    auto* destination = reinterpret_cast<SinkDestination*>(codec->dest);
    destination->manager.next_output_byte = destination->piece.data();
    destination->manager.free_in_buffer = destination->piece.size();
}

void GivePiece(j_compress_ptr codec, std::size_t size)
{
    if (!GiveToSink(*reinterpret_cast<SinkDestination*>(codec->dest), size))
        LeaveJpeg(reinterpret_cast<j_common_ptr>(codec));
}

// The piece is full, whatever the count of free bytes says.
boolean GiveFullPiece(j_compress_ptr codec)
{
    GivePiece(codec, kPieceSize);
    BeginPiece(codec);
    return TRUE;
}

void GiveLastPiece(j_compress_ptr codec)
{
    GivePiece(codec, kPieceSize - codec->dest->free_in_buffer);
}

SinkDestination::SinkDestination(const EncodedSink& to) : sink(to)
{
    manager.init_destination = BeginPiece;
    manager.empty_output_buffer = GiveFullPiece;
    manager.term_destination = GiveLastPiece;
}

/// One writing. What libjpeg finds wrong ends in Write: nothing with a destructor may live on the way there.
class JpegWriter
{
public:
    JpegWriter(const ImageView& image, const EncodedSink& sink, const JpegWriting& how);
    ~JpegWriter();
    JpegWriter(const JpegWriter&) = delete;
    JpegWriter& operator=(const JpegWriter&) = delete;

    bool Write();

private:
    bool IsDirect() const;
    void Choose();
    void WriteRows();
    unsigned char* ConvertedRow(int y);
    void ReduceLine(unsigned char* line);

    const ImageView& m_image;
    const JpegWriting& m_how;
    RowConverter m_converter;
    std::array<RGBQUAD, 256> m_palette{};
    ImageBlock m_line; ///< Pixels of three or four bytes.
    ImageBlock m_entries;
    SinkDestination m_destination;
    JpegErrors m_errors;
    jpeg_compress_struct m_codec{};
};

JpegWriter::JpegWriter(const ImageView& image, const EncodedSink& sink, const JpegWriting& how)
    : m_image(image), m_how(how), m_converter(image), m_line(static_cast<std::size_t>(image.width) * 4),
      m_entries(static_cast<std::size_t>(image.width)), m_destination(sink)
{
    m_codec.err = &m_errors.manager;
    const auto colors = how.reducer != nullptr ? how.reducer->Table() : std::span<const RGBQUAD>();
    std::copy_n(colors.begin(), std::min(colors.size(), m_palette.size()), m_palette.begin());
}

JpegWriter::~JpegWriter()
{
    jpeg_destroy_compress(&m_codec);
}

bool JpegWriter::Write()
{
    if (m_line.Bytes().empty() || m_entries.Bytes().empty() || setjmp(m_errors.failed) != 0)
        return false;
    jpeg_create_compress(&m_codec);
    m_codec.dest = &m_destination.manager;
    Choose();
    jpeg_start_compress(&m_codec, TRUE);
    WriteRows();
    jpeg_finish_compress(&m_codec);
    return true;
}

bool JpegWriter::IsDirect() const
{
    return m_how.reducer == nullptr && (m_image.depth == 24 || (m_image.depth == 32 && !m_image.isMasked));
}

void JpegWriter::Choose()
{
    const bool hasFourBytes = m_how.reducer != nullptr || (IsDirect() && m_image.depth == 32);
    m_codec.image_width = static_cast<JDIMENSION>(m_image.width);
    m_codec.image_height = static_cast<JDIMENSION>(m_image.height);
    m_codec.input_components = hasFourBytes ? 4 : 3;
    m_codec.in_color_space = hasFourBytes ? JCS_EXT_BGRX : JCS_EXT_BGR;
    jpeg_set_defaults(&m_codec);
    jpeg_set_quality(&m_codec, QualityOf(m_how.quality), TRUE);
    if (m_how.isProgressive)
        jpeg_simple_progression(&m_codec);
}

void JpegWriter::WriteRows()
{
    while (m_codec.next_scanline < m_codec.image_height)
    {
        const int y = static_cast<int>(m_codec.next_scanline);
        // libjpeg only reads the row, but asks for one that could be written
        JSAMPROW row = IsDirect() ? const_cast<JSAMPROW>(m_image.Row(y)) : ConvertedRow(y);
        jpeg_write_scanlines(&m_codec, &row, 1);
    }
}

unsigned char* JpegWriter::ConvertedRow(int y)
{
    unsigned char* line = m_line.Bytes().data();
    m_converter.Convert(m_image.Row(y), line);
    if (m_how.reducer != nullptr)
        ReduceLine(line);
    return line;
}

// From the right, as the pixels grow in place.
void JpegWriter::ReduceLine(unsigned char* line)
{
    for (std::ptrdiff_t x = m_image.width - 1; x >= 0; --x)
        std::memmove(line + x * 4, line + x * 3, 3);
    const auto entries = m_entries.Bytes();
    m_how.reducer->Reduce(line, entries.data(), m_image.width);
    for (std::size_t x = 0; x < entries.size(); ++x)
        std::memcpy(line + x * 4, &m_palette[entries[x]], 4);
}
} // namespace

bool CanWriteJpeg(const ImageView& image)
{
    return image.hasRows && image.width >= 1 && image.height >= 1 && image.width <= JPEG_MAX_DIMENSION &&
           image.height <= JPEG_MAX_DIMENSION;
}

bool EncodeJpeg(const ImageView& image, const EncodedSink& sink, const JpegWriting& how)
{
    if (!sink || !CanWriteJpeg(image))
        return false;
    JpegWriter writer(image, sink, how);
    return writer.Write();
}
} // namespace vorn
