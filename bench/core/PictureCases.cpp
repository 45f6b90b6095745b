#include "bench/core/PictureCases.h"
#include "files/core/ImagePixels.h"

#include <cmath>
#include <cstring>

namespace vorn::bench
{
namespace
{

unsigned Hashed(unsigned x, unsigned y)
{
    unsigned value = x * 374761393U + y * 668265263U;
    value = (value ^ value >> 13) * 1274126177U;
    return value ^ value >> 16;
}

BYTE Cloud(double x, double y, double phase)
{
    const double wave = std::sin(x / 211 + phase) + std::sin(y / 157 - phase) + std::sin((x + y) / 307 + 2 * phase) +
                        0.4 * std::sin(x / 23 * std::cos(y / 401));
    return static_cast<BYTE>(128 + 30 * wave);
}

Rgb NoisyColor(int x, int y)
{
    const unsigned noise = Hashed(static_cast<unsigned>(x), static_cast<unsigned>(y));
    const auto with = [&](BYTE value, int shift)
    {
        return static_cast<BYTE>(value + (noise >> shift) % 16);
    };
    return {with(Cloud(x, y, 0), 0), with(Cloud(x, y, 1.3), 8), with(Cloud(x, y, 2.9), 16)};
}

bool IsNearALine(double at, double spacing, double halfWidth)
{
    return std::abs(std::remainder(at, spacing)) < halfWidth;
}

/// A ring about a place of its own in some cells of the chart.
bool IsSymbol(int x, int y)
{
    const unsigned cell = Hashed(static_cast<unsigned>(x / 90), static_cast<unsigned>(y / 70));
    const double dx = x % 90 - 20.0 - cell % 50;
    const double dy = y % 70 - 20.0 - cell / 64 % 30;
    const double distance = std::sqrt(dx * dx + dy * dy);
    return cell % 3 == 0 && (distance < 2 || (distance > 6 && distance < 7.5));
}

// Water, land in bands of height, the coast, meridians and parallels that bend a little, symbols.
Rgb FlatColor(int x, int y)
{
    const double height = std::sin(x / 211.0 + 0.4) + std::sin(y / 157.0) + 0.6 * std::sin((x + 1.7 * y) / 97.0) +
                          0.3 * std::sin(x / 31.0) * std::cos(y / 43.0);
    if (IsSymbol(x, y))
        return {20, 20, 60};
    if (IsNearALine(x + y * (x - 800) / 9000.0, 210, 0.6) || IsNearALine(y + (x - 800) * (x - 800) / 40000.0, 160, 0.6))
        return {110, 110, 130};
    if (std::abs(height) < 0.02)
        return {40, 60, 90};
    if (height < 0)
        return {170, 205, 240};
    const auto band = static_cast<BYTE>(static_cast<int>(height * 3) * 12);
    return {static_cast<BYTE>(180 + band / 2), static_cast<BYTE>(225 - band), static_cast<BYTE>(160 - band)};
}

PackedImage MakeColors(Scene scene)
{
    PackedImage image = PackedImage::Make(kPictureWidth, kPictureHeight, 24);
    const ImageCanvas canvas = image.Canvas();
    for (int y = 0; y < kPictureHeight; ++y)
        for (int x = 0; x < kPictureWidth; ++x)
        {
            const Rgb color = scene == Scene::Noisy ? NoisyColor(x, y) : FlatColor(x, y);
            const unsigned char bytes[] = {color.blue, color.green, color.red};
            std::memcpy(canvas.Row(y) + x * 3, bytes, sizeof bytes);
        }
    return image;
}

// Six levels of red, seven of green, six of blue.
PackedImage MakeIndices(Scene scene)
{
    PackedImage image = PackedImage::Make(kPictureWidth, -kPictureHeight, 8);
    for (int i = 0; i < 252; ++i)
        image.SetTableColor(
            i, {static_cast<BYTE>(i / 42 * 51), static_cast<BYTE>(i / 6 % 7 * 42), static_cast<BYTE>(i % 6 * 51)});
    const ImageCanvas canvas = image.Canvas();
    for (int y = 0; y < kPictureHeight; ++y)
    {
        const unsigned char* from = ColorPicture(scene).View().Row(y);
        for (int x = 0; x < kPictureWidth; ++x, from += 3)
            canvas.Row(y)[x] = static_cast<unsigned char>(from[2] / 43 * 42 + from[1] / 37 * 6 + from[0] / 43);
    }
    return image;
}

} // namespace

const PackedImage& ColorPicture(Scene scene)
{
    static const PackedImage noisy = MakeColors(Scene::Noisy);
    static const PackedImage flat = MakeColors(Scene::Flat);
    return scene == Scene::Noisy ? noisy : flat;
}

const PackedImage& IndexedPicture(Scene scene)
{
    static const PackedImage noisy = MakeIndices(Scene::Noisy);
    static const PackedImage flat = MakeIndices(Scene::Flat);
    return scene == Scene::Noisy ? noisy : flat;
}

ImageBlock PixelBuffer(int width, int height, int bytesPerPixel)
{
    return ImageBlock(static_cast<std::size_t>(BytesPerScan(width, bytesPerPixel * 8)) *
                      static_cast<std::size_t>(height));
}

long long SumOf(const unsigned char* rows, std::size_t stride, std::size_t rowBytes, int height)
{
    long long sum = 0;
    for (int y = 0; y < height; y += 7)
        sum += rows[static_cast<std::size_t>(y) * stride + static_cast<std::size_t>(y * 31) % rowBytes];
    return sum;
}

long long SumOf(const ImageView& image)
{
    long long sum = 0;
    const std::size_t rowBytes = static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.depth) / 8;
    for (int y = 0; y < image.height; y += 7)
        sum += image.Row(y)[static_cast<std::size_t>(y * 31) % rowBytes];
    return sum;
}

} // namespace vorn::bench
