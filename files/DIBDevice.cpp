#include "files/DIB.h"
#include "files/DibInfo.h"
#include "files/GdiScopes.h"
#include "files/core/NoThrow.h"
#include "files/core/PackedImage.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

namespace
{
constexpr int kDefaultDepth = 24;

/// A device context that is given, or the screen's.
class GivenOrScreen
{
public:
    explicit GivenOrScreen(HDC dc) : m_dc(dc)
    {
        if (!dc)
            m_dc = m_screen.emplace();
    }
    operator HDC() const
    {
        return m_dc;
    }

private:
    std::optional<vorn::ScreenDC> m_screen;
    HDC m_dc;
};

bool ReadRows(HDC dc, HBITMAP bitmap, vorn::PackedImage& image)
{
    const vorn::ImageView view = image.View();
    vorn::DibInfo info(view.width, view.isTopDown ? -view.height : view.height, view.depth);
    const auto rows = static_cast<UINT>(view.height);
    unsigned char* bits = image.Block().data() + image.BitsOffset();
    const int read = ::GetDIBits(dc, bitmap, 0, rows, bits, info.Get(), static_cast<UINT>(image.Usage()));
    if (read != view.height)
        return false;
    const std::span<const unsigned char> table = info.Table();
    if (view.depth <= 8)
        std::memcpy(image.Block().data() + vorn::kBitmapHeaderSize, table.data(),
                    std::min(table.size(), image.BitsOffset() - vorn::kBitmapHeaderSize));
    return true;
}

/// Some of an image's stored rows.
struct RowRange
{
    UINT first;
    UINT count;
};

std::vector<unsigned char> LowestFirst(const vorn::ImageView& topDown, RowRange range)
{
    const auto stride = static_cast<std::size_t>(topDown.stride);
    std::vector<unsigned char> rows(stride * range.count);
    for (UINT i = 0; i < range.count; ++i)
        std::memcpy(rows.data() + stride * (range.count - 1 - i), topDown.bits + stride * (range.first + i), stride);
    return rows;
}

/// The bitmap stretched to the size, selected nowhere; null on failure.
vorn::OwnBitmap Stretched(const DIB& source, HDC screen, HDC memory, int width, int height)
{
    vorn::OwnBitmap bitmap(CreateCompatibleBitmap(screen, width, height));
    if (!bitmap)
        return nullptr;
    const vorn::Selected selected(memory, bitmap.get());
    SetStretchBltMode(memory, HALFTONE);
    SetBrushOrgEx(memory, 0, 0, nullptr);
    if (source.StretchDIBits(memory, 0, 0, width, height, SRCCOPY) == 0)
        return nullptr;
    return bitmap;
}
} // namespace

int DIB::StretchDIBits(HDC dc, int x, int y, int width, int height, DWORD rop) const
{
    if (!m_info)
        return 0;
    const vorn::DibInfo info(Block(), TableEnd(), m_usage, m_blockSize - TableEnd());
    return ::StretchDIBits(dc, x, y, width, height, 0, 0, Width(), Height(), m_bits, info.Get(),
                           static_cast<UINT>(m_usage), rop);
}

// Where a part of a top-down image goes is not told for sure: it is handed over with the lowest row first.
int DIB::SetDIBits(HDC dc, HBITMAP bitmap, UINT start, UINT count) const
{
    const vorn::ImageView view = View();
    const auto rows = static_cast<UINT>(view.height);
    if (!m_info || start >= rows)
        return 0;
    const RowRange range{start, std::min(count, rows - start)};
    vorn::DibInfo info(Block(), TableEnd(), m_usage, m_blockSize - TableEnd());
    const auto set = [&](UINT first, const unsigned char* bits)
    {
        return ::SetDIBits(dc, bitmap, first, range.count, bits, info.Get(), static_cast<UINT>(m_usage));
    };
    if (!view.hasRows)
        return set(start, m_bits);
    const std::size_t offset = std::size_t{start} * static_cast<UINT>(m_bytesPerScan);
    if (!view.isTopDown || range.count == rows)
        return set(start, m_bits + offset);
    return vorn::NoThrow(0,
                         [&]
                         {
                             const std::vector<unsigned char> reversed = LowestFirst(view, range);
                             info.Get()->bmiHeader.biHeight = view.height;
                             return set(rows - start - range.count, reversed.data());
                         });
}

bool DIB::LoadDDB(HBITMAP bitmap, HDC dc, HPALETTE palette)
{
    BITMAP facts{};
    if (!GetObject(bitmap, sizeof facts, &facts))
        return false;
    const int depth = m_info ? m_depth : kDefaultDepth;
    vorn::PackedImage image = vorn::PackedImage::Make(static_cast<int>(facts.bmWidth), static_cast<int>(facts.bmHeight),
                                                      depth, m_info ? m_usage : DIB_RGB_COLORS);
    const GivenOrScreen given(dc);
    const vorn::SelectedPalette selected(given, palette);
    return !image.IsEmpty() && ReadRows(given, bitmap, image) && Adopt(std::move(image));
}

bool DIB::LQResize(int width, int height, DIB* source)
{
    if (width < 1 || height < 1 || !source || !source->View().hasRows)
        return false;
    vorn::PackedImage image = vorn::PackedImage::Make(width, -height, source->Depth(), source->Usage());
    if (image.IsEmpty())
        return false;
    const vorn::ScreenDC screen;
    const vorn::MemoryDC memory(screen);
    const vorn::OwnBitmap bitmap = Stretched(*source, screen, memory, width, height);
    return bitmap && ReadRows(memory, bitmap.get(), image) && Adopt(std::move(image));
}
