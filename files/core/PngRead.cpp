#include "files/core/PngRead.h"
#include "files/core/WholeFile.h"

#include <algorithm>
#include <csetjmp>
#include <cstring>
#include <utility>

#include <png.h>

namespace vorn
{
namespace
{
constexpr unsigned kMostSide = 65535;

/// One reading. What libpng finds wrong ends in Read: nothing with a destructor may live on the way there.
class PngReader
{
public:
    PngReader(std::span<const unsigned char> file, std::int64_t maxBytes);
    ~PngReader();
    PngReader(const PngReader&) = delete;
    PngReader& operator=(const PngReader&) = delete;

    /// False leaves nothing to be taken.
    bool Read();
    PackedImage TakeImage()
    {
        return std::move(m_image);
    }

private:
    [[noreturn]] static void OnError(png_structp png, png_const_charp text);
    static void OnWarning(png_structp png, png_const_charp text);
    static void OnRead(png_structp png, png_bytep to, std::size_t size);

    bool HasTable() const
    {
        return m_colorType == PNG_COLOR_TYPE_PALETTE || m_colorType == PNG_COLOR_TYPE_GRAY;
    }
    void ReadHead();
    int Depth() const;
    void ChooseTransforms();
    bool MakeImage();
    void SetGreys();
    void SetPalette();
    void ReadRows();
    void WidenRows();

    std::span<const unsigned char> m_rest;
    std::int64_t m_maxBytes;
    std::jmp_buf m_failed;
    png_structp m_png;
    png_infop m_info;
    png_uint_32 m_width = 0;
    png_uint_32 m_height = 0;
    int m_bits = 0; ///< A sample, in the file.
    int m_colorType = 0;
    bool m_hasAlpha = false;
    PackedImage m_image;
};

PngReader::PngReader(std::span<const unsigned char> file, std::int64_t maxBytes)
    : m_rest(file), m_maxBytes(maxBytes),
      m_png(png_create_read_struct(PNG_LIBPNG_VER_STRING, this, &OnError, &OnWarning)),
      m_info(m_png != nullptr ? png_create_info_struct(m_png) : nullptr)
{
}

PngReader::~PngReader()
{
    png_destroy_read_struct(&m_png, &m_info, nullptr);
}

void PngReader::OnError(png_structp png, png_const_charp)
{
    std::longjmp(static_cast<PngReader*>(png_get_error_ptr(png))->m_failed, 1);
}

void PngReader::OnWarning(png_structp, png_const_charp)
{
}

void PngReader::OnRead(png_structp png, png_bytep to, std::size_t size)
{
    auto& rest = static_cast<PngReader*>(png_get_io_ptr(png))->m_rest;
    if (size > rest.size())
        png_error(png, "cut off");
    std::memcpy(to, rest.data(), size);
    rest = rest.subspan(size);
}

bool PngReader::Read()
{
    if (m_info == nullptr || setjmp(m_failed) != 0)
        return false;
    ReadHead();
    if (!MakeImage())
        return false;
    ChooseTransforms();
    ReadRows();
    png_read_end(m_png, nullptr);
    return true;
}

// Texts, profiles and the like are passed over: they change no pixel, and may be large when unpacked.
void PngReader::ReadHead()
{
    png_set_read_fn(m_png, this, &OnRead);
    png_set_user_limits(m_png, kMostSide, kMostSide);
    png_set_keep_unknown_chunks(m_png, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
    png_read_info(m_png, m_info);
    png_get_IHDR(m_png, m_info, &m_width, &m_height, &m_bits, &m_colorType, nullptr, nullptr, nullptr);
    const bool hasKey = png_get_valid(m_png, m_info, PNG_INFO_tRNS) != 0;
    m_hasAlpha = (m_colorType & PNG_COLOR_MASK_ALPHA) != 0 || (hasKey && m_colorType == PNG_COLOR_TYPE_RGB);
}

int PngReader::Depth() const
{
    if (!HasTable())
        return m_hasAlpha ? 32 : 24;
    return m_bits == 2 ? 4 : std::min(m_bits, 8);
}

void PngReader::ChooseTransforms()
{
    png_set_scale_16(m_png);
    if (!HasTable())
    {
        png_set_bgr(m_png);
        png_set_gray_to_rgb(m_png);
    }
    if (m_hasAlpha)
        png_set_tRNS_to_alpha(m_png);
}

bool PngReader::MakeImage()
{
    const auto width = static_cast<int>(m_width);
    if (BytesPerScan(width, Depth()) * m_height > m_maxBytes)
        return false;
    m_image = PackedImage::Make(width, static_cast<int>(m_height), Depth());
    if (m_image.IsEmpty())
        return false;
    if (m_colorType == PNG_COLOR_TYPE_GRAY)
        SetGreys();
    else if (m_colorType == PNG_COLOR_TYPE_PALETTE)
        SetPalette();
    return true;
}

void PngReader::SetGreys()
{
    const int last = (1 << std::min(m_bits, 8)) - 1;
    for (int i = 0; i <= last; ++i)
    {
        const auto grey = static_cast<BYTE>(i * 255 / last);
        m_image.SetTableColor(i, {grey, grey, grey});
    }
}

void PngReader::SetPalette()
{
    png_colorp colors = nullptr;
    int count = 0;
    png_get_PLTE(m_png, m_info, &colors, &count);
    for (int i = 0; i < count; ++i)
        m_image.SetTableColor(i, {colors[i].red, colors[i].green, colors[i].blue});
}

void PngReader::ReadRows()
{
    const ImageCanvas canvas = m_image.Canvas();
    const int passes = png_set_interlace_handling(m_png);
    png_read_update_info(m_png, m_info);
    for (int pass = 0; pass < passes; ++pass)
        for (int y = 0; y < canvas.height; ++y)
            png_read_row(m_png, canvas.Row(y), nullptr);
    if (HasTable() && m_bits == 2)
        WidenRows();
}

// From the right, as the row grows in place.
void PngReader::WidenRows()
{
    const ImageCanvas canvas = m_image.Canvas();
    for (int y = 0; y < canvas.height; ++y)
    {
        unsigned char* row = canvas.Row(y);
        for (int i = (canvas.width - 1) / 2; i >= 0; --i)
        {
            const int pair = row[i / 2] >> (i % 2 == 0 ? 4 : 0) & 0x0F;
            row[i] = static_cast<unsigned char>((pair & 0x0C) << 2 | (pair & 0x03));
        }
    }
}
} // namespace

PackedImage DecodePng(std::span<const unsigned char> file, std::int64_t maxBytes)
{
    PngReader reader(file, maxBytes);
    return reader.Read() ? reader.TakeImage() : PackedImage();
}

PackedImage ReadPngFile(const char* path)
{
    return DecodePng(ReadWholeFile(path).Bytes());
}
} // namespace vorn
