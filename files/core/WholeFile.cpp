#include "files/core/WholeFile.h"

#include <cstdio>

namespace vorn
{
namespace
{
struct Close
{
    void operator()(std::FILE* file) const
    {
        std::fclose(file);
    }
};

long SizeOf(std::FILE* file)
{
    const long size = std::fseek(file, 0, SEEK_END) == 0 ? std::ftell(file) : -1;
    return std::fseek(file, 0, SEEK_SET) == 0 ? size : -1;
}
} // namespace

ImageBlock ReadWholeFile(const char* path)
{
    const std::unique_ptr<std::FILE, Close> file(path != nullptr ? std::fopen(path, "rb") : nullptr);
    const long size = file ? SizeOf(file.get()) : -1;
    if (size <= 0 || size > kMaxDecodedBytes)
        return {};
    ImageBlock block(static_cast<std::size_t>(size));
    const auto bytes = block.Bytes();
    if (bytes.empty() || std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size())
        return {};
    return block;
}
} // namespace vorn
