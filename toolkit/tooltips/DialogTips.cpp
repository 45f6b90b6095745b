#include "toolkit/tooltips/DialogTips.h"

namespace vorn
{
namespace
{
constexpr int kLineWidth = 300;
} // namespace

DialogTips::DialogTips(CWnd& host) : m_host(host)
{
}

DialogTips::~DialogTips() = default;

bool DialogTips::Init()
{
    if (m_control.m_hWnd == nullptr && m_host.m_hWnd != nullptr)
    {
        m_control.Create(&m_host);
    }
    return m_control.m_hWnd != nullptr;
}

void DialogTips::AddOne(UINT control, UINT text)
{
    if (CWnd* const window = m_host.GetDlgItem(static_cast<int>(control)))
    {
        m_control.AddTool(window, text, control);
    }
}

void DialogTips::Add(const UINT* controls, const UINT* texts, int count)
{
    if (controls == nullptr || texts == nullptr || !Init())
    {
        return;
    }
    for (int i = 0; i < count; ++i)
    {
        AddOne(controls[i], texts[i]);
    }
}

void DialogTips::Add(const UINT* pairs, int count)
{
    if (pairs == nullptr || !Init())
    {
        return;
    }
    for (int i = 0; i < count; ++i)
    {
        AddOne(pairs[2 * i], pairs[2 * i + 1]);
    }
}

void DialogTips::BreakLines(bool breakLines)
{
    m_control.SetMaxTipWidth(breakLines ? kLineWidth : 0);
}

void DialogTips::Relay(MSG* message)
{
    m_control.RelayEvent(message);
}

void DialogTips::UpdateRects()
{
    m_control.UpdateTipRects();
}

void DialogTips::End()
{
    m_control.DestroyWindow();
}

ToolTipCtrlEx& DialogTips::Control()
{
    return m_control;
}

} // namespace vorn
