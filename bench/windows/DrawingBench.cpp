#include "aviation/Drawing.h"
#include "bench/PairedTimer.h"
#include "frame/VornCommonApp.h"
#include "framework/include/afxwin.h"

namespace
{

using vorn::bench::Compare;

/// A picture of 32 bits a pixel to draw on.
class Picture
{
public:
    Picture(int width, int height)
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        dc.CreateCompatibleDC(nullptr);
        m_former = ::SelectObject(dc.GetSafeHdc(), m_bitmap.GetSafeHandle());
    }
    ~Picture()
    {
        ::SelectObject(dc.GetSafeHdc(), m_former);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    CDC dc;

private:
    CBitmap m_bitmap;
    HGDIOBJ m_former = nullptr;
};

/// The blocks of "SEA", in units.
constexpr int kSea[][2] = {{0, 1}, {2, 3}, {4, 5}, {8, 9}, {12, 13}, {14, 18}};

void DrawSeaByPixels(CDC& dc, COLORREF color, int x, int y, int unit)
{
    for (const auto& [left, right] : kSea)
    {
        for (int row = y; row < y + unit; ++row)
        {
            for (int column = x + left * unit; column < x + right * unit; ++column)
            {
                dc.SetPixel(column, row, color);
            }
        }
    }
}

void Morse(benchmark::State& state)
{
    Picture picture(200, 40);
    const auto unit = static_cast<int>(state.range(0));
    Compare(
        state, 200,
        [&]
        {
            DrawMorse(&picture.dc, RGB(0, 0, 160), 4, 4, unit, 0, "SEA");
        },
        [&]
        {
            DrawSeaByPixels(picture.dc, RGB(0, 0, 160), 4, 4, unit);
        });
}
BENCHMARK(Morse)->Name("Drawing/DrawMorse to single pixels")->Arg(1)->Arg(2)->Arg(3)->Arg(4)->UseManualTime();

void NightColor(benchmark::State& state)
{
    VornCommonApp host;
    VornCommonApp::Inst(&host);
    COLORREF color = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(MakeNightVision(color));
        color += 0x010305;
    }
    VornCommonApp::FreeInst();
}
BENCHMARK(NightColor)->Name("Drawing/MakeNightVision");

void PerfLine(benchmark::State& state)
{
    Picture picture(1600, 1200);
    CPoint points[] = {{10, 10}, {800, 1100}, {1500, 200}, {40, 700}};
    for (auto _ : state)
    {
        DrawPerfLine(&picture.dc, points, 4, 6, 3, 1, 1, 1);
    }
}
BENCHMARK(PerfLine)->Name("Drawing/DrawPerfLine");

} // namespace
