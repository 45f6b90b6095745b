#pragma once

#include "family/TarnUtil/core/ColorMap.h"
#include "frame/core/Export.h"
#include "framework/gdi/CBrush.h"
#include "framework/gdi/CPen.h"

#include <memory>

/// The colours of elevation bands as brushes, and pens where they are wanted: one of each a band, ready to fill and
/// outline terrain with. The colours are palette-relative (PALETTERGB).
class VORNCOMMON_API TerrainColorMap : public ColorMap
{
public:
    /// No bands yet. `makePens`: see GenPens().
    explicit TerrainColorMap(bool makePens);
    /// Brushes of its own in the same colours, and pens if `other` has them.
    TerrainColorMap(const TerrainColorMap& other);
    TerrainColorMap& operator=(const TerrainColorMap& other);
    ~TerrainColorMap() override;

    /// Makes the colours as ColorMap does, and new brushes and pens for them; the former ones go, and whoever has one
    /// selected in a device context must have taken it out. No bands for a count below 1 and a null pointer.
    void GenColorMap(int count, long* elevations) override;
    void GenColorMap(int count, double* elevations) override;

    /// Whether the next GenColorMap() makes pens; those that are there stay until then.
    void GenPens(bool makePens);

    /// The brush of a band, owned by this object; made anew when its handle has been deleted. Null outside of 0 to
    /// count - 1.
    CBrush* GetBrush(int index);
    /// The same for the pen, solid and one pixel wide. Null, too, when there are no pens.
    CPen* GetPen(int index);

private:
    void MakeTools(int count, bool withPens);
    void CopyTools(const TerrainColorMap& other);
    void DropTools();

    std::unique_ptr<CPen[]> m_pens;
    std::unique_ptr<CBrush[]> m_brushes;
    bool m_makePens;
    int m_count = 0; ///< Of brushes, and of pens if any.
};
