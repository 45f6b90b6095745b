#pragma once

#include <windows.h>

#include <string>

namespace vorn
{
/// Asks again and again whether a file that is usually not there has come. Looking for an absent name makes the system
/// search a folder; asking when the folder was last changed does not. So as long as the nearest folder on the path
/// that exists is unchanged, the file is still absent.
///
/// Folder times are coarse on some volumes and absent on others: a folder changed within the last two seconds is not
/// trusted, and no answer is trusted for more than a second.
class AbsentFile
{
public:
    AbsentFile() = default;
    explicit AbsentFile(std::string path);

    const std::string& Path() const
    {
        return m_path;
    }

    /// Whether the file is there now.
    bool HasCome();

private:
    bool IsKnownAbsent() const;
    void RememberFolder();

    std::string m_path;
    std::string m_folder;             ///< nearest folder that exists; empty when nothing is remembered
    unsigned long long m_changed = 0; ///< its last change, in the system's units of 100 ns
    unsigned long long m_asked = 0;   ///< when the file was last looked for, in ms
};
} // namespace vorn
