#include "apps/planner/shots/WindowFacts.h"

#include "apps/planner/TextFit.h"

#include <array>

namespace vorn::planner
{

namespace
{

std::string ClassOf(HWND window)
{
    std::array<char, 64> name{};
    GetClassName(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

std::string NameOf(HWND window)
{
    std::array<char, 40> text{};
    GetWindowText(window, text.data(), static_cast<int>(text.size()));
    return ClassOf(window) + ' ' + std::to_string(GetDlgCtrlID(window)) + " \"" + text.data() + '"';
}

bool IsOneOf(const std::string& name, std::initializer_list<const char*> names)
{
    for (const char* const one : names)
    {
        if (lstrcmpi(name.c_str(), one) == 0)
            return true;
    }
    return false;
}

ControlKind KindOf(HWND control)
{
    const std::string name = ClassOf(control);
    const auto style = static_cast<DWORD>(GetWindowLong(control, GWL_STYLE));
    const bool isGroup = IsOneOf(name, {"Button"}) && (style & BS_TYPEMASK) == BS_GROUPBOX;
    return isGroup || IsOneOf(name, {"SysTabControl32"}) ? ControlKind::Frame : ControlKind::Plain;
}

/// Whether a window's children are controls of their own, not parts of it.
bool HoldsControls(HWND window)
{
    const std::string name = ClassOf(window);
    return !IsOneOf(name, {"Button", "Static", "Edit", "ListBox", "ComboBox", "ComboBoxEx32", "ScrollBar",
                           "SysTabControl32", "SysListView32", "SysTreeView32", "SysHeader32", "msctls_updown32",
                           "msctls_statusbar32", "ToolbarWindow32", "tooltips_class32", "RichEdit20A"});
}

CRect PlaceIn(HWND window, HWND control, bool isClient)
{
    CRect rect;
    if (isClient)
        GetClientRect(control, &rect);
    else
        GetWindowRect(control, &rect);
    MapWindowPoints(isClient ? control : nullptr, window, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

void Collect(HWND window, HWND parent, int parentIndex, std::vector<ControlFacts>& facts)
{
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        if ((GetWindowLong(child, GWL_STYLE) & WS_VISIBLE) == 0)
            continue;
        ControlFacts one;
        one.name = NameOf(child);
        one.parent = parentIndex;
        one.kind = KindOf(child);
        one.place = PlaceIn(window, child, false);
        one.parentArea = PlaceIn(window, parent, true);
        one.needed = SizeForText(child).value_or(CSize(0, 0));
        facts.push_back(one);
        if (HoldsControls(child))
            Collect(window, child, static_cast<int>(facts.size()) - 1, facts);
    }
}

} // namespace

std::vector<ControlFacts> FactsOf(HWND window)
{
    std::vector<ControlFacts> facts;
    Collect(window, window, -1, facts);
    return facts;
}

} // namespace vorn::planner
