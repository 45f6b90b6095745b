#include "tests/oracle/PictureColors.h"
#include "files/core/ImagePixels.h"
#include "tests/oracle/OutsideTool.h"

#include <cstdint>
#include <sstream>
#include <stdexcept>

namespace vorn::test
{

std::string ColorsOf(const PackedImage& image)
{
    std::string colors;
    const ImageView view = image.View();
    for (int y = 0; y < view.height; ++y)
    {
        for (int x = 0; x < view.width; ++x)
        {
            const Rgb color = ColorAt(view, x, y);
            colors += {static_cast<char>(color.red), static_cast<char>(color.green), static_cast<char>(color.blue)};
        }
    }
    return colors;
}

std::string ColorsAndAlphaOf(const PackedImage& image)
{
    std::string colors;
    const ImageView view = image.View();
    for (int y = 0; y < view.height; ++y)
    {
        for (int x = 0; x < view.width; ++x)
        {
            const Rgb color = ColorAt(view, x, y);
            colors += {static_cast<char>(color.red), static_cast<char>(color.green), static_cast<char>(color.blue)};
            colors += view.depth == 32 ? static_cast<char>(view.Row(y)[x * 4 + 3]) : '\xFF';
        }
    }
    return colors;
}

std::string ColorsBy(const std::string& path, int frame)
{
    return RunTool({"convert", path + "[" + std::to_string(frame) + "]", "-background", "black", "-alpha", "off",
                    "-depth", "8", "rgb:-"});
}

namespace
{

int NumberAt(const std::string& bytes, std::size_t at, std::size_t size)
{
    int number = 0;
    for (std::size_t i = 0; i < size; ++i)
    {
        number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
    }
    return number;
}

/// Samples of one or two bytes, the high one first, as values of 8 bits.
std::string RoundedSamples(const std::string& samples, int most)
{
    const std::size_t size = most > 255 ? 2 : 1;
    std::string bytes;
    for (std::size_t at = 0; at + size <= samples.size(); at += size)
    {
        bytes += static_cast<char>((NumberAt(samples, at, size) * std::int64_t{255} + most / 2) / most);
    }
    return bytes;
}

/// Greys with their alpha as colours with it.
std::string WithThreeColors(const std::string& greys)
{
    std::string colors;
    for (std::size_t at = 0; at < greys.size(); at += 2)
    {
        colors.append(3, greys[at]);
        colors += greys[at + 1];
    }
    return colors;
}

} // namespace

std::string PngColorsByImageMagick(const std::string& path)
{
    return RoundedSamples(RunTool({"convert", path, "-depth", "16", "-endian", "MSB", "rgba:-"}), 65535);
}

std::string PngColorsByNetpbm(const std::string& path)
{
    const std::string file = RunTool({"pngtopam", "-quiet", "-alphapam", path});
    const std::size_t end = file.find("ENDHDR\n");
    const auto number = [&](const std::string& name)
    {
        return std::stoi(file.substr(file.find(name) + name.size()));
    };
    const std::string samples = RoundedSamples(file.substr(end + 7), number("\nMAXVAL "));
    return number("\nDEPTH ") == 2 ? WithThreeColors(samples) : samples;
}

std::string ColorsOfPixmap(const std::string& file)
{
    std::istringstream text(file);
    std::string kind;
    int width = 0;
    int height = 0;
    int most = 0;
    text >> kind >> width >> height >> most;
    text.get();
    if (most != 255 || (kind != "P5" && kind != "P6"))
    {
        throw std::runtime_error("no pixmap of 8 bits: " + file.substr(0, 20));
    }
    const std::string pixels = file.substr(static_cast<std::size_t>(text.tellg()));
    if (kind == "P6")
    {
        return pixels;
    }
    std::string colors;
    for (const char grey : pixels)
    {
        colors.append(3, grey);
    }
    return colors;
}

} // namespace vorn::test
