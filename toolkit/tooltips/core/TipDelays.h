#pragma once

/// @file
/// The times of a tip, in milliseconds, and its timers.
namespace vorn
{

/// The timer of the wait before a tip appears.
inline constexpr unsigned kTipWaitTimer = 1;
/// The timer of a shown tip's looks.
inline constexpr unsigned kTipLookTimer = 2;

/// How often a shown tip looks where the cursor is, and by how much its shown time grows with each look.
inline constexpr int kTipPollMs = 500;

/// Which time; the numbers are those of the system's tooltips.
enum TipDelay : unsigned long
{
    kTipAutomatic = 0,
    kTipReshow = 1,
    kTipAutoPop = 2, ///< how long a tip stays
    kTipInitial = 3  ///< how long the cursor rests in a tool before its tip appears
};

class TipDelays
{
public:
    /// 0 for a time that is none of the four.
    int Get(unsigned long which) const;
    /// Negative times and unknown ones change nothing. The automatic time sets all four.
    void Set(unsigned long which, int milliseconds);
    /// Initial time t, auto-pop 10 t, reshow t / 5. What an int cannot hold becomes its largest value.
    void SetAutomatic(unsigned milliseconds);

private:
    int m_automatic = 0;
    int m_reshow = 0;
    int m_autoPop = 15000;
    int m_initial = 500;
};

} // namespace vorn
