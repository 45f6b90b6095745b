#ifdef VORN_HAVE_STB
#include "bench/core/PictureCases.h"
#include "files/core/ImageResize.h"

#include <stb_image_resize.h>

// Pictures in another size, against a resizer in a single header.
namespace
{
using namespace vorn;
using namespace vorn::bench;

bool ByPeer(const ImageView& source, int width, int height)
{
    const ImageBlock pixels = PixelBuffer(width, height, 3);
    const int done = stbir_resize(source.bits, source.width, source.height, source.stride, pixels.Bytes().data(), width,
                                  height, static_cast<int>(BytesPerScan(width, 24)), STBIR_TYPE_UINT8, 3,
                                  STBIR_ALPHA_CHANNEL_NONE, 0, STBIR_EDGE_CLAMP, STBIR_EDGE_CLAMP, STBIR_FILTER_BOX,
                                  STBIR_FILTER_BOX, STBIR_COLORSPACE_LINEAR, nullptr);
    benchmark::DoNotOptimize(pixels.Bytes().data());
    return done == 1;
}

void Resizing(benchmark::State& state, int width, int height)
{
    const ImageView source = ColorPicture(Scene::Noisy).View();
    ComparePictures(
        state,
        [&]
        {
            const PackedImage made = BoxResize(source, width, height);
            benchmark::DoNotOptimize(made.Block().data());
            return made.IsEmpty() ? 0LL : 1LL;
        },
        [&]
        {
            return ByPeer(source, width, height) ? 1LL : 0LL;
        });
}

void Down(benchmark::State& state)
{
    Resizing(state, 400, 300);
}
VORN_BENCH_PICTURES(Down, "Pictures/box filter down to 400 x 300 to stb");

void DownOdd(benchmark::State& state)
{
    Resizing(state, 611, 457);
}
VORN_BENCH_PICTURES(DownOdd, "Pictures/box filter down to 611 x 457 to stb");

void Up(benchmark::State& state)
{
    Resizing(state, 2400, 1800);
}
VORN_BENCH_PICTURES(Up, "Pictures/box filter up to 2400 x 1800 to stb");
} // namespace
#endif
