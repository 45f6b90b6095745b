#include "files/DIB.h"
#include "files/DibInfo.h"
#include "files/core/BmpFile.h"
#include "files/core/PackedImage.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace
{
/// The bytes of global memory, while it is locked.
class LockedMemory
{
public:
    explicit LockedMemory(HGLOBAL memory) : m_memory(memory), m_bytes(memory ? GlobalLock(memory) : nullptr)
    {
    }
    ~LockedMemory()
    {
        if (m_bytes)
            GlobalUnlock(m_memory);
    }
    LockedMemory(const LockedMemory&) = delete;
    LockedMemory& operator=(const LockedMemory&) = delete;

    std::span<const unsigned char> Bytes() const
    {
        if (!m_bytes)
            return {};
        return {static_cast<const unsigned char*>(m_bytes), GlobalSize(m_memory)};
    }

private:
    HGLOBAL m_memory;
    void* m_bytes;
};

vorn::PackedImage ImageOf(std::span<const unsigned char> packed)
{
    vorn::ImageBlock block(packed.size());
    std::ranges::copy(packed.first(block.Bytes().size()), block.Bytes().begin());
    return vorn::ImageOfBmpBlock(std::move(block), 0);
}
} // namespace

void DIB::FreeBlock::operator()(BITMAPINFO* block) const
{
    std::free(block);
}

DIB::DIB() = default;

DIB::DIB(const DIB& other) : Image(other), m_imageNumber(other.m_imageNumber)
{
    Adopt(other.Copy());
    m_usage = other.m_usage;
}

DIB& DIB::operator=(const DIB& other)
{
    if (this == &other)
        return *this;
    Adopt(other.Copy());
    m_usage = other.m_usage;
    m_imageNumber = other.m_imageNumber;
    return *this;
}

DIB::~DIB()
{
    Free();
}

DIB::DIB(HBITMAP packedDib)
{
    const LockedMemory memory(packedDib);
    Adopt(ImageOf(memory.Bytes()));
}

DIB::DIB(int width, int height, int depth, int usage, int wantSection, HDC dc, const unsigned char* pixels)
    : m_usage(usage)
{
    if (wantSection)
    {
        if (Adopt(vorn::PackedImage::MakeHead(width, height, depth, usage)) && !MakeSection(dc, pixels))
            Free();
        return;
    }
    vorn::PackedImage image = vorn::PackedImage::Make(width, height, depth, usage);
    if (!image.IsEmpty() && pixels)
        std::memcpy(image.Block().data() + image.BitsOffset(), pixels, image.Block().size() - image.BitsOffset());
    Adopt(std::move(image));
}

std::span<unsigned char> DIB::Block() const
{
    return {reinterpret_cast<unsigned char*>(m_info.get()), m_blockSize};
}

std::size_t DIB::TableEnd() const
{
    return m_section ? m_blockSize : static_cast<std::size_t>(m_bits - Block().data());
}

// What GDI still has to draw into a section is drawn first.
vorn::ImageCanvas DIB::Canvas() const
{
    if (!m_info)
        return {};
    if (m_section)
        GdiFlush();
    return {vorn::FormatOf(Block(), TableEnd(), m_usage), m_bits};
}

vorn::ImageView DIB::View() const
{
    return vorn::ViewOf(Canvas());
}

vorn::PackedImage DIB::Copy() const
{
    if (!m_info)
        return {};
    const vorn::ImageView view = View();
    const std::size_t sectionSize =
        m_section ? static_cast<std::size_t>(view.stride) * static_cast<std::size_t>(view.height) : 0;
    vorn::ImageBlock block(m_blockSize + sectionSize);
    if (block.Bytes().empty())
        return {};
    std::memcpy(block.Bytes().data(), m_info.get(), m_blockSize);
    std::memcpy(block.Bytes().data() + m_blockSize, m_bits, sectionSize);
    return vorn::PackedImage(std::move(block), TableEnd(), m_usage);
}

void DIB::Free()
{
    if (m_section)
        DeleteObject(m_section);
    m_section = nullptr;
    m_info.reset();
    m_bits = nullptr;
    m_blockSize = 0;
    m_bytesPerScan = m_depth = m_pixelsPerByte = 0;
}

bool DIB::Adopt(vorn::PackedImage image)
{
    Free();
    if (image.IsEmpty())
        return false;
    const vorn::ImageView view = image.View();
    m_usage = image.Usage();
    m_depth = view.depth;
    m_bytesPerScan = view.stride;
    m_pixelsPerByte = vorn::PixelsPerByte(view.depth);
    m_blockSize = static_cast<unsigned long>(image.Block().size());
    const std::size_t bitsOffset = image.BitsOffset();
    unsigned char* block = image.TakeBlock().Release();
    m_bits = block + bitsOffset;
    m_info.reset(reinterpret_cast<BITMAPINFO*>(block));
    return true;
}

bool DIB::MakeSection(HDC dc, const unsigned char* pixels)
{
    const vorn::DibInfo info(Block(), TableEnd(), m_usage, 0);
    void* bits = nullptr;
    m_section = CreateDIBSection(dc, info.Get(), static_cast<UINT>(m_usage), &bits, nullptr, 0);
    if (!m_section || !bits)
        return false;
    m_bits = static_cast<unsigned char*>(bits);
    const std::size_t size = static_cast<std::size_t>(m_bytesPerScan) * static_cast<std::size_t>(Height());
    if (pixels)
        std::memcpy(m_bits, pixels, size);
    else
        std::memset(m_bits, 0, size);
    return true;
}
