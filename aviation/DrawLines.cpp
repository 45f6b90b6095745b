#include "aviation/Drawing.h"
#include "aviation/core/PerfLine.h"
#include "framework/gdi/CDC.h"

namespace
{

class ContextPen final : public vorn::LinePen
{
public:
    explicit ContextPen(CDC& dc) : m_dc(dc)
    {
    }

    void MoveTo(const CPoint& point) override
    {
        m_dc.MoveTo(point);
    }
    void LineTo(const CPoint& point) override
    {
        m_dc.LineTo(point);
    }

private:
    CDC& m_dc;
};

} // namespace

void DrawPerfLine(CDC* dc, CPoint* points, int count, double spacing, int dash1, int gap1, int dash2, int gap2)
{
    if (dc != nullptr)
    {
        ContextPen pen(*dc);
        vorn::DrawPerfRuns(points, count, spacing, {dash1, gap1, dash2, gap2}, pen);
    }
}

HGDIOBJ SelectObject(CDC* dc, HGDIOBJ obj)
{
    return ::SelectObject(dc != nullptr ? dc->GetSafeHdc() : HDC{}, obj);
}
