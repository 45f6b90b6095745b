#include "files/core/GifBlocks.h"

#include <algorithm>
#include <cstring>

namespace vorn
{
namespace
{
constexpr std::size_t kSignatureSize = 6;
constexpr std::size_t kScreenSize = 7;
constexpr std::size_t kDescriptorSize = 9;
constexpr std::size_t kControlSize = 4;
constexpr unsigned char kEnd = ';';
constexpr unsigned char kExtension = '!';
constexpr unsigned char kImage = ',';
constexpr unsigned char kControlLabel = 0xF9;
constexpr unsigned char kHasTable = 0x80;
constexpr unsigned char kInterlaced = 0x40;
constexpr unsigned char kHasTransparent = 0x01;

bool IsSignature(GifBytes bytes)
{
    return bytes.size() == kSignatureSize && (std::memcmp(bytes.data(), "GIF87a", kSignatureSize) == 0 ||
                                              std::memcmp(bytes.data(), "GIF89a", kSignatureSize) == 0);
}

std::size_t TableSize(unsigned char flags)
{
    return (flags & kHasTable) != 0 ? std::size_t{3} << ((flags & 7) + 1) : 0;
}

int WordAt(GifBytes bytes, std::size_t at)
{
    return bytes[at] | bytes[at + 1] << 8;
}
} // namespace

GifBlocks::GifBlocks(GifBytes file) : m_rest(file)
{
}

/// `size` bytes, or none with the file used up.
GifBytes GifBlocks::Take(std::size_t size)
{
    m_isCut = m_isCut || size > m_rest.size();
    const GifBytes taken = m_isCut ? GifBytes{} : m_rest.first(size);
    m_rest = m_isCut ? GifBytes{} : m_rest.subspan(size);
    return taken;
}

bool GifBlocks::ReadScreen()
{
    if (!IsSignature(Take(kSignatureSize)))
        return false;
    const GifBytes screen = Take(kScreenSize);
    if (!m_isCut)
        m_globalTable = Take(TableSize(screen[4]));
    return !m_isCut;
}

/// As many of its bytes as there are; empty at the last one.
GifBytes GifBlocks::TakeSubBlock()
{
    if (m_rest.empty())
        return {};
    const std::size_t size = std::min<std::size_t>(m_rest.front(), m_rest.size() - 1);
    const GifBytes block = m_rest.subspan(1, size);
    m_rest = m_rest.subspan(1 + size);
    return block;
}

void GifBlocks::SkipSubBlocks()
{
    while (!TakeSubBlock().empty())
    {
    }
}

void GifBlocks::ReadExtension()
{
    const GifBytes label = Take(1);
    const GifBytes block = TakeSubBlock();
    if (!m_isCut && label.front() == kControlLabel && block.size() >= kControlSize && (block[0] & kHasTransparent) != 0)
        m_transparent = block[3];
    if (!block.empty())
        SkipSubBlocks();
}

bool GifBlocks::ReadDescriptor(GifImage& image)
{
    const GifBytes descriptor = Take(kDescriptorSize);
    if (m_isCut)
        return false;
    const unsigned char flags = descriptor[8];
    image.width = WordAt(descriptor, 4);
    image.height = WordAt(descriptor, 6);
    image.isInterlaced = (flags & kInterlaced) != 0;
    image.table = (flags & kHasTable) != 0 ? Take(TableSize(flags)) : m_globalTable;
    const GifBytes codeSize = Take(1);
    if (m_isCut)
        return false;
    image.codeSize = codeSize.front();
    return true;
}

/// False when the walk is over: at the image sought, or at a cut one.
bool GifBlocks::ReadImage(int index, GifImage& image, int& found)
{
    if (!ReadDescriptor(image))
        return false;
    if (found++ != index)
    {
        SkipSubBlocks();
        return true;
    }
    for (GifBytes block = TakeSubBlock(); !block.empty(); block = TakeSubBlock())
        image.data.insert(image.data.end(), block.begin(), block.end());
    return false;
}

bool GifBlocks::Find(int index, GifImage& image)
{
    if (index < 0 || !ReadScreen())
        return false;
    int found = 0;
    while (!m_rest.empty())
    {
        const unsigned char kind = Take(1).front();
        if (kind == kEnd)
            return false;
        if (kind == kExtension)
            ReadExtension();
        else if (kind == kImage && !ReadImage(index, image, found))
            return !m_isCut;
    }
    return false;
}
} // namespace vorn
