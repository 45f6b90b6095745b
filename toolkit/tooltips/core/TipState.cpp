#include "toolkit/tooltips/core/TipState.h"

#include "toolkit/tooltips/core/TipDelays.h"

namespace vorn
{

TipState::Phase TipState::Now() const
{
    return m_phase;
}

bool TipState::IsVisible() const
{
    return m_phase == Phase::Shown || m_phase == Phase::InfoBox;
}

const void* TipState::Tool() const
{
    return m_tool;
}

int TipState::ShownMs() const
{
    return m_shownMs;
}

void TipState::Enter(const void* tool)
{
    m_tool = tool;
    m_next = nullptr;
    m_shownMs = 0;
    m_phase = tool != nullptr ? Phase::Waiting : Phase::Idle;
}

bool TipState::MouseMoved(const void* tool)
{
    if (IsVisible())
    {
        m_next = tool;
        return false;
    }
    if (tool == m_tool)
    {
        return false;
    }
    Enter(tool);
    return true;
}

bool TipState::Waited(const void* cursorIn)
{
    if (m_phase != Phase::Waiting)
    {
        return false;
    }
    if (cursorIn != m_tool)
    {
        Forget();
        return false;
    }
    m_phase = Phase::Shown;
    m_next = m_tool;
    m_shownMs = 0;
    return true;
}

bool TipState::Looked(const void* cursorIn, bool overTip, int autoPopMs)
{
    if (m_phase != Phase::Shown)
    {
        return m_phase == Phase::InfoBox;
    }
    m_shownMs = m_shownMs < autoPopMs ? m_shownMs + kTipPollMs : m_shownMs;
    const bool inTool = cursorIn == m_tool;
    if (overTip || (inTool && m_shownMs < autoPopMs))
    {
        return true;
    }
    if (inTool)
    {
        Hush();
        return false;
    }
    Enter(m_next == cursorIn ? cursorIn : nullptr);
    return false;
}

bool TipState::OpenInfoBox()
{
    if (m_phase != Phase::Shown)
    {
        return false;
    }
    m_phase = Phase::InfoBox;
    return true;
}

void TipState::Hush()
{
    m_phase = m_tool != nullptr ? Phase::Quiet : Phase::Idle;
}

void TipState::Forget()
{
    Enter(nullptr);
}

void TipState::Forget(const void* tool)
{
    if (tool == m_tool)
    {
        Forget();
    }
    if (tool == m_next)
    {
        m_next = nullptr;
    }
}

} // namespace vorn
