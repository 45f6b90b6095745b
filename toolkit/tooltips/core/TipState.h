#pragma once

/// @file
/// What a tip does when the mouse moves, when time passes and when something is clicked, without windows and timers.
namespace vorn
{

/// The tools are told apart by address alone; null is no tool.
class TipState
{
public:
    enum class Phase
    {
        Idle,    ///< the mouse is in no tool
        Waiting, ///< in a tool, whose tip is still to appear: timer 1 runs
        Shown,   ///< the tip is there: timer 2 runs
        Quiet,   ///< the tip has gone and does not come back before the mouse has left the tool
        InfoBox  ///< the tip was clicked and has become a box: no timer counts
    };

    Phase Now() const;
    bool IsVisible() const;
    const void* Tool() const;
    /// How long the tip has been there, counted in looks of 500 ms, not by the clock.
    int ShownMs() const;

    /// The mouse has moved in a tool. A tip that is there stays: the next look will see.
    /// @return whether phase or tool changed, so that a timer starts (Waiting) or stops (Idle)
    bool MouseMoved(const void* tool);
    /// The initial delay has passed, the cursor being in a tool. @return whether the tip appears
    bool Waited(const void* cursorIn);
    /// A look at a shown tip. Goes to Quiet when its time has passed, else, when the cursor has left, to Idle, or to
    /// Waiting when the mouse has moved into another tool meanwhile.
    /// @return whether the tip stays
    bool Looked(const void* cursorIn, bool overTip, int autoPopMs);
    /// The shown tip becomes an info box. @return false in any other phase
    bool OpenInfoBox();
    /// Takes the tip away until the mouse leaves the tool.
    void Hush();
    /// Forgets the tool: it is gone, or tips are switched off.
    void Forget();
    /// Forgets a tool that may be waiting behind the shown one, too.
    void Forget(const void* tool);

private:
    void Enter(const void* tool);

    Phase m_phase = Phase::Idle;
    const void* m_tool = nullptr;
    const void* m_next = nullptr; ///< where the mouse moved while a tip was there
    int m_shownMs = 0;
};

} // namespace vorn
