#pragma once

/// @file
/// What a file dialog leaves in its buffer: a path, or a folder followed by names.
#include "framework/core/Export.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace vorn
{
/// The paths chosen in a dialog that allows several: one whole path, or a folder and names in it, each text ended by a
/// zero and all by one more.
class HOSTFRAMEWORK_API FileSelection
{
public:
    explicit FileSelection(std::span<const char> buffer);

    /// Where the first path begins; 0 when nothing was chosen (position 0 is no path of several).
    static constexpr std::size_t kNone = 0;

    /// The first position, kNone when the buffer is empty.
    std::size_t First() const;
    /// The path at a position, which moves on to the next, or to kNone after the last.
    std::string Next(std::size_t& position) const;

private:
    std::string_view TextAt(std::size_t offset) const;

    std::span<const char> m_buffer;
};

/// Turns the bars of a file type list into zeros and adds the second zero at its end.
HOSTFRAMEWORK_API std::string FileFilter(std::string_view bars);
/// The last part of a path.
HOSTFRAMEWORK_API std::string_view FileNameOf(std::string_view path);
/// The characters after the last point of the file name.
HOSTFRAMEWORK_API std::string_view ExtensionOf(std::string_view path);
/// The file name up to its last point.
HOSTFRAMEWORK_API std::string_view TitleOf(std::string_view path);
/// The path without file name; the backslash stays at a drive's root only.
HOSTFRAMEWORK_API std::string_view FolderOf(std::string_view path);
} // namespace vorn
