#include "files/core/ImageKind.h"

#include <algorithm>
#include <string_view>

namespace vorn
{
namespace
{
struct Signature
{
    std::string_view bytes;
    ImageKind kind;
};

constexpr Signature kSignatures[] = {{"BM", ImageKind::Bmp},      {"\x0A", ImageKind::Pcx},
                                     {"GIF87a", ImageKind::Gif},  {"GIF89a", ImageKind::Gif},
                                     {"\x89PNG", ImageKind::Png}, {"\xFF\xD8", ImageKind::Jpeg}};
} // namespace

ImageKind KindOfImage(std::span<const unsigned char> start)
{
    const std::string_view bytes(reinterpret_cast<const char*>(start.data()), start.size());
    const auto* found = std::ranges::find_if(kSignatures,
                                             [bytes](const Signature& signature)
                                             {
                                                 return bytes.starts_with(signature.bytes);
                                             });
    return found == std::end(kSignatures) ? ImageKind::Unknown : found->kind;
}
} // namespace vorn
