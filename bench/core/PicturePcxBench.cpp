#include "bench/core/PictureCases.h"
#include "files/core/ImageConvert.h"
#include "files/core/PcxFile.h"

// PCX pictures against the loop that everybody would write, and pictures in 24 bits.
namespace
{
using namespace vorn;
using namespace vorn::bench;

constexpr std::size_t kHeaderSize = 128;
constexpr std::size_t kPixels = std::size_t{kPictureWidth} * kPictureHeight;

void AppendWord(std::string& bytes, int value)
{
    bytes += {static_cast<char>(value), static_cast<char>(value >> 8)};
}

void AppendRow(std::string& bytes, const unsigned char* row)
{
    for (int x = 0; x < kPictureWidth;)
    {
        int count = 1;
        while (x + count < kPictureWidth && count < 63 && row[x + count] == row[x])
            ++count;
        if (count > 1 || row[x] >= 0xC0)
            bytes += static_cast<char>(0xC0 | count);
        bytes += static_cast<char>(row[x]);
        x += count;
    }
}

std::string Encoded(Scene scene)
{
    std::string bytes{10, 5, 1, 8};
    for (const int edge : {0, 0, kPictureWidth - 1, kPictureHeight - 1, 72, 72})
        AppendWord(bytes, edge);
    bytes.resize(65);
    bytes += '\1';
    AppendWord(bytes, kPictureWidth);
    bytes.resize(kHeaderSize);
    for (int y = 0; y < kPictureHeight; ++y)
        AppendRow(bytes, IndexedPicture(scene).View().Row(y));
    return bytes + '\x0C' + std::string(768, '\x33');
}

long long ByPlainLoop(const std::string& file)
{
    const ImageBlock pixels(kPixels);
    const auto* from = reinterpret_cast<const unsigned char*>(file.data()) + kHeaderSize;
    const auto* end = reinterpret_cast<const unsigned char*>(file.data()) + file.size();
    unsigned char* to = pixels.Bytes().data();
    unsigned char* last = to + kPixels;
    while (from < end && to < last)
    {
        int count = 1;
        unsigned char value = *from++;
        if (value >= 0xC0 && from < end)
        {
            count = value & 0x3F;
            value = *from++;
        }
        while (count-- > 0 && to < last)
            *to++ = value;
    }
    return SumOf(pixels.Bytes().data(), kPictureWidth, kPictureWidth, kPictureHeight);
}

void AgainstLoop(benchmark::State& state, Scene scene)
{
    const std::string file = Encoded(scene);
    ComparePictures(
        state,
        [&]
        {
            return SumOf(DecodePcx({reinterpret_cast<const unsigned char*>(file.data()), file.size()}).View());
        },
        [&]
        {
            return ByPlainLoop(file);
        });
}

void Noisy(benchmark::State& state)
{
    AgainstLoop(state, Scene::Noisy);
}
VORN_BENCH_PICTURES(Noisy, "Pictures/PCX of noise to a plain loop");

void Flat(benchmark::State& state)
{
    AgainstLoop(state, Scene::Flat);
}
VORN_BENCH_PICTURES(Flat, "Pictures/PCX of a chart to a plain loop");

void TrueColor(benchmark::State& state)
{
    const ImageView source = IndexedPicture(Scene::Noisy).View();
    PackedImage target = To24Bit(source);
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(PutAs24Bit(target.Canvas(), source));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(TrueColor)->Name("Pictures/1.9 million pixels in 24 bits")->Unit(benchmark::kMillisecond);

/// With fresh memory from the system each time.
void NewTrueColor(benchmark::State& state)
{
    const ImageView source = IndexedPicture(Scene::Noisy).View();
    for (auto _ : state)
        benchmark::DoNotOptimize(To24Bit(source).Block().data());
}
BENCHMARK(NewTrueColor)->Name("Pictures/1.9 million pixels in a new image of 24 bits")->Unit(benchmark::kMillisecond);
} // namespace
