#include "framework/dialog/LoadedDialogTemplate.h"

#include "framework/core/DialogTemplate.h"
#include "framework/window/ModuleState.h"

#include <cstring>

namespace vorn
{
namespace
{
constexpr std::size_t kExtendedStyleOffset = 12;
/// A template of unknown length is read at most this far.
constexpr std::size_t kMostBytes = 1 << 20;
const LPCSTR kDialogType = MAKEINTRESOURCEA(5); // RT_DIALOG

const std::uint8_t* AsBytes(const void* memory)
{
    return static_cast<const std::uint8_t*>(memory);
}

/// A movable block of memory, locked.
class LockedBlock
{
public:
    explicit LockedBlock(HGLOBAL block) : m_block(block), m_memory(::GlobalLock(block))
    {
    }
    ~LockedBlock()
    {
        if (m_memory)
            ::GlobalUnlock(m_block);
    }
    LockedBlock(const LockedBlock&) = delete;
    LockedBlock& operator=(const LockedBlock&) = delete;

    std::span<const std::uint8_t> Bytes() const
    {
        return {AsBytes(m_memory), m_memory ? ::GlobalSize(m_block) : 0};
    }

private:
    HGLOBAL m_block;
    void* m_memory;
};

bool LiesInAModule(const void* memory)
{
    MEMORY_BASIC_INFORMATION info{};
    return ::VirtualQuery(memory, &info, sizeof(info)) != 0 && info.Type == MEM_IMAGE;
}
} // namespace

std::optional<LoadedDialogTemplate> LoadedDialogTemplate::FromResource(LPCSTR name)
{
    const HINSTANCE module = AfxFindResourceHandle(name, kDialogType);
    const HRSRC resource = name ? ::FindResourceA(module, name, kDialogType) : nullptr;
    if (!resource)
        return std::nullopt;
    const void* memory = ::LockResource(::LoadResource(module, resource));
    return FromBytes({AsBytes(memory), memory ? ::SizeofResource(module, resource) : 0}, module);
}

std::optional<LoadedDialogTemplate> LoadedDialogTemplate::FromGlobal(HGLOBAL block)
{
    if (!block)
        return std::nullopt;
    // What LoadResource answers is an address inside a module.
    if (LiesInAModule(block))
        return FromPointer(static_cast<LPCDLGTEMPLATE>(block));
    return FromBytes(LockedBlock(block).Bytes(), AfxGetInstanceHandle());
}

std::optional<LoadedDialogTemplate> LoadedDialogTemplate::FromPointer(LPCDLGTEMPLATE dialogTemplate)
{
    if (!dialogTemplate)
        return std::nullopt;
    return FromBytes({AsBytes(dialogTemplate), kMostBytes}, AfxGetInstanceHandle());
}

std::optional<LoadedDialogTemplate> LoadedDialogTemplate::FromBytes(std::span<const std::uint8_t> bytes,
                                                                    HINSTANCE module)
{
    const auto read = ReadDialogTemplate(bytes);
    if (!read)
        return std::nullopt;
    LoadedDialogTemplate result;
    const auto whole = bytes.first(read->size);
    result.m_bytes.assign(whole.begin(), whole.end());
    result.m_extended = read->extended;
    result.m_module = module;
    return result;
}

LPCDLGTEMPLATE LoadedDialogTemplate::Get() const
{
    return reinterpret_cast<LPCDLGTEMPLATE>(m_bytes.data());
}

DWORD LoadedDialogTemplate::Style() const
{
    DWORD style = 0;
    std::memcpy(&style, m_bytes.data() + (m_extended ? kExtendedStyleOffset : 0), sizeof(style));
    return style;
}

void LoadedDialogTemplate::RemoveStyle(DWORD style)
{
    const DWORD rest = Style() & ~style;
    std::memcpy(m_bytes.data() + (m_extended ? kExtendedStyleOffset : 0), &rest, sizeof(rest));
}

HINSTANCE LoadedDialogTemplate::Module() const
{
    return m_module;
}
} // namespace vorn
