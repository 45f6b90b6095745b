#include "files/core/ImageFile.h"
#include "files/core/BmpFile.h"

#include <array>
#include <utility>

namespace vorn
{
namespace
{
OwnFile Open(const char* path, const char* mode)
{
    return OwnFile(path ? std::fopen(path, mode) : nullptr);
}

bool WriteBmp(FILE* file, const BITMAPINFOHEADER& header, const ImageView& view)
{
    const auto head = BmpHead(header);
    const std::size_t pixels = static_cast<std::size_t>(view.stride) * static_cast<std::size_t>(view.height);
    return std::fwrite(head.data(), 1, head.size(), file) == head.size() &&
           std::fwrite(view.bits, 1, pixels, file) == pixels;
}
} // namespace

OwnFile OpenToRead(const char* path)
{
    return Open(path, "rb");
}

long SizeOf(FILE* file)
{
    if (std::fseek(file, 0, SEEK_END) != 0)
        return -1;
    const long size = std::ftell(file);
    return std::fseek(file, 0, SEEK_SET) == 0 ? size : -1;
}

bool ReadWhole(FILE* file, std::span<unsigned char> bytes)
{
    return std::fread(bytes.data(), 1, bytes.size(), file) == bytes.size();
}

ImageBlock ReadImageFile(const char* path)
{
    const OwnFile file = OpenToRead(path);
    const long size = file ? SizeOf(file.get()) : -1;
    ImageBlock block(size > 0 ? static_cast<std::size_t>(size) : 0);
    return file && ReadWhole(file.get(), block.Bytes()) ? std::move(block) : ImageBlock();
}

PackedImage ReadBmpFile(const char* path)
{
    const OwnFile file = OpenToRead(path);
    const long size = file ? SizeOf(file.get()) : -1;
    std::array<unsigned char, kBmpFileHeaderSize> header{};
    if (size < 0 || !ReadWhole(file.get(), header))
        return {};
    const auto facts = ReadBmpFileHeader(header, static_cast<std::uint64_t>(size));
    ImageBlock block(facts ? facts->blockSize : 0);
    if (!facts || block.Bytes().empty() || !ReadWhole(file.get(), block.Bytes()))
        return {};
    return ImageOfBmpBlock(std::move(block), facts->bitsOffset);
}

bool WriteToFile(const char* path, const std::function<bool(FILE*)>& write)
{
    OwnFile file = Open(path, "wb");
    if (!file)
        return false;
    const bool isWritten = write(file.get());
    const bool isClosed = std::fclose(file.release()) == 0;
    if (!isWritten || !isClosed)
        std::remove(path);
    return isWritten && isClosed;
}

bool WriteBmpFile(const char* path, const BITMAPINFOHEADER& header, const ImageView& view)
{
    if (!CanWriteBmp(view))
        return false;
    return WriteToFile(path,
                       [&](FILE* file)
                       {
                           return WriteBmp(file, header, view);
                       });
}
} // namespace vorn
