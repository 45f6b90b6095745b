#include "tests/support/ScratchKey.h"
#include "tests/support/CurrentTest.h"

#include <utility>

namespace vorn::test
{

ScratchKey::ScratchKey() : ScratchKey(HKEY_CURRENT_USER, "Software\\VornTests\\" + CurrentTestFileName())
{
}

ScratchKey::ScratchKey(HKEY root, std::string path) : m_root(root), m_path(std::move(path))
{
    Remove();
}

ScratchKey::~ScratchKey()
{
    Remove();
}

bool ScratchKey::Exists() const
{
    HKEY key = nullptr;
    const bool exists =
        RegOpenKeyExA(m_root, m_path.c_str(), 0, KEY_QUERY_VALUE | KEY_WOW64_32KEY, &key) == ERROR_SUCCESS;
    if (exists)
    {
        RegCloseKey(key);
    }
    return exists;
}

void ScratchKey::Remove() const
{
    RegDeleteTreeA(m_root, m_path.c_str());
}

} // namespace vorn::test
