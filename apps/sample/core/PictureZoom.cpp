#include "apps/sample/core/PictureZoom.h"

#include <algorithm>
#include <cmath>

namespace vorn
{

namespace
{

double Placed(double at, double extent, int window)
{
    return extent <= window ? std::floor((window - extent) / 2) : std::clamp(at, window - extent, 0.0);
}

int PixelsOf(int pixels, double zoom)
{
    return std::max(1, static_cast<int>(std::lround(pixels * zoom)));
}

} // namespace

void PictureZoom::SetPicture(Extents picture)
{
    m_picture = picture;
    Fit();
}

void PictureZoom::SetWindow(Extents window)
{
    const Extents before = m_window;
    m_window = window;
    if (m_isFitted)
        return Fit();
    m_left += (window.width - before.width) / 2.0;
    m_top += (window.height - before.height) / 2.0;
    KeepInside();
}

void PictureZoom::Fit()
{
    m_isFitted = true;
    if (m_picture.width < 1 || m_picture.height < 1)
        return;
    const double across = static_cast<double>(m_window.width) / m_picture.width;
    const double down = static_cast<double>(m_window.height) / m_picture.height;
    m_zoom = std::clamp(std::min(across, down), kLeast, kMost);
    KeepInside();
}

void PictureZoom::ShowActualSize()
{
    ZoomBy(1 / m_zoom);
}

void PictureZoom::ZoomBy(double factor)
{
    ZoomBy(factor, m_window.width / 2.0, m_window.height / 2.0);
}

void PictureZoom::ZoomBy(double factor, double x, double y)
{
    double zoom = std::clamp(m_zoom * factor, kLeast, kMost);
    if (std::abs(zoom - 1) < 1e-6)
        zoom = 1; // steps up and down again end where they began
    m_left = x - (x - m_left) / m_zoom * zoom;
    m_top = y - (y - m_top) / m_zoom * zoom;
    m_zoom = zoom;
    m_isFitted = false;
    KeepInside();
}

void PictureZoom::PanBy(double right, double down)
{
    m_left += right;
    m_top += down;
    KeepInside();
}

void PictureZoom::KeepInside()
{
    const Extents scaled = Scaled();
    m_left = Placed(m_left, scaled.width, m_window.width);
    m_top = Placed(m_top, scaled.height, m_window.height);
}

double PictureZoom::Zoom() const
{
    return m_zoom;
}

bool PictureZoom::IsFitted() const
{
    return m_isFitted;
}

bool PictureZoom::CanPan() const
{
    const Extents scaled = Scaled();
    return scaled.width > m_window.width || scaled.height > m_window.height;
}

double PictureZoom::Left() const
{
    return m_left;
}

double PictureZoom::Top() const
{
    return m_top;
}

Extents PictureZoom::Scaled() const
{
    return {PixelsOf(m_picture.width, m_zoom), PixelsOf(m_picture.height, m_zoom)};
}

} // namespace vorn
