#pragma once

#include <windows.h>

#include <memory>
#include <optional>
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
    /// Whether the folder may be kept open, which makes asking cheaper still. An open folder that someone deletes could
    /// not be made anew, so this is for folders that stay.
    enum class Folder
    {
        KeepOpen,
        AskByName,
    };

    AbsentFile() = default;
    AbsentFile(std::string path, Folder folder);

    const std::string& Path() const
    {
        return m_path;
    }

    /// Whether the file is there now.
    bool HasCome();

private:
    using Time = unsigned long long;

    struct HandleCloser
    {
        void operator()(HANDLE handle) const
        {
            CloseHandle(handle);
        }
    };

    bool IsKnownAbsent() const;
    std::optional<Time> LastChange() const;
    void RememberFolder();
    void OpenFolder();

    std::string m_path;
    Folder m_use = Folder::AskByName;
    std::string m_folder;                         ///< nearest folder that exists; empty when nothing is remembered
    std::unique_ptr<void, HandleCloser> m_opened; ///< the same, when it is kept open
    Time m_changed = 0;                           ///< its last change, in the system's units of 100 ns
    Time m_asked = 0;                             ///< when the file was last looked for, in ms
};
} // namespace vorn
