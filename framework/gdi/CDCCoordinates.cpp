#include "framework/gdi/CDC.h"
#include <cstdlib>

namespace
{
/// Units of 0.01 mm in an inch and in a millimetre.
constexpr int kHimetricPerInch = 2540;
constexpr int kHimetricPerMillimetre = 100;

struct Ratio
{
    int numerator;
    int denominator;
};

struct SizeRatio
{
    Ratio x;
    Ratio y;
};

void Scale(SIZE& size, const SizeRatio& ratio)
{
    size.cx = ::MulDiv(size.cx, ratio.x.numerator, ratio.x.denominator);
    size.cy = ::MulDiv(size.cy, ratio.y.numerator, ratio.y.denominator);
}

SizeRatio Inverse(const SizeRatio& ratio)
{
    return {{ratio.x.denominator, ratio.x.numerator}, {ratio.y.denominator, ratio.y.numerator}};
}

/// Device units per logical unit, without direction.
SizeRatio DevicePerLogical(const CDC& dc)
{
    const CSize viewport = dc.GetViewportExt();
    const CSize window = dc.GetWindowExt();
    return {{std::abs(static_cast<int>(viewport.cx)), std::abs(static_cast<int>(window.cx))},
            {std::abs(static_cast<int>(viewport.cy)), std::abs(static_cast<int>(window.cy))}};
}

/// Himetric units per device unit: by the physical size in the fixed metric and English modes, by the
/// logical inch in the others.
SizeRatio HimetricPerDevice(const CDC& dc)
{
    const int mode = dc.GetMapMode();
    if (mode >= MM_LOMETRIC && mode <= MM_TWIPS)
        return {{dc.GetDeviceCaps(HORZSIZE) * kHimetricPerMillimetre, dc.GetDeviceCaps(HORZRES)},
                {dc.GetDeviceCaps(VERTSIZE) * kHimetricPerMillimetre, dc.GetDeviceCaps(VERTRES)}};
    return {{kHimetricPerInch, dc.GetDeviceCaps(LOGPIXELSX)}, {kHimetricPerInch, dc.GetDeviceCaps(LOGPIXELSY)}};
}
} // namespace

void CDC::DPtoLP(LPPOINT points, int count) const
{
    ::DPtoLP(m_hAttribDC, points, count);
}

void CDC::DPtoLP(LPRECT rect) const
{
    DPtoLP(reinterpret_cast<LPPOINT>(rect), 2);
}

void CDC::DPtoLP(LPSIZE size) const
{
    Scale(*size, Inverse(DevicePerLogical(*this)));
}

void CDC::LPtoDP(LPPOINT points, int count) const
{
    ::LPtoDP(m_hAttribDC, points, count);
}

void CDC::LPtoDP(LPRECT rect) const
{
    LPtoDP(reinterpret_cast<LPPOINT>(rect), 2);
}

void CDC::LPtoDP(LPSIZE size) const
{
    Scale(*size, DevicePerLogical(*this));
}

void CDC::DPtoHIMETRIC(LPSIZE size) const
{
    Scale(*size, HimetricPerDevice(*this));
}

void CDC::HIMETRICtoDP(LPSIZE size) const
{
    Scale(*size, Inverse(HimetricPerDevice(*this)));
}

void CDC::LPtoHIMETRIC(LPSIZE size) const
{
    LPtoDP(size);
    DPtoHIMETRIC(size);
}

void CDC::HIMETRICtoLP(LPSIZE size) const
{
    HIMETRICtoDP(size);
    DPtoLP(size);
}
