#pragma once

/// @file
/// A device-independent bitmap in one block: header, colour table, rows.
#include "files/core/ImageView.h"

#include <cstdlib>
#include <memory>

namespace vorn
{
/// Zeroed bytes with an owner. Empty when there was no memory.
class ImageBlock
{
public:
    ImageBlock() = default;
    /// `slack` bytes behind the block may be read and written too.
    explicit ImageBlock(std::size_t size, std::size_t slack = 0);
    /// Bytes that hold anything: whoever makes it writes every one.
    static ImageBlock Unfilled(std::size_t size);

    std::span<unsigned char> Bytes() const
    {
        return {m_bytes.get(), m_size};
    }
    /// Gives the bytes up to the caller, who frees them with std::free.
    unsigned char* Release();

private:
    struct Free
    {
        void operator()(unsigned char* bytes) const
        {
            std::free(bytes);
        }
    };

    std::unique_ptr<unsigned char[], Free> m_bytes;
    std::size_t m_size = 0;
};

/// A bitmap that owns its block, or none. Moves; is copied by Clone only.
class PackedImage
{
public:
    /// No image.
    PackedImage() = default;
    /// A block with a header that has been looked at, and where in it the rows begin.
    PackedImage(ImageBlock block, std::size_t bitsOffset, int usage = DIB_RGB_COLORS);

    /// An image of zeros; a negative height puts the first row at the top. The table of palette indices
    /// (DIB_PAL_COLORS) counts 0, 1, 2, ... Empty for a width below 1, a depth that is none, a height without a
    /// positive form, pixels of more than 1 GiB, or without memory.
    static PackedImage Make(int width, int height, int depth, int usage = DIB_RGB_COLORS, std::size_t slack = 0);

    /// The same with masks for the channels, which stand behind the header; 16 or 32 bits.
    static PackedImage MakeMasked(int width, int height, int depth, const ColorMasks& masks);

    /// Header and table of such an image, without its rows: those are to be elsewhere, and nothing here may look for
    /// them.
    static PackedImage MakeHead(int width, int height, int depth, int usage);

    /// An image of 24 or 32 bits as by Make, but with rows that hold anything: whoever makes it writes every byte.
    static PackedImage MakeUnfilled(int width, int height, int depth);

    bool IsEmpty() const
    {
        return m_block.Bytes().empty();
    }
    /// All bytes, to their owner's care: who changes the header changes what the rows mean.
    std::span<unsigned char> Block() const
    {
        return m_block.Bytes();
    }
    std::size_t BitsOffset() const
    {
        return m_bitsOffset;
    }
    int Usage() const
    {
        return m_usage;
    }
    /// Of an image that is not empty.
    BITMAPINFOHEADER Header() const
    {
        return HeaderOf(m_block.Bytes());
    }
    /// A colour of the table; black where there is no such entry.
    Rgb TableColor(int index) const;
    /// Sets an entry that the table has; nothing else.
    void SetTableColor(int index, Rgb color);

    /// The rows; without any for an empty image.
    ImageView View() const;
    ImageCanvas Canvas();

    /// The same bytes in a block of its own; empty without memory.
    PackedImage Clone() const;

    /// Gives up the block. The image is empty then.
    ImageBlock TakeBlock();

private:
    ImageFormat Format() const;

    ImageBlock m_block;
    std::size_t m_bitsOffset = 0;
    int m_usage = DIB_RGB_COLORS;
};

/// Whether a block, which may be empty, has the header that a new image of this size and the block's depth would have,
/// and its rows right behind it. A negative height: the first row at the top.
bool IsAsMade(std::span<const unsigned char> block, std::size_t bitsOffset, int width, int height);
} // namespace vorn
