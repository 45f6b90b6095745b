#include "tests/support/ImportRedirect.h"

#include <cstring>

namespace vorn::test
{

namespace
{

template <class T>
T* At(HMODULE module, DWORD offset)
{
    return reinterpret_cast<T*>(reinterpret_cast<char*>(module) + offset);
}

const IMAGE_IMPORT_DESCRIPTOR* ImportsOf(HMODULE module)
{
    const auto* const dos = At<IMAGE_DOS_HEADER>(module, 0);
    const auto* const headers = At<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(dos->e_lfanew));
    return At<IMAGE_IMPORT_DESCRIPTOR>(
        module, headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
}

DWORD_PTR* FindImport(HMODULE module, const IMAGE_IMPORT_DESCRIPTOR& imports, const char* function)
{
    const auto* name = At<IMAGE_THUNK_DATA>(module, imports.OriginalFirstThunk);
    auto* entry = At<IMAGE_THUNK_DATA>(module, imports.FirstThunk);
    for (; name->u1.AddressOfData != 0; ++name, ++entry)
    {
        if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
            continue;
        if (std::strcmp(At<IMAGE_IMPORT_BY_NAME>(module, name->u1.AddressOfData)->Name, function) == 0)
            return &entry->u1.Function;
    }
    return nullptr;
}

} // namespace

ImportRedirect::ImportRedirect(const char* library, const char* function, const void* replacement)
{
    const HMODULE module = GetModuleHandleA(library);
    if (module == nullptr)
        return;
    for (const IMAGE_IMPORT_DESCRIPTOR* imports = ImportsOf(module); m_entry == nullptr && imports->Name != 0;
         ++imports)
        m_entry = FindImport(module, *imports, function);
    if (m_entry == nullptr)
        return;
    m_original = *m_entry;
    Put(reinterpret_cast<DWORD_PTR>(replacement));
}

ImportRedirect::~ImportRedirect()
{
    if (m_entry != nullptr)
        Put(m_original);
}

void ImportRedirect::Put(DWORD_PTR function) const
{
    DWORD before = 0;
    VirtualProtect(m_entry, sizeof *m_entry, PAGE_READWRITE, &before);
    *m_entry = function;
    VirtualProtect(m_entry, sizeof *m_entry, before, &before);
}

} // namespace vorn::test
