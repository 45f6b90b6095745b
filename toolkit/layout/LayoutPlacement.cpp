#include "framework/window/CWinApp.h"
#include "framework/window/CWnd.h"
#include "framework/window/ModuleState.h"
#include "toolkit/layout/LayoutMgr.h"

#include <cstring>
#include <memory>

// Where a window was, kept in the application's profile.
namespace LayoutManagement
{
namespace
{

constexpr char kEntry[] = "WindowPlacement";
static_assert(sizeof(WINDOWPLACEMENT) == 44, "the record as it is kept");

CWinApp* ProfileOf(LPCTSTR section)
{
    return section != nullptr && *section != 0 ? AfxGetApp() : nullptr;
}

} // namespace

bool LayoutMgr::Save(LPCTSTR lpstrRegKey)
{
    CWinApp* const app = ProfileOf(lpstrRegKey);
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (app == nullptr || !HasWindow() || !m_pWnd->GetWindowPlacement(&placement))
    {
        return true;
    }
    placement.showCmd = placement.showCmd == SW_SHOWMAXIMIZED ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
    app->WriteProfileBinary(lpstrRegKey, kEntry, reinterpret_cast<LPBYTE>(&placement), sizeof placement);
    return true;
}

bool LayoutMgr::Load(LPCTSTR lpstrRegKey)
{
    CWinApp* const app = ProfileOf(lpstrRegKey);
    if (app == nullptr || !HasWindow())
    {
        return true;
    }
    LPBYTE data = nullptr;
    UINT size = 0;
    app->GetProfileBinary(lpstrRegKey, kEntry, &data, &size);
    const std::unique_ptr<BYTE[]> bytes(data);
    WINDOWPLACEMENT placement{};
    if (bytes != nullptr && size == sizeof placement)
    {
        std::memcpy(&placement, bytes.get(), sizeof placement);
        m_pWnd->SetWindowPlacement(&placement);
    }
    return true;
}

} // namespace LayoutManagement
