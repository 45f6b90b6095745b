#include "framework/gdi/CDC.h"

BOOL CDC::Rectangle(int left, int top, int right, int bottom)
{
    return ::Rectangle(m_hDC, left, top, right, bottom);
}

BOOL CDC::Rectangle(const RECT* rect)
{
    return Rectangle(rect->left, rect->top, rect->right, rect->bottom);
}

BOOL CDC::RoundRect(int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight)
{
    return ::RoundRect(m_hDC, left, top, right, bottom, ellipseWidth, ellipseHeight);
}

BOOL CDC::RoundRect(const RECT* rect, POINT ellipse)
{
    return RoundRect(rect->left, rect->top, rect->right, rect->bottom, ellipse.x, ellipse.y);
}

BOOL CDC::Ellipse(int left, int top, int right, int bottom)
{
    return ::Ellipse(m_hDC, left, top, right, bottom);
}

BOOL CDC::Ellipse(const RECT* rect)
{
    return Ellipse(rect->left, rect->top, rect->right, rect->bottom);
}

BOOL CDC::Chord(int left, int top, int right, int bottom, int xStart, int yStart, int xEnd, int yEnd)
{
    return ::Chord(m_hDC, left, top, right, bottom, xStart, yStart, xEnd, yEnd);
}

BOOL CDC::Chord(const RECT* rect, POINT start, POINT end)
{
    return Chord(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

BOOL CDC::Pie(int left, int top, int right, int bottom, int xStart, int yStart, int xEnd, int yEnd)
{
    return ::Pie(m_hDC, left, top, right, bottom, xStart, yStart, xEnd, yEnd);
}

BOOL CDC::Pie(const RECT* rect, POINT start, POINT end)
{
    return Pie(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

BOOL CDC::Polygon(const POINT* points, int count)
{
    return ::Polygon(m_hDC, points, count);
}

BOOL CDC::PolyPolygon(const POINT* points, const INT* polygonCounts, int polygonCount)
{
    return ::PolyPolygon(m_hDC, points, polygonCounts, polygonCount);
}

BOOL CDC::GradientFill(TRIVERTEX* vertices, ULONG vertexCount, void* mesh, ULONG meshCount, DWORD mode)
{
    return ::GdiGradientFill(m_hDC, vertices, vertexCount, mesh, meshCount, mode);
}
