#include "toolkit/tooltips/ToolTipInfoEx.h"

#include "framework/window/ModuleState.h"
#include "toolkit/tooltips/core/TipText.h"

IMPLEMENT_DYNAMIC(ToolTipInfoEx, CObject)

TOOLINFOEX::TOOLINFOEX() : hwnd(nullptr), id(0), flags(0)
{
}

TOOLINFOEX::TOOLINFOEX(const TOOLINFOEX& other) = default;

TOOLINFOEX::TOOLINFOEX(const ToolTipInfoEx& tool) : TOOLINFOEX()
{
    *this = tool;
}

TOOLINFOEX::~TOOLINFOEX() = default;

TOOLINFOEX& TOOLINFOEX::operator=(const TOOLINFOEX& other) = default;

TOOLINFOEX& TOOLINFOEX::operator=(const ToolTipInfoEx& tool)
{
    hwnd = tool.GetControl();
    id = tool.GetID();
    rect = tool.GetRect();
    text = tool.GetText();
    flags = (tool.GetTextID() != 0 ? TextFromResource : 0U) | (tool.IsWholeControl() ? 0U : PartOfWindow);
    return *this;
}

ToolTipInfoEx::ToolTipInfoEx(HWND control, UINT id, UINT textId, LPCSTR text, const RECT* rect)
    : m_control(control), m_id(id), m_textId(0)
{
    Redefine(textId, text, rect);
}

void ToolTipInfoEx::Redefine(UINT textId, LPCSTR text, const RECT* rect)
{
    m_textId = textId;
    m_text = text;
    m_rect = rect != nullptr ? CRect(*rect) : CRect(0, 0, 0, 0);
}

ToolTipInfoEx::~ToolTipInfoEx() = default;

HWND ToolTipInfoEx::GetControl() const
{
    return m_control;
}

UINT ToolTipInfoEx::GetID() const
{
    return m_id;
}

UINT ToolTipInfoEx::GetTextID() const
{
    return m_textId;
}

const CRect& ToolTipInfoEx::GetRect() const
{
    return m_rect;
}

bool ToolTipInfoEx::IsWholeControl() const
{
    return m_rect.IsRectEmpty() != FALSE;
}

CString ToolTipInfoEx::GetText() const
{
    if (m_textId == 0)
    {
        return m_text;
    }
    char text[vorn::kTipTextLimit + 1] = "";
    const int length = AfxLoadString(m_textId, text, sizeof text);
    return CString(text, length);
}

bool ToolTipInfoEx::HasKey(HWND control, UINT id) const
{
    return m_control == control && m_id == id;
}

bool ToolTipInfoEx::IsVisible() const
{
    return ::IsWindowVisible(m_control) != FALSE;
}

CRect ToolTipInfoEx::GetScreenRect() const
{
    CRect rect(0, 0, 0, 0);
    if (IsWholeControl())
    {
        ::GetWindowRect(m_control, &rect);
    }
    else if (::IsWindow(m_control))
    {
        rect = m_rect;
        ::MapWindowPoints(m_control, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    }
    return rect;
}

void ToolTipInfoEx::Take(const TOOLINFOEX& info)
{
    m_rect = info.rect;
    if (info.text != GetText())
    {
        m_textId = 0;
        m_text = info.text;
    }
}
