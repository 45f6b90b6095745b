#include "framework/gdi/CDC.h"

BOOL CDC::BeginPath()
{
    return ::BeginPath(m_hDC);
}

BOOL CDC::EndPath()
{
    return ::EndPath(m_hDC);
}

BOOL CDC::AbortPath()
{
    return ::AbortPath(m_hDC);
}

BOOL CDC::CloseFigure()
{
    return ::CloseFigure(m_hDC);
}

BOOL CDC::FillPath()
{
    return ::FillPath(m_hDC);
}

BOOL CDC::StrokePath()
{
    return ::StrokePath(m_hDC);
}

BOOL CDC::StrokeAndFillPath()
{
    return ::StrokeAndFillPath(m_hDC);
}

BOOL CDC::FlattenPath()
{
    return ::FlattenPath(m_hDC);
}

BOOL CDC::WidenPath()
{
    return ::WidenPath(m_hDC);
}

float CDC::GetMiterLimit() const
{
    float limit = 0;
    ::GetMiterLimit(m_hDC, &limit);
    return limit;
}

BOOL CDC::SetMiterLimit(float limit)
{
    return ::SetMiterLimit(m_hDC, limit, nullptr);
}

int CDC::GetPath(LPPOINT points, LPBYTE types, int count) const
{
    return ::GetPath(m_hDC, points, types, count);
}

BOOL CDC::SelectClipPath(int mode)
{
    return ::SelectClipPath(m_hDC, mode);
}
