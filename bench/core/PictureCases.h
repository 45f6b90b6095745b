#pragma once

#include "bench/PairedTimer.h"
#include "files/core/PackedImage.h"

#include <string>

namespace vorn::bench
{

inline constexpr int kPictureWidth = 1600;
inline constexpr int kPictureHeight = 1200;

/// The pictures of all cases: clouds with noise as of a photograph, and areas, lines and dots as of a chart.
enum class Scene
{
    Noisy,
    Flat
};

/// 24 bits, bottom-up.
const PackedImage& ColorPicture(Scene scene);

/// 8 bits in 252 colours at most, top-down without gaps.
const PackedImage& IndexedPicture(Scene scene);

/// A buffer as a program without our classes would take it for the pixels.
ImageBlock PixelBuffer(int width, int height, int bytesPerPixel);

/// Times an operation against a peer; "times" is how many times faster it is. Both give a number of what they made, the
/// same one.
template <class Operation, class Peer>
void ComparePictures(benchmark::State& state, Operation operation, Peer peer)
{
    long long mine = operation();
    long long theirs = peer();
    Compare(
        state, 1,
        [&]
        {
            mine = operation();
        },
        [&]
        {
            theirs = peer();
        });
    state.counters["times"] = 1 / state.counters["ratio"];
    if (mine == 0 || mine != theirs)
        state.SkipWithError("the two did not make the same");
}

/// A sum over some bytes of a picture: those that a wrong decoder would miss.
long long SumOf(const unsigned char* rows, std::size_t stride, std::size_t rowBytes, int height);
long long SumOf(const ImageView& image);

} // namespace vorn::bench

/// Registers a comparison of pictures.
#define VORN_BENCH_PICTURES(function, name)                                                                            \
    BENCHMARK(function)->Name(name)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond)
