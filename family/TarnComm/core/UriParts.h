#pragma once

#include <optional>
#include <string_view>

namespace vorn
{

/// What stands where in the text of an address, [scheme://][user[:password]@]host[:port][/path]. Views into the text.
struct UriParts
{
    std::string_view scheme;
    std::optional<std::string_view> user;     ///< empty but there for "@host"
    std::optional<std::string_view> password; ///< empty but there for "user:@host"
    std::string_view host;                    ///< with its brackets, when it has some: "[::1]"
    std::optional<std::string_view> port;     ///< what stands behind the colon, a number or not
};

/// Takes the text of an address apart. Blanks and control characters around the whole and around the host are left
/// out; nothing is decoded. What ends at a "/", "?" or "#" has its account before its last "@". The port stands behind
/// the host's first colon, in "[...]" behind the bracket.
UriParts SplitUri(std::string_view text);

/// A port from 0 to 65535 of decimal digits alone, else nothing.
std::optional<unsigned short> ParseUriPort(std::string_view digits);

} // namespace vorn
