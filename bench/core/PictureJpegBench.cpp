#include "bench/core/PictureCases.h"
#include "files/core/JpegErrors.h"
#include "files/core/JpegRead.h"
#include "files/core/JpegWrite.h"

#include <array>
#include <cstdlib>

// JPEG files, against the library used directly.
namespace
{
using namespace vorn;
using namespace vorn::bench;

constexpr int kQuality = 85;

std::span<const unsigned char> BytesOf(const std::string& file)
{
    return {reinterpret_cast<const unsigned char*>(file.data()), file.size()};
}

long long WrittenByLibrary(const ImageView& image)
{
    jpeg_error_mgr errors{};
    jpeg_compress_struct codec{};
    codec.err = jpeg_std_error(&errors);
    jpeg_create_compress(&codec);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&codec, &bytes, &size);
    codec.image_width = static_cast<JDIMENSION>(image.width);
    codec.image_height = static_cast<JDIMENSION>(image.height);
    codec.input_components = 3;
    codec.in_color_space = JCS_EXT_BGR;
    jpeg_set_defaults(&codec);
    jpeg_set_quality(&codec, kQuality, TRUE);
    jpeg_start_compress(&codec, TRUE);
    while (codec.next_scanline < codec.image_height)
    {
        auto* row = const_cast<JSAMPROW>(image.Row(static_cast<int>(codec.next_scanline)));
        jpeg_write_scanlines(&codec, &row, 1);
    }
    jpeg_finish_compress(&codec);
    jpeg_destroy_compress(&codec);
    std::free(bytes);
    return static_cast<long long>(size);
}

std::string Ours(const ImageView& image)
{
    std::string file;
    EncodeJpeg(image,
               [&](const char* data, unsigned size)
               {
                   file.append(data, size);
               },
               {.quality = kQuality});
    return file;
}

long long ReadByLibrary(const std::string& file)
{
    jpeg_error_mgr errors{};
    jpeg_decompress_struct codec{};
    codec.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&codec);
    jpeg_mem_src(&codec, BytesOf(file).data(), static_cast<unsigned long>(file.size()));
    jpeg_read_header(&codec, TRUE);
    codec.out_color_space = JCS_EXT_BGR;
    jpeg_start_decompress(&codec);
    const std::size_t stride = std::size_t{codec.output_width} * 3;
    const auto height = static_cast<int>(codec.output_height);
    const ImageBlock pixels(stride * codec.output_height);
    while (codec.output_scanline < codec.output_height)
    {
        JSAMPROW row = pixels.Bytes().data() + codec.output_scanline * stride;
        jpeg_read_scanlines(&codec, &row, 1);
    }
    jpeg_finish_decompress(&codec);
    jpeg_destroy_decompress(&codec);
    return SumOf(pixels.Bytes().data(), stride, stride, height);
}

void Reading(benchmark::State& state, Scene scene)
{
    const std::string file = Ours(ColorPicture(scene).View());
    ComparePictures(
        state,
        [&]
        {
            return SumOf(DecodeJpeg(BytesOf(file)).View());
        },
        [&]
        {
            return ReadByLibrary(file);
        });
}

void ReadNoisy(benchmark::State& state)
{
    Reading(state, Scene::Noisy);
}
VORN_BENCH_PICTURES(ReadNoisy, "Pictures/JPEG of noise read to libjpeg-turbo");

void ReadFlat(benchmark::State& state)
{
    Reading(state, Scene::Flat);
}
VORN_BENCH_PICTURES(ReadFlat, "Pictures/JPEG of a chart read to libjpeg-turbo");

void Writing(benchmark::State& state, Scene scene)
{
    const ImageView image = ColorPicture(scene).View();
    ComparePictures(
        state,
        [&]
        {
            return static_cast<long long>(Ours(image).size());
        },
        [&]
        {
            return WrittenByLibrary(image);
        });
}

void WriteNoisy(benchmark::State& state)
{
    Writing(state, Scene::Noisy);
}
VORN_BENCH_PICTURES(WriteNoisy, "Pictures/JPEG of noise written to libjpeg-turbo");

void WriteFlat(benchmark::State& state)
{
    Writing(state, Scene::Flat);
}
VORN_BENCH_PICTURES(WriteFlat, "Pictures/JPEG of a chart written to libjpeg-turbo");

/// The search of a palette is the system's; here any answer does.
void WithPalette(benchmark::State& state, Scene scene)
{
    const std::string file = Ours(ColorPicture(scene).View());
    PaletteCells cells(32);
    const std::array<RGBQUAD, 256> table{};
    CellReducer reducer(table, cells,
                        [](BYTE red, BYTE green, BYTE blue)
                        {
                            return static_cast<BYTE>(red / 52 * 50 + green / 26 * 5 + blue / 52);
                        });
    ComparePictures(
        state,
        [&]
        {
            return DecodeJpeg(BytesOf(file), {.reducer = &reducer}).IsEmpty() ? 0LL : 1LL;
        },
        [&]
        {
            return DecodeJpeg(BytesOf(file)).IsEmpty() ? 0LL : 1LL;
        });
}

void PaletteNoisy(benchmark::State& state)
{
    WithPalette(state, Scene::Noisy);
}
VORN_BENCH_PICTURES(PaletteNoisy, "Pictures/JPEG of noise with a palette to without");

void PaletteFlat(benchmark::State& state)
{
    WithPalette(state, Scene::Flat);
}
VORN_BENCH_PICTURES(PaletteFlat, "Pictures/JPEG of a chart with a palette to without");
} // namespace
