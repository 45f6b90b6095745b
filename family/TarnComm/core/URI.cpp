#include "family/TarnComm/core/URI.h"

#include "family/TarnComm/core/UriParts.h"

#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

namespace
{

/// A text as the interface holds it: an array, or null for none.
struct OwnedText
{
    std::unique_ptr<char[]> text;
    bool isWhole = true; ///< there was memory for it

    explicit OwnedText(std::string_view from)
    {
        if (from.empty())
        {
            return;
        }
        text.reset(new (std::nothrow) char[from.size() + 1]); // an array that may fail to be there
        isWhole = text != nullptr;
        if (isWhole)
        {
            std::memcpy(text.get(), from.data(), from.size());
            text[from.size()] = '\0';
        }
    }

    void MoveTo(char*& part)
    {
        const std::unique_ptr<char[]> former(std::exchange(part, text.release()));
    }
};

/// 0 where no port is said, nothing where it is none.
std::optional<unsigned short> PortOf(const vorn::UriParts& parts)
{
    return parts.port ? vorn::ParseUriPort(*parts.port) : std::optional<unsigned short>(0);
}

std::string_view ViewOf(const char* text)
{
    return text ? std::string_view(text) : std::string_view();
}

} // namespace

URI::URI() = default;

URI::URI(const URI& other)
{
    *this = other;
}

URI& URI::operator=(const URI& other)
{
    if (this != &other)
    {
        SetString(mpUser, other.mpUser);
        SetString(mpPassword, other.mpPassword);
        SetString(mpHost, other.mpHost);
        mPort = other.mPort;
    }
    return *this;
}

URI::~URI()
{
    SetString(mpUser, nullptr);
    SetString(mpPassword, nullptr);
    SetString(mpHost, nullptr);
}

bool URI::Parse(const char* text)
{
    const vorn::UriParts parts = vorn::SplitUri(ViewOf(text));
    // Copied before anything is freed: the text may be one of the own parts.
    OwnedText user(parts.user.value_or(std::string_view()));
    OwnedText password(parts.password.value_or(std::string_view()));
    OwnedText host(parts.host);
    if (!user.isWhole || !password.isWhole || !host.isWhole)
    {
        return false;
    }
    const std::optional<unsigned short> port = PortOf(parts);
    if (parts.user)
    {
        user.MoveTo(mpUser);
        password.MoveTo(mpPassword);
    }
    host.MoveTo(mpHost);
    mPort = port.value_or(0);
    return mpHost != nullptr && port.has_value();
}

void URI::SetString(char*& part, const char* text)
{
    OwnedText copy(ViewOf(text));
    if (copy.isWhole)
    {
        copy.MoveTo(part);
    }
}
