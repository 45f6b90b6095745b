#pragma once

/// @file
/// The blocks of a GIF file, up to one of its images.
#include <cstddef>
#include <span>
#include <vector>

namespace vorn
{
using GifBytes = std::span<const unsigned char>;

/// One image of a file, before its data are decoded.
struct GifImage
{
    int width = 0;
    int height = 0;
    bool isInterlaced = false;
    GifBytes table; ///< Red, green, blue of each entry: the image's own, else the file's; empty when there is none.
    int codeSize = 0;
    std::vector<unsigned char> data; ///< All of its sub-blocks in one.
};

/// Walks over a file. Bytes that begin no block are passed over.
class GifBlocks
{
public:
    explicit GifBlocks(GifBytes file);

    /// Finds an image by its index; false when the file has none, or its head is cut off.
    bool Find(int index, GifImage& image);

    /// The last transparent index on the way there, or -1.
    int Transparent() const
    {
        return m_transparent;
    }

private:
    GifBytes Take(std::size_t size);
    bool ReadScreen();
    void ReadExtension();
    GifBytes TakeSubBlock();
    void SkipSubBlocks();
    bool ReadDescriptor(GifImage& image);
    bool ReadImage(int index, GifImage& image, int& found);

    GifBytes m_rest;
    GifBytes m_globalTable;
    int m_transparent = -1;
    bool m_isCut = false; ///< More was asked for than the file has.
};
} // namespace vorn
