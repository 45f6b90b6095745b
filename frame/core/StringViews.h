#pragma once

#include "framework/core/CString.h"

#include <string_view>

namespace vorn
{

/// The characters of a string, zeros among them.
inline std::string_view ViewOf(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

/// The characters before the end; null is an empty text.
inline std::string_view ViewOf(const char* text)
{
    return text != nullptr ? std::string_view(text) : std::string_view();
}

inline CString ToCString(std::string_view text)
{
    return CString(text.data(), static_cast<int>(text.size()));
}

} // namespace vorn
