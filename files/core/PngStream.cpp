#include "files/core/PngStream.h"
#include "files/core/PngPlan.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include <zlib.h>

namespace vorn
{
namespace
{
/// Compressed bytes that are there already.
class FinishedStream final : public PngStream
{
public:
    explicit FinishedStream(PngCompressed made) : m_made(std::move(made))
    {
    }

    std::span<const unsigned char> Next() override
    {
        const std::size_t from = m_given;
        m_given = std::min(from + kPngPiece, m_made.size);
        return m_made.block.Bytes().subspan(from, m_given - from);
    }

    bool IsComplete() const override
    {
        return m_given == m_made.size;
    }

private:
    PngCompressed m_made;
    std::size_t m_given = 0;
};

std::uint64_t BytesOf(const PngRows& rows, const ImageView& image)
{
    return std::uint64_t{rows.Size()} * static_cast<unsigned>(image.height);
}

ImageBlock AllOf(PngRows& rows, const ImageView& image)
{
    ImageBlock all = ImageBlock::Unfilled(static_cast<std::size_t>(BytesOf(rows, image)));
    unsigned char* line = all.Bytes().data();
    for (int y = 0; line != nullptr && y < image.height; ++y, line += rows.Size())
        rows.Next(line);
    return all;
}

/// Null without memory.
std::unique_ptr<PngStream> CompressedAtOnce(std::span<const unsigned char> rows, const PngCompressor& compressor)
{
    PngCompressed made = compressor.Compress(rows);
    return made.size > 0 ? std::make_unique<FinishedStream>(std::move(made)) : nullptr;
}

/// Rows that are compressed when they are asked for.
class RowStream final : public PngStream
{
public:
    RowStream(const ImageView& image, bool hasAlpha, PngPlan plan);
    ~RowStream() override;

    bool IsReady() const;
    std::span<const unsigned char> Next() override;

    bool IsComplete() const override
    {
        return m_result == Z_STREAM_END;
    }

private:
    bool SearchLonger();
    void TakeRow();

    PngRows m_rows;
    int m_rowsLeft;
    ImageBlock m_line;
    ImageBlock m_piece;
    z_stream m_stream{};
    bool m_hasStream;
    int m_result = Z_OK;
};

int StrategyFor(PngPlan plan)
{
    return plan.filter == PngFilter::None ? Z_DEFAULT_STRATEGY : Z_FILTERED;
}

RowStream::RowStream(const ImageView& image, bool hasAlpha, PngPlan plan)
    : m_rows(image, hasAlpha, plan.filter), m_rowsLeft(image.height), m_line(ImageBlock::Unfilled(m_rows.Size())),
      m_piece(ImageBlock::Unfilled(kPngPiece))
{
    constexpr int kLevel = 3;
    constexpr int kMemory = 8;
    m_hasStream = deflateInit2(&m_stream, kLevel, Z_DEFLATED, MAX_WBITS, kMemory, StrategyFor(plan)) == Z_OK;
    if (m_hasStream && plan.isFlat)
        m_hasStream = SearchLonger();
}

RowStream::~RowStream()
{
    deflateEnd(&m_stream);
}

bool RowStream::IsReady() const
{
    return m_hasStream && m_rows.IsReady() && !m_line.Bytes().empty() && !m_piece.Bytes().empty();
}

/// Lets the stream look for repetitions within others too, but for long ones, which are most of a flat picture: a
/// little slower than without, and a sixth smaller.
bool RowStream::SearchLonger()
{
    constexpr int kGood = 4;
    constexpr int kLongestLookedInto = 192;
    constexpr int kNice = 64;
    constexpr int kTries = 16;
    return deflateTune(&m_stream, kGood, kLongestLookedInto, kNice, kTries) == Z_OK;
}

void RowStream::TakeRow()
{
    m_rows.Next(m_line.Bytes().data());
    m_stream.next_in = m_line.Bytes().data();
    m_stream.avail_in = static_cast<uInt>(m_rows.Size());
    --m_rowsLeft;
}

std::span<const unsigned char> RowStream::Next()
{
    m_stream.next_out = m_piece.Bytes().data();
    m_stream.avail_out = kPngPiece;
    while (m_stream.avail_out > 0 && m_result == Z_OK)
    {
        if (m_stream.avail_in == 0 && m_rowsLeft > 0)
            TakeRow();
        m_result = deflate(&m_stream, m_rowsLeft > 0 ? Z_NO_FLUSH : Z_FINISH);
    }
    return m_piece.Bytes().first(kPngPiece - m_stream.avail_out);
}
} // namespace

std::unique_ptr<PngStream> StreamPng(const ImageView& image, bool hasAlpha, std::size_t mostAtOnce)
{
    const PngCompressor compressor;
    const PngPlan plan = PngPlanOf(image, hasAlpha, compressor);
    PngRows rows(image, hasAlpha, plan.filter);
    if (rows.IsReady() && BytesOf(rows, image) <= mostAtOnce)
        if (auto stream = CompressedAtOnce(AllOf(rows, image).Bytes(), compressor))
            return stream;
    auto stream = std::make_unique<RowStream>(image, hasAlpha, plan);
    return stream->IsReady() ? std::move(stream) : nullptr;
}
} // namespace vorn
