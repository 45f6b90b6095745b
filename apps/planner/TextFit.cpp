#include "apps/planner/TextFit.h"

#include <algorithm>
#include <array>

namespace vorn::planner
{

namespace
{

// Pixels at 96 dpi.
constexpr int kIndicator = 20;   ///< of a check box or radio button, with the gap to its text
constexpr int kButtonFrame = 12; ///< both sides of a push button, focus rectangle included
constexpr int kCaptionEnds = 18; ///< of a group box

bool IsOfClass(HWND control, const char* name)
{
    std::array<char, 32> own{};
    GetClassName(control, own.data(), static_cast<int>(own.size()));
    return lstrcmpi(own.data(), name) == 0;
}

std::string TextOf(HWND control)
{
    std::string text(static_cast<std::size_t>(GetWindowTextLength(control)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowText(control, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// The screen with a control's font, for as long as it lives.
class TextDevice
{
public:
    explicit TextDevice(HWND control) : m_control(control), m_dc(GetDC(control))
    {
        m_former = SelectObject(m_dc, reinterpret_cast<HFONT>(SendMessage(control, WM_GETFONT, 0, 0)));
    }
    ~TextDevice()
    {
        SelectObject(m_dc, m_former);
        ReleaseDC(m_control, m_dc);
    }
    TextDevice(const TextDevice&) = delete;
    TextDevice& operator=(const TextDevice&) = delete;

    CSize Measure(const std::string& text, UINT format, int width = 0) const
    {
        RECT rect = {0, 0, width, 0};
        DrawText(m_dc, text.c_str(), static_cast<int>(text.size()), &rect, format | DT_CALCRECT);
        return {rect.right - rect.left, rect.bottom - rect.top};
    }
    int LineHeight() const
    {
        TEXTMETRIC metric{};
        GetTextMetrics(m_dc, &metric);
        return metric.tmHeight;
    }
    int Px(int at96) const
    {
        return MulDiv(at96, GetDeviceCaps(m_dc, LOGPIXELSY), 96);
    }

private:
    HWND m_control;
    HDC m_dc;
    HGDIOBJ m_former;
};

DWORD StyleOf(HWND control)
{
    return static_cast<DWORD>(GetWindowLong(control, GWL_STYLE));
}

CSize ClientSize(HWND control)
{
    RECT rect{};
    GetClientRect(control, &rect);
    return {rect.right, rect.bottom};
}

bool IsTextLabel(HWND control)
{
    if (!IsOfClass(control, "Static"))
        return false;
    const DWORD style = StyleOf(control);
    const DWORD type = style & SS_TYPEMASK;
    const bool isText =
        type == SS_LEFT || type == SS_CENTER || type == SS_RIGHT || type == SS_SIMPLE || type == SS_LEFTNOWORDWRAP;
    return isText && (style & SS_ELLIPSISMASK) == 0;
}

CSize LabelSize(HWND label, const std::string& text)
{
    const TextDevice device(label);
    const UINT prefix = (StyleOf(label) & SS_NOPREFIX) != 0 ? DT_NOPREFIX : 0;
    if (IsOfSeveralLines(label))
        return device.Measure(text, prefix | DT_WORDBREAK | DT_EXPANDTABS, ClientSize(label).cx);
    return device.Measure(text, prefix | DT_EXPANDTABS);
}

std::optional<CSize> ButtonSize(HWND button, const std::string& text)
{
    const TextDevice device(button);
    const CSize size = device.Measure(text, DT_SINGLELINE);
    switch (StyleOf(button) & BS_TYPEMASK)
    {
    case BS_PUSHBUTTON:
    case BS_DEFPUSHBUTTON:
        return CSize(size.cx + device.Px(kButtonFrame), size.cy);
    case BS_GROUPBOX:
        return CSize(size.cx + device.Px(kCaptionEnds), size.cy);
    case BS_OWNERDRAW:
        return std::nullopt;
    default:
        return CSize(size.cx + device.Px(kIndicator), size.cy);
    }
}

bool IsPushButton(HWND control)
{
    const DWORD type = StyleOf(control) & BS_TYPEMASK;
    return type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
}

void Fit(HWND control)
{
    const std::optional<CSize> needed = SizeForText(control);
    const bool isButton = IsOfClass(control, "Button");
    if (!needed || (isButton && (StyleOf(control) & BS_TYPEMASK) == BS_GROUPBOX))
        return;
    RECT rect{};
    GetWindowRect(control, &rect);
    CSize size = *needed;
    if (isButton)
        size.cy = std::max<LONG>(size.cy, rect.bottom - rect.top);
    if ((isButton && IsPushButton(control)) || IsOfSeveralLines(control))
        size.cx = std::max<LONG>(size.cx, rect.right - rect.left);
    SetWindowPos(control, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

bool IsOfSeveralLines(HWND label)
{
    if (!IsTextLabel(label))
        return false;
    const DWORD type = StyleOf(label) & SS_TYPEMASK;
    return type <= SS_RIGHT && ClientSize(label).cy >= 3 * TextDevice(label).LineHeight() / 2;
}

std::optional<CSize> SizeForText(HWND control)
{
    const std::string text = TextOf(control);
    if (text.empty())
        return std::nullopt;
    if (IsTextLabel(control))
        return LabelSize(control, text);
    if (IsOfClass(control, "Button"))
        return ButtonSize(control, text);
    return std::nullopt;
}

void FitTexts(CWnd& window)
{
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        Fit(child);
}

} // namespace vorn::planner
