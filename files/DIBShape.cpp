#include "files/DIB.h"
#include "files/core/ImageConvert.h"
#include "files/core/ImagePixels.h"
#include "files/core/ImageResize.h"
#include "files/core/ImageRotate.h"
#include "files/core/NoThrow.h"
#include "files/core/PackedImage.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace
{
/// The image with the palette indices that its pixels were made for.
vorn::PackedImage WithIndices(const vorn::PackedImage& image, std::span<const unsigned char> indices)
{
    const vorn::ImageView from = image.View();
    const int height = from.isTopDown ? -from.height : from.height;
    vorn::PackedImage made = vorn::PackedImage::Make(from.width, height, from.depth, DIB_PAL_COLORS);
    if (made.IsEmpty())
        return made;
    const std::span<unsigned char> block = made.Block();
    const std::size_t room = made.BitsOffset() - vorn::kBitmapHeaderSize;
    std::ranges::copy(indices.first(std::min(room, indices.size())), block.begin() + vorn::kBitmapHeaderSize);
    std::ranges::copy(image.Block().subspan(image.BitsOffset()), block.begin() + std::ptrdiff_t(made.BitsOffset()));
    return made;
}
} // namespace

bool DIB::HQResize(int width, int height, DIB* source)
{
    return source && vorn::NoThrow(false,
                                   [&]
                                   {
                                       if (source != this && !m_section && height >= 1 &&
                                           vorn::IsAsMade(Block(), TableEnd(), width, -height) &&
                                           m_usage == DIB_RGB_COLORS && vorn::PutResized(Canvas(), source->View()))
                                           return true; // fresh memory costs as much as many pixels
                                       vorn::PackedImage image = vorn::BoxResize(source->View(), width, height);
                                       return !image.IsEmpty() && Adopt(std::move(image));
                                   });
}

DIB* DIB::Rotate(double angle, int flag, COLORREF background) const
{
    return vorn::NoThrow(static_cast<DIB*>(nullptr),
                         [&]
                         {
                             const vorn::Rgb color{GetRValue(background), GetGValue(background), GetBValue(background)};
                             vorn::PackedImage image = vorn::Rotate(View(), angle, flag != 0, color);
                             if (!image.IsEmpty() && m_usage == DIB_PAL_COLORS && m_depth <= 8)
                                 image = WithIndices(image, Block().subspan(vorn::kBitmapHeaderSize,
                                                                            TableEnd() - vorn::kBitmapHeaderSize));
                             auto turned = std::make_unique<DIB>();
                             return turned->Adopt(std::move(image)) ? turned.release() : nullptr;
                         });
}

Image* DIB::BuildMask(int r, int g, int b)
{
    return vorn::NoThrow(
        static_cast<Image*>(nullptr),
        [&]() -> Image*
        {
            auto mask = std::make_unique<DIB>();
            return mask->Adopt(vorn::MaskOf(View(), vorn::ColorIn({r, g, b}))) ? mask.release() : nullptr;
        });
}
