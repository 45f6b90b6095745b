#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorn
{

/// A secret for the user's registry: encrypted by the system with a key of the user's own and written in digits of base
/// 64. Nothing when the system cannot do it. An empty text is an empty one.
std::optional<std::string> SealText(std::string_view secret);

/// The secret again; nothing for a text that this user has not sealed.
std::optional<std::string> OpenSealedText(std::string_view sealed);

} // namespace vorn
