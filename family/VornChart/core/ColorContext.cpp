#include "family/VornChart/core/ColorContext.h"

#include <array>
#include <atomic>

namespace
{

constexpr COLORREF Rgb(unsigned red, unsigned green, unsigned blue)
{
    return red | green << 8 | blue << 16;
}

using Colors = std::array<COLORREF, 3>; // day, night, dusk

constexpr std::array<Colors, APPCOLOR_COUNT> kColors = {{
    {Rgb(247, 245, 238), Rgb(10, 7, 5), Rgb(52, 50, 48)},       // background
    {Rgb(232, 226, 205), Rgb(24, 16, 11), Rgb(72, 67, 58)},     // land
    {Rgb(186, 212, 232), Rgb(9, 10, 18), Rgb(42, 56, 72)},      // water
    {Rgb(128, 128, 124), Rgb(92, 54, 40), Rgb(132, 128, 120)},  // grid
    {Rgb(150, 0, 120), Rgb(214, 72, 104), Rgb(226, 120, 200)},  // route
    {Rgb(200, 0, 90), Rgb(240, 72, 96), Rgb(255, 150, 200)},    // active leg
    {Rgb(16, 40, 120), Rgb(232, 140, 40), Rgb(255, 214, 120)},  // aircraft
    {Rgb(20, 20, 24), Rgb(214, 122, 92), Rgb(236, 228, 210)},   // text
    {Rgb(255, 255, 255), Rgb(0, 0, 0), Rgb(24, 24, 26)},        // text halo
    {Rgb(196, 104, 0), Rgb(224, 128, 0), Rgb(255, 190, 70)},    // highlight
    {Rgb(190, 20, 0), Rgb(255, 56, 16), Rgb(255, 112, 84)},     // warning
    {Rgb(0, 84, 180), Rgb(168, 96, 128), Rgb(128, 190, 250)},   // selection
    {Rgb(24, 70, 150), Rgb(164, 124, 126), Rgb(140, 172, 220)}, // airspace
    {Rgb(72, 88, 108), Rgb(128, 82, 66), Rgb(160, 166, 172)},   // airway
    {Rgb(132, 84, 36), Rgb(118, 70, 28), Rgb(184, 148, 104)},   // terrain
    {Rgb(0, 100, 92), Rgb(176, 100, 72), Rgb(116, 206, 190)},   // overlay
}};

} // namespace

ColorContext* ColorContext::Instance()
{
    static ColorContext instance;
    return &instance;
}

int ColorContext::GetCurrentState() const
{
    // Drawing threads ask for colours while the user interface changes the light.
    return std::atomic_ref<int>(const_cast<int&>(m_state)).load(std::memory_order_relaxed);
}

void ColorContext::SetCurrentState(int state)
{
    if (state >= COLORSTATE_DAY && state <= COLORSTATE_DUSK)
    {
        std::atomic_ref<int>(m_state).store(state, std::memory_order_relaxed);
    }
}

COLORREF ColorContext::GetColor(AppColorsType type) const
{
    const int index = type;
    if (index < 0 || index >= APPCOLOR_COUNT)
    {
        return Rgb(0, 0, 0);
    }
    return kColors[static_cast<std::size_t>(index)][static_cast<std::size_t>(GetCurrentState())];
}
