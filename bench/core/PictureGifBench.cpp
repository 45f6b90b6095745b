#ifdef VORN_HAVE_GIFLIB
#include "bench/core/PictureCases.h"
#include "files/core/GifFile.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include <gif_lib.h>

// GIF pictures, against giflib.
namespace
{
using namespace vorn;
using namespace vorn::bench;

constexpr int kPassFirst[] = {0, 4, 2, 1};
constexpr int kPassStep[] = {8, 8, 4, 2};

int AppendTo(GifFileType* file, const GifByteType* bytes, int size)
{
    static_cast<std::string*>(file->UserData)->append(reinterpret_cast<const char*>(bytes), static_cast<size_t>(size));
    return size;
}

void Need(bool condition)
{
    if (!condition)
        throw std::runtime_error("giflib refuses");
}

void PutRows(GifFileType* gif, const ImageView& image, int first, int step)
{
    for (int y = first; y < image.height; y += step)
        Need(EGifPutLine(gif, const_cast<GifPixelType*>(image.Row(y)), image.width) == GIF_OK);
}

std::string Encoded(Scene scene, bool isInterlaced)
{
    std::string bytes;
    int error = 0;
    const ImageView image = IndexedPicture(scene).View();
    GifFileType* gif = EGifOpen(&bytes, AppendTo, &error);
    Need(gif != nullptr);
    GifColorType colors[256]{};
    for (std::size_t i = 0; i < 256; ++i)
        colors[i] = {image.table[i].rgbRed, image.table[i].rgbGreen, image.table[i].rgbBlue};
    ColorMapObject* map = GifMakeMapObject(256, colors);
    Need(EGifPutScreenDesc(gif, image.width, image.height, 8, 0, map) == GIF_OK);
    Need(EGifPutImageDesc(gif, 0, 0, image.width, image.height, isInterlaced, nullptr) == GIF_OK);
    for (int pass = 0; isInterlaced && pass < 4; ++pass)
        PutRows(gif, image, kPassFirst[pass], kPassStep[pass]);
    if (!isInterlaced)
        PutRows(gif, image, 0, 1);
    EGifCloseFile(gif, &error);
    GifFreeMapObject(map);
    return bytes;
}

struct Source
{
    const std::string& bytes;
    std::size_t at = 0;
};

int TakeFrom(GifFileType* file, GifByteType* to, int size)
{
    auto& source = *static_cast<Source*>(file->UserData);
    const std::size_t count = std::min(static_cast<std::size_t>(size), source.bytes.size() - source.at);
    std::memcpy(to, source.bytes.data() + source.at, count);
    source.at += count;
    return static_cast<int>(count);
}

long long ByGiflib(const std::string& bytes)
{
    Source source{bytes};
    int error = 0;
    GifFileType* gif = DGifOpen(&source, TakeFrom, &error);
    Need(gif != nullptr && DGifSlurp(gif) == GIF_OK);
    const long long sum = SumOf(gif->SavedImages[0].RasterBits, static_cast<std::size_t>(gif->SWidth),
                                static_cast<std::size_t>(gif->SWidth), gif->SHeight);
    DGifCloseFile(gif, &error);
    return sum;
}

long long Ours(const std::string& bytes)
{
    int transparent = 0;
    return SumOf(
        DecodeGif({reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()}, 0, transparent).View());
}

void AgainstGiflib(benchmark::State& state, Scene scene)
{
    const std::string file = Encoded(scene, false);
    ComparePictures(
        state,
        [&]
        {
            return Ours(file);
        },
        [&]
        {
            return ByGiflib(file);
        });
}

void Noisy(benchmark::State& state)
{
    AgainstGiflib(state, Scene::Noisy);
}
VORN_BENCH_PICTURES(Noisy, "Pictures/GIF of noise to giflib");

void Flat(benchmark::State& state)
{
    AgainstGiflib(state, Scene::Flat);
}
VORN_BENCH_PICTURES(Flat, "Pictures/GIF of a chart to giflib");

void AgainstPlain(benchmark::State& state, Scene scene)
{
    const std::string plain = Encoded(scene, false);
    const std::string interlaced = Encoded(scene, true);
    ComparePictures(
        state,
        [&]
        {
            return Ours(interlaced);
        },
        [&]
        {
            return Ours(plain);
        });
}

void InterlacedNoisy(benchmark::State& state)
{
    AgainstPlain(state, Scene::Noisy);
}
VORN_BENCH_PICTURES(InterlacedNoisy, "Pictures/interlaced GIF of noise to plain");

void InterlacedFlat(benchmark::State& state)
{
    AgainstPlain(state, Scene::Flat);
}
VORN_BENCH_PICTURES(InterlacedFlat, "Pictures/interlaced GIF of a chart to plain");
} // namespace
#endif
