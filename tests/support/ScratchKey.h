#pragma once

#include <windows.h>

#include <string>

namespace vorn::test
{

/// A registry key that belongs to the test: removed with all below it when the object is made and
/// when it goes. The key itself is not created.
class ScratchKey
{
public:
    /// The key `Software\VornTests\SUITE_TEST` of the current user.
    ScratchKey();
    ScratchKey(HKEY root, std::string path);
    ~ScratchKey();
    ScratchKey(const ScratchKey&) = delete;
    ScratchKey& operator=(const ScratchKey&) = delete;

    HKEY Root() const
    {
        return m_root;
    }

    const std::string& Path() const
    {
        return m_path;
    }

    bool Exists() const;
    void Remove() const;

private:
    HKEY m_root;
    std::string m_path;
};

} // namespace vorn::test
