#pragma once

#include "toolkit/ManagedObjects.h"
#include "toolkit/core/FaceName.h"
#include "toolkit/core/WordHash.h"

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

/// @file
/// What the resource manager finds its objects by, and makes them of: the values of the requests as they were given.

namespace vorn
{

struct PenKey
{
    int style;
    int width;
    COLORREF color;

    bool operator==(const PenKey&) const = default;

    std::uint32_t Hash() const
    {
        return WordHash({static_cast<std::uint32_t>(style), static_cast<std::uint32_t>(width), color});
    }
    ManagedPen Make() const
    {
        return {style, width, color};
    }
};

struct BrushKey
{
    UINT style;
    COLORREF color;
    LONG hatch;

    bool operator==(const BrushKey&) const = default;

    std::uint32_t Hash() const
    {
        return WordHash({style, color, static_cast<std::uint32_t>(hatch)});
    }
    ManagedBrush Make() const
    {
        return {style, color, hatch};
    }
};

/// A font's description as words, the face cut to 31 characters and cleared behind them.
class FontKey
{
public:
    explicit FontKey(const LOGFONTA& description)
    {
        static_assert(sizeof(LOGFONTA) == sizeof m_values + sizeof m_face);
        static_assert(offsetof(LOGFONTA, lfFaceName) == sizeof m_values);
        std::memcpy(m_values, &description, sizeof m_values);
        std::memcpy(m_face, description.lfFaceName, sizeof m_face);
        ClearBehindText(m_face);
    }

    LOGFONTA Description() const
    {
        LOGFONTA description;
        std::memcpy(&description, m_values, sizeof m_values);
        std::memcpy(description.lfFaceName, m_face, sizeof m_face);
        return description;
    }

    /// All words at once: nearly every comparison is with an equal key.
    bool operator==(const FontKey& other) const
    {
        std::uint32_t difference = 0;
        for (std::size_t i = 0; i < kValues; ++i)
        {
            difference |= m_values[i] ^ other.m_values[i];
        }
        for (std::size_t i = 0; i < kFace; ++i)
        {
            difference |= m_face[i] ^ other.m_face[i];
        }
        return difference == 0;
    }

    std::uint32_t Hash() const
    {
        return WordHash(m_values) ^ 31 * WordHash(m_face);
    }
    ManagedFont Make() const
    {
        return ManagedFont(Description());
    }

private:
    static constexpr std::size_t kValues = 7; // five numbers and eight bytes
    static constexpr std::size_t kFace = LF_FACESIZE / sizeof(std::uint32_t);

    std::uint32_t m_values[kValues];
    std::uint32_t m_face[kFace];
};

} // namespace vorn
