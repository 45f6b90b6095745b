#include "files/DIB.h"
#include "files/core/ImageConvert.h"
#include "files/core/ImagePixels.h"
#include "files/core/NoThrow.h"

#include <utility>

BITMAPINFO* DIB::BitmapInfo() const
{
    return m_info.get();
}

unsigned char* DIB::Bits() const
{
    return m_bits;
}

int DIB::Width() const
{
    return m_info ? static_cast<int>(m_info->bmiHeader.biWidth) : 0;
}

int DIB::Height() const
{
    return m_info ? vorn::RowsOf(m_info->bmiHeader) : 0;
}

int DIB::Depth() const
{
    return m_depth;
}

int DIB::BytesPerScan() const
{
    return m_bytesPerScan;
}

HBITMAP DIB::DIBSect() const
{
    return m_section;
}

int DIB::Usage() const
{
    return m_usage;
}

void DIB::Usage(int usage)
{
    m_usage = usage;
}

void DIB::ImageNumber(int number)
{
    m_imageNumber = number;
}

int DIB::ImageNumber() const
{
    return m_imageNumber;
}

DWORD DIB::GetPixel(int x, int y) const
{
    return vorn::PixelAt(View(), x, y);
}

void DIB::PutPixel(int x, int y, DWORD value)
{
    vorn::SetPixelAt(Canvas(), x, y, value);
}

void DIB::GetRGB(int x, int y, BYTE& r, BYTE& g, BYTE& b) const
{
    const vorn::Rgb color = vorn::ColorAt(View(), x, y);
    r = color.red;
    g = color.green;
    b = color.blue;
}

bool DIB::Blt(int x, int y, DIB* source)
{
    return source && vorn::NoThrow(false,
                                   [&]
                                   {
                                       return vorn::PutImage(Canvas(), x, y, source->View());
                                   });
}

bool DIB::To24Bit(DIB* target) const
{
    if (!target)
        return false;
    if (target == this && Depth() == 24 && !m_section && View().hasRows)
        return true;
    // The memory of a picture that was made before serves again: fresh pages cost more than all pixels.
    const int signedHeight = m_info ? static_cast<int>(m_info->bmiHeader.biHeight) : 0;
    const bool isAsMade = !target->m_section && target->m_usage == DIB_RGB_COLORS &&
                          vorn::IsAsMade(target->Block(), target->TableEnd(), Width(), signedHeight);
    if (isAsMade && vorn::PutAs24Bit(target->Canvas(), View()))
        return true;
    vorn::PackedImage converted = vorn::To24Bit(View());
    return !converted.IsEmpty() && target->Adopt(std::move(converted));
}
