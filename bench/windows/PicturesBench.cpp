#include "bench/PairedTimer.h"
#include "files/DIB.h"
#include "files/PaletteMapper.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace
{
using vorn::bench::Compare;

constexpr int kWidth = 1600;
constexpr int kHeight = 1200;

/// Colours that change from pixel to pixel.
DIB Noise()
{
    DIB image(kWidth, kHeight, 24, 0, 0, nullptr, nullptr);
    unsigned number = 1;
    for (int i = 0; i < image.BytesPerScan() * kHeight; ++i)
    {
        number = number * 1664525 + 1013904223;
        image.Bits()[i] = static_cast<unsigned char>(number >> 24);
    }
    return image;
}

/// A bitmap on the screen's kind of pixels, and a top-down 24-bit copy of it.
class BareStretch
{
public:
    BareStretch(int width, int height)
        : m_width(width), m_height(height), m_pixels(static_cast<std::size_t>((width * 3 + 3) / 4 * 4 * height))
    {
    }

    /// What the resizing comes to without the library.
    void Run(const DIB& source)
    {
        const HDC screen = GetDC(nullptr);
        const HDC memory = CreateCompatibleDC(screen);
        const HBITMAP bitmap = CreateCompatibleBitmap(screen, m_width, m_height);
        const HGDIOBJ former = SelectObject(memory, bitmap);
        SetStretchBltMode(memory, HALFTONE);
        SetBrushOrgEx(memory, 0, 0, nullptr);
        Stretch(memory, source);
        SelectObject(memory, former);
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), m_width, -m_height, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
        GetDIBits(memory, bitmap, 0, static_cast<UINT>(m_height), m_pixels.data(), &info, DIB_RGB_COLORS);
        DeleteObject(bitmap);
        DeleteDC(memory);
        ReleaseDC(nullptr, screen);
    }

    void Stretch(HDC dc, const DIB& source) const
    {
        StretchDIBits(dc, 0, 0, m_width, m_height, 0, 0, source.Width(), source.Height(), source.Bits(),
                      source.BitmapInfo(), DIB_RGB_COLORS, SRCCOPY);
    }

private:
    int m_width;
    int m_height;
    std::vector<unsigned char> m_pixels;
};

void LQResize(benchmark::State& state)
{
    DIB source = Noise();
    BareStretch bare(400, 300);
    DIB target;
    Compare(
        state, 1,
        [&]
        {
            benchmark::DoNotOptimize(target.LQResize(400, 300, &source));
        },
        [&]
        {
            bare.Run(source);
        });
}
BENCHMARK(LQResize)->Name("Pictures/LQResize to the bare calls")->UseManualTime();

void HQResize(benchmark::State& state)
{
    DIB source = Noise();
    BareStretch bare(400, 300);
    DIB target;
    Compare(
        state, 1,
        [&]
        {
            bare.Run(source);
        },
        [&]
        {
            benchmark::DoNotOptimize(target.HQResize(400, 300, &source));
        });
}
BENCHMARK(HQResize)->Name("Pictures/the system's halftone stretch to HQResize")->UseManualTime();

void To24Bit(benchmark::State& state)
{
    DIB source(kWidth, kHeight, 8, 0, 0, nullptr, nullptr);
    for (int i = 0; i < kWidth * kHeight; ++i)
        source.Bits()[i] = static_cast<unsigned char>(i * 7);
    DIB target;
    for (auto _ : state)
        benchmark::DoNotOptimize(source.To24Bit(&target));
}
BENCHMARK(To24Bit)->Name("Pictures/To24Bit of 1,920,000 pixels")->Unit(benchmark::kMillisecond);

/// A mapper that has been asked for every cell.
void NearestPaletteIndex(benchmark::State& state)
{
    std::vector<unsigned char> bytes(sizeof(LOGPALETTE) + 200 * sizeof(PALETTEENTRY));
    auto* entries = reinterpret_cast<LOGPALETTE*>(bytes.data());
    entries->palVersion = 0x300;
    entries->palNumEntries = 200;
    for (int i = 0; i < 200; ++i)
        entries->palPalEntry[i] = {static_cast<BYTE>(i), static_cast<BYTE>(255 - i), static_cast<BYTE>(i * 5), 0};
    const HPALETTE palette = CreatePalette(entries);
    PaletteMapper mapper(palette, 32);
    std::vector<unsigned> colors(4096);
    for (unsigned i = 0; i < colors.size(); ++i)
        colors[i] = i * 2654435761U;
    const auto findAll = [&]
    {
        unsigned sum = 0;
        for (const unsigned color : colors)
            sum += mapper.GetNearestPaletteIndex(static_cast<BYTE>(color), static_cast<BYTE>(color >> 8),
                                                 static_cast<BYTE>(color >> 16));
        return sum;
    };
    findAll();
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(colors.size())))
        benchmark::DoNotOptimize(findAll());
    DeleteObject(palette);
}
BENCHMARK(NearestPaletteIndex)->Name("Pictures/a palette index found");
} // namespace
