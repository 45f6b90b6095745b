#include "files/core/JpegRead.h"
#include "files/core/JpegErrors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <utility>

namespace vorn
{
namespace
{
constexpr int kMostScans = 100; // a progressive picture has about ten; more cost time without end
constexpr int kMostRows = 8;    // asked for at a time

unsigned ScaleOf(int wanted)
{
    for (const int scale : {8, 4, 2})
        if (wanted >= scale)
            return static_cast<unsigned>(scale);
    return 1;
}

// libjpeg-turbo writes rows of this alignment past the processor's caches. Lines that are read at once must not be so.
constexpr std::size_t kAlignment = 32;
constexpr std::size_t kOffAlignment = 8;

/// What becomes of the values of a channel.
class ChannelFactor
{
public:
    explicit ChannelFactor(double factor) : m_changes(factor != 1.0)
    {
        for (std::size_t i = 0; i < m_values.size(); ++i)
            m_values[i] = Times(static_cast<double>(i), factor);
    }

    bool Changes() const
    {
        return m_changes;
    }
    unsigned char Of(unsigned char value) const
    {
        return m_values[value];
    }

private:
    static unsigned char Times(double value, double factor)
    {
        const double product = value * factor;
        if (!(product > 0.0)) // nor for what is no number
            return 0;
        return static_cast<unsigned char>(std::lround(std::min(product, 255.0)));
    }

    bool m_changes;
    std::array<unsigned char, 256> m_values{};
};

/// One reading. What libjpeg finds wrong ends in Read: nothing with a destructor may live on the way there.
class JpegReader
{
public:
    explicit JpegReader(const JpegReading& how);
    ~JpegReader();
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;

    /// `setSource` tells libjpeg where the bytes come from. False leaves nothing to be taken.
    template <class SetSource>
    bool Read(const SetSource& setSource);
    PackedImage TakeImage()
    {
        return std::move(m_image);
    }

private:
    static void OnProgress(j_common_ptr codec);

    bool ReadAll();
    void ReadHead();
    bool IsTooLarge() const;
    bool MakeImage();
    bool IsAsDecoded() const;
    std::size_t LineSize() const;
    void ReadRows();
    void Finish(unsigned char* line, unsigned char* row);
    void MixInks(unsigned char* line) const;
    void ApplyFactors(unsigned char* line) const;

