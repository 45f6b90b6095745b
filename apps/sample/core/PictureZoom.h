#pragma once

namespace vorn
{

/// A width and a height in pixels.
struct Extents
{
    int width = 0;
    int height = 0;
    bool operator==(const Extents&) const = default;
};

/// Where a picture stands in a window: how large a pixel of it is, and where its top left corner is. A picture that is
/// smaller than the window stands in the middle of it, a larger one leaves no gap at the window's edges.
class PictureZoom
{
public:
    /// A pixel of the picture on the screen, at the least and at the most.
    static constexpr double kLeast = 1.0 / 64;
    static constexpr double kMost = 32;

    /// Shows another picture as a whole.
    void SetPicture(Extents picture);
    /// What is fitted stays fitted; else the middle of the window stays where it is in the picture.
    void SetWindow(Extents window);

    /// As large as the window lets it be.
    void Fit();
    /// A pixel for a pixel, about the window's middle.
    void ShowActualSize();
    /// By a factor above 0, about a point of the window, which keeps its place in the picture.
    void ZoomBy(double factor, double x, double y);
    void ZoomBy(double factor);
    void PanBy(double right, double down);

    double Zoom() const;
    bool IsFitted() const;
    /// Whether a part of the picture is outside the window.
    bool CanPan() const;
    /// The corner, in the window's pixels.
    double Left() const;
    double Top() const;
    /// The whole picture on the screen, at least one pixel each way.
    Extents Scaled() const;

private:
    void KeepInside();

    Extents m_picture;
    Extents m_window;
    double m_zoom = 1;
    double m_left = 0;
    double m_top = 0;
    bool m_isFitted = true;
};

} // namespace vorn
