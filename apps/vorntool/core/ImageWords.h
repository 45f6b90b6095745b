#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace vorn::tool
{

/// What a picture file is, by its first bytes; "unknown" for none that the library reads.
std::string_view ImageFormatName(std::span<const unsigned char> head);

/// The kinds of picture files that can be written.
enum class ImageKind
{
    Bmp,
    Png,
    Jpeg
};

/// By the ending of a file's name, in any case: .bmp, .png, .jpg, .jpeg.
std::optional<ImageKind> ImageKindOf(std::string_view name);

/// The size of a picture in pixels.
struct ImageSize
{
    int width;
    int height;

    bool operator==(const ImageSize&) const = default;
};

inline constexpr int kMostImageSide = 65500;

/// "400x300"; "400x" and "x300" keep the proportions of a picture of size @p of, at least 1 pixel; "50%" is a part of
/// both sides. Nothing for other texts and for sides that are not from 1 to kMostImageSide.
std::optional<ImageSize> ParseImageSize(std::string_view text, ImageSize of);

/// "RRGGBB" in hexadecimal digits, with or without "#", as 0x00BBGGRR.
std::optional<std::uint32_t> ParseImageColor(std::string_view text);

} // namespace vorn::tool