    const JpegReading& m_how;
    ChannelFactor m_red;
    ChannelFactor m_green;
    ChannelFactor m_blue;
    JpegErrors m_errors;
    jpeg_progress_mgr m_progress{};
    jpeg_decompress_struct m_codec{};
    ImageBlock m_lines; ///< Pixels of four bytes.
    PackedImage m_image;
};

JpegReader::JpegReader(const JpegReading& how) : m_how(how), m_red(how.red), m_green(how.green), m_blue(how.blue)
{
    m_codec.err = &m_errors.manager;
    m_progress.progress_monitor = OnProgress;
}

JpegReader::~JpegReader()
{
    jpeg_destroy_decompress(&m_codec);
}

void JpegReader::OnProgress(j_common_ptr codec)
{
    if (reinterpret_cast<j_decompress_ptr>(codec)->input_scan_number > kMostScans)
        LeaveJpeg(codec);
}

template <class SetSource>
bool JpegReader::Read(const SetSource& setSource)
{
    if (setjmp(m_errors.failed) != 0)
        return false;
    jpeg_create_decompress(&m_codec);
    m_codec.progress = &m_progress;
    setSource(&m_codec);
    return ReadAll();
}

bool JpegReader::ReadAll()
{
    ReadHead();
    if (IsTooLarge() || !MakeImage())
        return false;
    jpeg_start_decompress(&m_codec);
    ReadRows();
    return true;
}

void JpegReader::ReadHead()
{
    jpeg_read_header(&m_codec, TRUE);
    m_codec.scale_num = 1;
    m_codec.scale_denom = ScaleOf(m_how.scale);
    m_codec.out_color_space = m_codec.num_components == 4 ? JCS_CMYK : IsAsDecoded() ? JCS_EXT_BGR : JCS_EXT_BGRX;
    jpeg_calc_output_dimensions(&m_codec);
}

// Pictures in several scans are kept whole, whatever the size that comes out.
bool JpegReader::IsTooLarge() const
{
    const std::int64_t row = BytesPerScan(static_cast<int>(m_codec.output_width), 24);
    const std::int64_t whole = std::int64_t{m_codec.image_width} * m_codec.image_height * m_codec.num_components;
    const bool isKept = jpeg_has_multiple_scans(const_cast<j_decompress_ptr>(&m_codec)) != 0;
    return row * m_codec.output_height > m_how.maxBytes || (isKept && whole > m_how.maxBytes);
}

bool JpegReader::MakeImage()
{
    const int depth = m_how.reducer != nullptr ? 8 : 24;
    m_image = PackedImage::Make(static_cast<int>(m_codec.output_width), static_cast<int>(m_codec.output_height), depth);
    m_lines = ImageBlock(LineSize() * kMostRows + kOffAlignment);
    if (m_image.IsEmpty() || m_lines.Bytes().empty())
        return false;
    const auto colors = m_how.reducer != nullptr ? m_how.reducer->Table() : std::span<const RGBQUAD>();
    for (std::size_t i = 0; i < std::min<std::size_t>(colors.size(), 256); ++i)
        m_image.SetTableColor(static_cast<int>(i), {colors[i].rgbRed, colors[i].rgbGreen, colors[i].rgbBlue});
    return true;
}

std::size_t JpegReader::LineSize() const
{
    return (std::size_t{m_codec.output_width} * 4 + kAlignment - 1) / kAlignment * kAlignment;
}

bool JpegReader::IsAsDecoded() const
{
    return m_how.reducer == nullptr && !m_red.Changes() && !m_green.Changes() && !m_blue.Changes();
}

// Several rows at a time: what finishes them keeps its tables in the processor's first cache.
void JpegReader::ReadRows()
{
    const ImageCanvas canvas = m_image.Canvas();
    const bool isDirect = m_codec.out_color_space == JCS_EXT_BGR;
    unsigned char* lines = m_lines.Bytes().data() + kOffAlignment;
    while (m_codec.output_scanline < m_codec.output_height)
    {
        std::array<JSAMPROW, kMostRows> rows{};
        const int first = static_cast<int>(m_codec.output_scanline);
        const int wanted = std::min(kMostRows, canvas.height - first);
        for (int i = 0; i < wanted; ++i)
            rows[static_cast<std::size_t>(i)] =
                isDirect ? canvas.Row(first + i) : lines + static_cast<std::size_t>(i) * LineSize();
        const auto count =
            static_cast<int>(jpeg_read_scanlines(&m_codec, rows.data(), static_cast<JDIMENSION>(wanted)));
        for (int i = 0; !isDirect && i < count; ++i)
            Finish(rows[static_cast<std::size_t>(i)], canvas.Row(first + i));
    }
}

void JpegReader::Finish(unsigned char* line, unsigned char* row)
{
    if (m_codec.out_color_space == JCS_CMYK)
        MixInks(line);
    ApplyFactors(line);
    if (m_how.reducer != nullptr)
        m_how.reducer->Reduce(line, row, static_cast<int>(m_codec.output_width));
    else
        for (JDIMENSION x = 0; x < m_codec.output_width; ++x, line += 4, row += 3)
            std::memcpy(row, line, 3);
}

// The values are how much of the ink is missing, as one well-known program began to write them.
void JpegReader::MixInks(unsigned char* line) const
{
    const auto mixed = [](unsigned ink, unsigned black)
    {
        return static_cast<unsigned char>((ink * black * 2 + 255) / 510);
    };
    for (JDIMENSION x = 0; x < m_codec.output_width; ++x, line += 4)
    {
        const std::array<unsigned char, 4> inks{line[0], line[1], line[2], line[3]};
        line[0] = mixed(inks[2], inks[3]);
        line[1] = mixed(inks[1], inks[3]);
        line[2] = mixed(inks[0], inks[3]);
    }
}

void JpegReader::ApplyFactors(unsigned char* line) const
{
    if (!m_red.Changes() && !m_green.Changes() && !m_blue.Changes())
        return;
    for (JDIMENSION x = 0; x < m_codec.output_width; ++x, line += 4)
    {
        line[0] = m_blue.Of(line[0]);
        line[1] = m_green.Of(line[1]);
        line[2] = m_red.Of(line[2]);
    }
}

template <class SetSource>
PackedImage DecodeFrom(const SetSource& setSource, const JpegReading& how)
{
    JpegReader reader(how);
    return reader.Read(setSource) ? reader.TakeImage() : PackedImage();
}

struct Close
{
    void operator()(std::FILE* file) const
    {
        std::fclose(file);
    }
};
} // namespace

PackedImage DecodeJpeg(std::span<const unsigned char> file, const JpegReading& how)
{
    return DecodeFrom(
        [file](j_decompress_ptr codec)
        {
            jpeg_mem_src(codec, file.data(), static_cast<unsigned long>(file.size()));
        },
        how);
}

PackedImage DecodeJpeg(std::FILE* file, const JpegReading& how)
{
    if (file == nullptr)
        return {};
    return DecodeFrom(
        [file](j_decompress_ptr codec)
        {
            jpeg_stdio_src(codec, file);
        },
        how);
}

PackedImage ReadJpegFile(const char* path, long offset, const JpegReading& how)
{
    const std::unique_ptr<std::FILE, Close> file(path != nullptr ? std::fopen(path, "rb") : nullptr);
    if (!file || offset < 0 || std::fseek(file.get(), offset, SEEK_SET) != 0)
        return {};
    return DecodeJpeg(file.get(), how);
}
} // namespace vorn
