#include "toolkit/layout/LayoutCovers.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace LayoutManagement
{
namespace
{

/// What the background depends on in a control's class.
enum class ControlClass
{
    Button,
    Static,
    Tab,
    Other
};

/// The classes of many controls: each one's name is looked at once.
class ControlClasses
{
public:
    ControlClass Of(HWND control, ATOM atom)
    {
        for (const auto& [known, kind] : m_known)
        {
            if (known == atom)
            {
                return kind;
            }
        }
        m_known.emplace_back(atom, ByName(control));
        return m_known.back().second;
    }

private:
    static ControlClass ByName(HWND control)
    {
        char name[32] = {};
        GetClassNameA(control, name, sizeof name);
        const auto is = [&name](const char* other)
        {
            return lstrcmpiA(name, other) == 0;
        };
        return is("Button")         ? ControlClass::Button
               : is("Static")       ? ControlClass::Static
               : is(WC_TABCONTROLA) ? ControlClass::Tab
                                    : ControlClass::Other;
    }

    std::vector<std::pair<ATOM, ControlClass>> m_known;
};

/// Frames around other controls, and what shows the background through itself.
bool IsSeenThrough(HWND control, ControlClass kind, LONG style)
{
    const LONG type = style & SS_TYPEMASK;
    if (kind == ControlClass::Button && (style & BS_TYPEMASK) == BS_GROUPBOX)
    {
        return true;
    }
    if (kind == ControlClass::Static && (type == SS_ETCHEDFRAME || (type >= SS_BLACKFRAME && type <= SS_WHITEFRAME)))
    {
        return true;
    }
    return (GetWindowLongA(control, GWL_EXSTYLE) & WS_EX_TRANSPARENT) != 0;
}

/// A tab control: its body and, where its tabs stand at the top in one row, those; the rest of the row belongs to the
/// background.
void AppendTab(HWND tab, const RECT& bounds, LONG style, std::vector<RECT>& covers)
{
    const int count = static_cast<int>(SendMessageA(tab, TCM_GETITEMCOUNT, 0, 0));
    RECT first{};
    RECT last{};
    if (count == 0 || (style & (TCS_BOTTOM | TCS_VERTICAL | TCS_MULTILINE)) != 0 ||
        !SendMessageA(tab, TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first)) ||
        !SendMessageA(tab, TCM_GETITEMRECT, static_cast<WPARAM>(count - 1), reinterpret_cast<LPARAM>(&last)))
    {
        covers.push_back(bounds);
        return;
    }
    constexpr LONG kOutstanding = 2; // of the selected tab, on both sides
    const LONG body = bounds.top + first.bottom;
    covers.push_back({std::max(bounds.left, bounds.left + first.left - kOutstanding), bounds.top,
                      std::min(bounds.right, bounds.left + last.right + kOutstanding), body});
    covers.push_back({bounds.left, body, bounds.right, bounds.bottom});
}

/// Turns rectangles on the screen into such of a client area.
class ClientMapping
{
public:
    explicit ClientMapping(HWND window)
        : m_window(window), m_isMirrored((GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0)
    {
        ClientToScreen(window, &m_origin);
    }
    RECT Of(RECT rect) const
    {
        if (m_isMirrored)
        {
            MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&rect), 2);
            return rect;
        }
        return {rect.left - m_origin.x, rect.top - m_origin.y, rect.right - m_origin.x, rect.bottom - m_origin.y};
    }

private:
    HWND m_window;
    bool m_isMirrored;
    POINT m_origin{};
};

} // namespace

std::vector<HWND> ChildrenOf(HWND window)
{
    constexpr std::size_t kMost = 65536;
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr && children.size() < kMost;
         child = GetWindow(child, GW_HWNDNEXT))
    {
        children.push_back(child);
    }
    return children;
}

std::vector<RECT> CoversOf(const std::vector<HWND>& controls, HWND window)
{
    std::vector<RECT> covers;
    covers.reserve(controls.size());
    ControlClasses classes;
    const ClientMapping mapping(window);
    for (const HWND control : controls)
    {
        const LONG style = GetWindowLongA(control, GWL_STYLE);
        RECT bounds{};
        if ((style & WS_VISIBLE) == 0 || !GetWindowRect(control, &bounds))
        {
            continue;
        }
        const ControlClass kind = classes.Of(control, static_cast<ATOM>(GetClassLongA(control, GCW_ATOM)));
        if (IsSeenThrough(control, kind, style))
        {
            continue;
        }
        bounds = mapping.Of(bounds);
        if (kind == ControlClass::Tab)
        {
            AppendTab(control, bounds, style, covers);
        }
        else
        {
            covers.push_back(bounds);
        }
    }
    return covers;
}

} // namespace LayoutManagement
