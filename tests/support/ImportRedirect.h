#pragma once

#include <windows.h>

namespace vorn::test
{

/// Lets a loaded library call a function of the test's own in place of one that it imports by name, while the object
/// lives.
class ImportRedirect
{
public:
    /// `library` is the importing library, "VornCommon.dll"; the function keeps its signature and calling convention.
    ImportRedirect(const char* library, const char* function, const void* replacement);
    ~ImportRedirect();
    ImportRedirect(const ImportRedirect&) = delete;
    ImportRedirect& operator=(const ImportRedirect&) = delete;

    /// Whether the library imports the function at all.
    bool IsActive() const
    {
        return m_entry != nullptr;
    }

private:
    void Put(DWORD_PTR function) const;

    DWORD_PTR* m_entry = nullptr;
    DWORD_PTR m_original = 0;
};

} // namespace vorn::test
