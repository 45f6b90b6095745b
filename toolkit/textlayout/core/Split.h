#pragma once

#include "toolkit/textlayout/core/Item.h"

namespace TextLayout
{

/// Two children side by side or one above the other. The first takes its share, the second the rest behind what the
/// first really used.
///
/// The share is a text: "|" divides the width, "-" the height ("|" goes before), and a number says how much the first
/// child gets: "-34" is 34 units, "40%|" 40 percent, rounded. A number behind ">" is the least: "|30%>100". With it the
/// share is never more than there is; a share of 0 is all there is.
class VORNCOMMON_API Split : public Item
{
public:
    Split(LPCSTR split, Item* first, Item* second);

    bool ComputeSize(CDC* dc) override;
    /// @return false also for a share without direction, for other than two children and for a missing space.
    bool ComputeLayout(CDC* dc) override;
    /// The sum of the children's sizes along the split, the larger one across.
    bool CalcSize(CDC* dc, CSize& size, int& fontHeight) override;

private:
    /// Shares the space out.
    bool Divide(const Lay& lay);
};

} // namespace TextLayout
