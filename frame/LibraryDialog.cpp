#include "frame/LibraryDialog.h"

#include "frame/LibraryModule.h"

namespace vorn
{

LPCDLGTEMPLATE LibraryDialog(UINT id)
{
    const HINSTANCE module = LibraryModule();
    const HRSRC resource = ::FindResource(module, MAKEINTRESOURCE(id), RT_DIALOG);
    return static_cast<LPCDLGTEMPLATE>(resource ? ::LockResource(::LoadResource(module, resource)) : nullptr);
}

} // namespace vorn
