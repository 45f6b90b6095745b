#pragma once

/// @file
/// A dialog template taken out of a resource or of the caller's memory, checked and copied.
#include <windows.h>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vorn
{
class LoadedDialogTemplate
{
public:
    /// A dialog of the resource chain. Nothing when there is none or when its bytes are damaged.
    static std::optional<LoadedDialogTemplate> FromResource(LPCSTR name);
    /// A memory block that holds a template, or a resource handle.
    static std::optional<LoadedDialogTemplate> FromGlobal(HGLOBAL block);
    /// A whole template in memory.
    static std::optional<LoadedDialogTemplate> FromPointer(LPCDLGTEMPLATE dialogTemplate);

    LPCDLGTEMPLATE Get() const;
    DWORD Style() const;
    void RemoveStyle(DWORD style);
    /// Module that the template's menu and pictures come from.
    HINSTANCE Module() const;

private:
    static std::optional<LoadedDialogTemplate> FromBytes(std::span<const std::uint8_t> bytes, HINSTANCE module);

    std::vector<std::uint8_t> m_bytes; // the heap's alignment is more than the four bytes that templates need
    bool m_extended = false;
    HINSTANCE m_module = nullptr;
};
} // namespace vorn
