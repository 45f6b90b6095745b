#include "apps/vorntool/core/RegistryWords.h"
#include "config/core/RegistryPath.h"
#include "config/core/RegistryRoots.h"
#include "config/core/TextListData.h"

#include <cstdlib>

namespace
{
void Require(bool holds)
{
    if (!holds)
    {
        std::abort();
    }
}

// Whatever stands in a list, what was read of it is written and read again unchanged.
void CheckList(std::string_view data)
{
    const std::vector<std::string_view> texts = vorn::TextsOfListData(data);
    const std::vector<char> written = vorn::TextListData(texts);
    Require(written.size() <= data.size() + 2);
    Require(vorn::TextsOfListData({written.data(), written.size()}) == texts);
}

void CheckPath(std::string_view path)
{
    const std::string_view normalized = vorn::NormalizedKey(path, false);
    Require(normalized.size() <= path.size() && path.size() - normalized.size() <= 2);
    Require(!vorn::NormalizedKey(path, true).empty());
    const auto [parent, name] = vorn::SplitKey(path);
    Require(name.find('\\') == std::string_view::npos);
    Require(parent.ends_with('\\') || name.empty() || parent.empty() || vorn::JoinedKeys(parent, name) == path);
}

void CheckAddress(std::string_view text)
{
    const auto address = vorn::tool::ParseKeyAddress(text);
    if (address)
    {
        const auto again = vorn::tool::ParseKeyAddress(address->Text());
        Require(again && again->root == address->root && again->path == address->path);
        Require(vorn::RootNamed(address->root).has_value());
    }
}
} // namespace

/// Any bytes as the data of a list of texts, as a path, as a word that names a key, as digits and as a number.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    CheckList(text);
    CheckPath(text);
    CheckAddress(text);
    Require(vorn::tool::ParseHexBytes(vorn::tool::HexBytes(text)) == text);
    const auto bytes = vorn::tool::ParseHexBytes(text);
    Require(!bytes || bytes->size() <= size / 2);
    const auto number = vorn::tool::ParseRegistryNumber(text);
    Require(!number || vorn::tool::ParseRegistryNumber(std::to_string(*number)) == number);
    return 0;
}
