#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vorn::test
{

/// An empty folder of the running test's own, below the system's folder for temporary files. What
/// an earlier, broken run left there is removed first; the folder goes when the object does.
class ScratchFolder
{
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// The folder, without a separator at its end.
    const std::filesystem::path& Path() const
    {
        return m_path;
    }

    /// The path of a file in the folder, as the system's narrow calls take it.
    std::string File(std::string_view name) const;

    /// Writes the file (any bytes) and gives its path.
    std::string Write(std::string_view name, std::string_view bytes) const;

    /// All bytes of a file in the folder; empty when there is none.
    std::string Read(std::string_view name) const;

private:
    std::filesystem::path m_path;
};

/// All bytes of a file; empty when it cannot be read.
std::string ReadWholeFile(const std::filesystem::path& path);

} // namespace vorn::test
