#pragma once

#include "tests/support/ImportRedirect.h"

#include <initializer_list>
#include <memory>
#include <vector>

namespace vorn::test
{

/// Stands between some libraries and the memory that they ask for, and refuses it when told. One at a time.
class MemoryRefusal
{
public:
    /// @param libraries "VornCommon.dll", ...
    explicit MemoryRefusal(std::initializer_list<const char*> libraries);
    ~MemoryRefusal();
    MemoryRefusal(const MemoryRefusal&) = delete;
    MemoryRefusal& operator=(const MemoryRefusal&) = delete;

    /// From now on, refuses every request after this many more.
    void RefuseAfter(int requests);
    /// Refuses nothing any more. @return how many requests were refused
    int Stop();

private:
    std::vector<std::unique_ptr<ImportRedirect>> m_redirects;
};

} // namespace vorn::test
