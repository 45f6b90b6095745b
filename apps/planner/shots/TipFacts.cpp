#include "apps/planner/shots/TipFacts.h"

#include <array>

namespace vorn::planner
{

namespace
{

bool IsOfClass(HWND control, const char* name)
{
    std::array<char, 32> own{};
    GetClassName(control, own.data(), static_cast<int>(own.size()));
    return lstrcmpi(own.data(), name) == 0;
}

std::string TextOf(HWND control)
{
    std::array<char, 64> text{};
    GetWindowText(control, text.data(), static_cast<int>(text.size()));
    return text.data();
}

bool NeedsTip(HWND control)
{
    const DWORD style = static_cast<DWORD>(GetWindowLong(control, GWL_STYLE));
    const int id = GetDlgCtrlID(control);
    const bool endsDialog = id == IDOK || id == IDCANCEL || TextOf(control) == "&Apply";
    const bool isRadio = IsOfClass(control, "Button") && (style & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
    return IsWindowVisible(control) && ((style & WS_TABSTOP) != 0 || isRadio) && !endsDialog;
}

} // namespace

std::vector<std::string> UnexplainedControls(HWND window)
{
    std::vector<std::string> sentences;
    auto* const dialog = dynamic_cast<ToolTipDlg*>(CWnd::FromHandlePermanent(window));
    for (HWND child = GetWindow(window, GW_CHILD); dialog != nullptr && child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT))
    {
        const auto id = static_cast<UINT>(GetDlgCtrlID(child));
        CString tip;
        dialog->GetToolTipCtrl().GetText(tip, CWnd::FromHandle(child), id);
        if (NeedsTip(child) && tip.IsEmpty())
            sentences.push_back("control " + std::to_string(id) + " \"" + TextOf(child) + "\" has no tip");
    }
    return sentences;
}

} // namespace vorn::planner
