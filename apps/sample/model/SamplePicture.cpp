#include "apps/sample/model/SamplePicture.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{

constexpr int kWidth = 720;
constexpr int kHeight = 480;
constexpr int kBands = 16;
constexpr double kEdge = 18; // pixels over which the picture fades out

/// The height of the land, about 0 to 1.
double HeightAt(double x, double y)
{
    const double broad = std::sin(x / 97 + 0.6) * std::cos(y / 71 - 0.4);
    const double ridge = std::exp(-std::pow((y - 250 - 60 * std::sin(x / 120)) / 70, 2));
    const double fine = 0.05 * std::sin(x / 13 + y / 23) * std::cos(y / 17 - x / 31);
    return std::clamp(0.38 + 0.22 * broad + 0.42 * ridge + fine, 0.0, 1.0);
}

/// 1 on level ground, more towards the light.
double LightAt(double x, double y)
{
    const double east = HeightAt(x + 1, y) - HeightAt(x - 1, y);
    const double south = HeightAt(x, y + 1) - HeightAt(x, y - 1);
    return std::clamp(1 + 14 * (east + south), 0.55, 1.35);
}

bool IsContour(double x, double y)
{
    const auto band = [](double height)
    {
        return static_cast<int>(height * kBands);
    };
    const int here = band(HeightAt(x, y));
    return here != band(HeightAt(x + 1, y)) || here != band(HeightAt(x, y + 1));
}

BYTE AlphaAt(double x, double y)
{
    const double across = std::hypot((x - kWidth / 2.0) / (kWidth / 2.0), (y - kHeight / 2.0) / (kHeight / 2.0));
    const double inside = (1 - across) * kHeight / 2;
    return static_cast<BYTE>(std::clamp(inside / kEdge, 0.0, 1.0) * 255);
}

BYTE Lit(DWORD channel, double light)
{
    return static_cast<BYTE>(std::clamp(static_cast<double>(channel & 0xFF) * light, 0.0, 255.0));
}

} // namespace

DIB SamplePicture()
{
    std::vector<long> elevations;
    for (long i = 0; i < kBands; ++i)
        elevations.push_back(i * 250);
    ColorMap colors;
    colors.GenColorMap(kBands, elevations.data());

    DIB picture(kWidth, -kHeight, 32, 0, 0, nullptr, nullptr);
    BYTE* to = picture.Bits();
    for (int y = 0; to != nullptr && y < kHeight; ++y)
    {
        for (int x = 0; x < kWidth; ++x, to += 4)
        {
            const int band = std::min(static_cast<int>(HeightAt(x, y) * kBands), kBands - 1);
            const double light = LightAt(x, y) * (IsContour(x, y) ? 0.72 : 1.0);
            const DWORD color = colors.Color(band);
            to[0] = Lit(color, light);
            to[1] = Lit(color >> 8, light);
            to[2] = Lit(color >> 16, light);
            to[3] = AlphaAt(x, y);
        }
    }
    return picture;
}
