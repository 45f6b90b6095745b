#pragma once

#include <VornCommon.h>

#include <array>
#include <vector>

namespace vorn::preferences
{

/// The factors of red, green and blue by night.
using NightFactors = std::array<double, 3>;

/// The factors in force, or about to be: the stored ones.
NightFactors StoredFactors();

COLORREF Dimmed(COLORREF color, const NightFactors& factors);

/// All colours of the chart in one of its states.
std::vector<COLORREF> ColorsOf(int state);

/// A field of swatches, each a colour with its dimmed form at its right.
class ColorPreview : public CWnd
{
public:
    void Show(std::vector<COLORREF> colors, const NightFactors& factors);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    CRect Swatch(const CRect& area, std::size_t index) const;

    std::vector<COLORREF> m_colors;
    NightFactors m_factors{};
};

} // namespace vorn::preferences
