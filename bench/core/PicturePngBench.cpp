#include "bench/core/PictureCases.h"
#include "files/core/PngRead.h"
#include "files/core/PngWrite.h"

#include <algorithm>
#include <cstring>

#include <png.h>

// PNG files, against the library used directly.
namespace
{
using namespace vorn;
using namespace vorn::bench;

std::span<const unsigned char> BytesOf(const std::string& file)
{
    return {reinterpret_cast<const unsigned char*>(file.data()), file.size()};
}

void Append(png_structp png, png_bytep from, std::size_t size)
{
    static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(from), size);
}

void FlushNothing(png_structp)
{
}

/// With the library's defaults.
std::string ByLibpng(const ImageView& image)
{
    std::string file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(png, &file, Append, FlushNothing);
    png_set_IHDR(png, info, static_cast<png_uint_32>(image.width), static_cast<png_uint_32>(image.height), 8,
                 image.depth == 8 ? PNG_COLOR_TYPE_PALETTE : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_color palette[256]{};
    for (std::size_t i = 0; i < image.table.size(); ++i)
        palette[i] = {image.table[i].rgbRed, image.table[i].rgbGreen, image.table[i].rgbBlue};
    if (image.depth == 8)
        png_set_PLTE(png, info, palette, 256);
    png_write_info(png, info);
    if (image.depth == 24)
        png_set_bgr(png);
    for (int y = 0; y < image.height; ++y)
        png_write_row(png, image.Row(y));
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
    return file;
}

std::string Ours(const ImageView& image)
{
    std::string file;
    EncodePng(image,
              [&](const char* data, unsigned size)
              {
                  file.append(data, size);
              });
    return file;
}

void Take(png_structp png, png_bytep to, std::size_t size)
{
    auto* rest = static_cast<std::span<const unsigned char>*>(png_get_io_ptr(png));
    if (size > rest->size())
        png_error(png, "cut off");
    std::memcpy(to, rest->data(), size);
    *rest = rest->subspan(size);
}

long long ReadByLibpng(const std::string& file)
{
    auto rest = BytesOf(file);
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_read_fn(png, &rest, Take);
    png_read_info(png, info);
    png_set_bgr(png);
    png_read_update_info(png, info);
    const std::size_t stride = png_get_rowbytes(png, info);
    const auto height = static_cast<int>(png_get_image_height(png, info));
    const ImageBlock pixels(stride * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y)
        png_read_row(png, pixels.Bytes().data() + static_cast<std::size_t>(y) * stride, nullptr);
    png_read_end(png, nullptr);
    png_destroy_read_struct(&png, &info, nullptr);
    return SumOf(pixels.Bytes().data(), stride, stride, height);
}

void Reading(benchmark::State& state, Scene scene)
{
    const std::string file = ByLibpng(ColorPicture(scene).View());
    ComparePictures(
        state,
        [&]
        {
            return SumOf(DecodePng(BytesOf(file)).View());
        },
        [&]
        {
            return ReadByLibpng(file);
        });
}

void ReadNoisy(benchmark::State& state)
{
    Reading(state, Scene::Noisy);
}
VORN_BENCH_PICTURES(ReadNoisy, "Pictures/PNG of noise read to libpng");

void ReadFlat(benchmark::State& state)
{
    Reading(state, Scene::Flat);
}
VORN_BENCH_PICTURES(ReadFlat, "Pictures/PNG of a chart read to libpng");

/// "size" is ours to the library's.
void Writing(benchmark::State& state, const ImageView& image)
{
    std::size_t size = 0;
    std::size_t librarySize = 0;
    ComparePictures(
        state,
        [&]
        {
            size = Ours(image).size();
            return 1LL;
        },
        [&]
        {
            librarySize = ByLibpng(image).size();
            return 1LL;
        });
    state.counters["size"] = static_cast<double>(size) / static_cast<double>(librarySize);
}

void WriteNoisy(benchmark::State& state)
{
    Writing(state, ColorPicture(Scene::Noisy).View());
}
VORN_BENCH_PICTURES(WriteNoisy, "Pictures/PNG of noise written to libpng's defaults");

void WriteFlat(benchmark::State& state)
{
    Writing(state, ColorPicture(Scene::Flat).View());
}
VORN_BENCH_PICTURES(WriteFlat, "Pictures/PNG of a chart written to libpng's defaults");

void WriteIndexedNoisy(benchmark::State& state)
{
    Writing(state, IndexedPicture(Scene::Noisy).View());
}
VORN_BENCH_PICTURES(WriteIndexedNoisy, "Pictures/PNG of indexed noise written to libpng's defaults");

void WriteIndexedFlat(benchmark::State& state)
{
    Writing(state, IndexedPicture(Scene::Flat).View());
}
VORN_BENCH_PICTURES(WriteIndexedFlat, "Pictures/PNG of an indexed chart written to libpng's defaults");
} // namespace
