#include "family/TarnComm/core/URI.h"

#include <cstdlib>
#include <cstring>
#include <string>

namespace
{

void Require(bool holds)
{
    if (!holds)
    {
        std::abort();
    }
}

bool AreEqual(const char* one, const char* other)
{
    return one == nullptr || other == nullptr ? one == other : std::strcmp(one, other) == 0;
}

std::string Written(const URI& uri)
{
    std::string text = uri.mpHost ? uri.mpHost : "";
    if (uri.mPort != 0)
    {
        text += ":" + std::to_string(uri.mPort);
    }
    return text;
}

} // namespace

/// Any text: its host and port, written together again, are read as the same, and leave the account alone.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    URI uri;
    const bool whole = uri.Parse(text.c_str());
    Require(!whole || uri.mpHost != nullptr);
    Require(uri.mpHost == nullptr || std::strpbrk(uri.mpHost, "/?#@") == nullptr);
    for (const char* part : {uri.mpUser, uri.mpPassword, uri.mpHost})
    {
        Require(part == nullptr || (*part != '\0' && text.find(part) != std::string::npos));
    }
    URI again(uri);
    Require(again.Parse(Written(uri).c_str()) == (uri.mpHost != nullptr));
    Require(AreEqual(again.mpHost, uri.mpHost) && again.mPort == uri.mPort);
    Require(AreEqual(again.mpUser, uri.mpUser) && AreEqual(again.mpPassword, uri.mpPassword));
    again.Parse(again.mpHost);
    return 0;
}
