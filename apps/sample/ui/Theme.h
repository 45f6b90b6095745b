#pragma once

#include <VornCommon.h>

/// Colours, fonts and distances of the sample's pages for one device: the screen or a printer.
class Theme
{
public:
    /// @param dotsPerInch vertical resolution of the device that the theme is for
    explicit Theme(int dotsPerInch);

    Theme(const Theme&) = delete;
    Theme& operator=(const Theme&) = delete;

    /// A distance given in pixels of a 96-dpi screen, in this device's pixels.
    int Px(int at96) const;

    COLORREF window = RGB(0xEE, 0xF1, 0xF5);
    COLORREF card = RGB(0xFF, 0xFF, 0xFF);
    COLORREF border = RGB(0xD3, 0xDA, 0xE3);
    COLORREF stripe = RGB(0xF6, 0xF8, 0xFB);
    COLORREF band = RGB(0x12, 0x2B, 0x48);
    COLORREF bandText = RGB(0xFF, 0xFF, 0xFF);
    COLORREF bandMuted = RGB(0xA9, 0xBD, 0xD6);
    COLORREF bandActive = RGB(0x23, 0x4B, 0x79);
    COLORREF text = RGB(0x1D, 0x27, 0x33);
    COLORREF muted = RGB(0x6B, 0x77, 0x86);
    COLORREF accent = RGB(0x0B, 0x62, 0xB5);
    COLORREF good = RGB(0x1B, 0x7A, 0x43);
    COLORREF bad = RGB(0xB3, 0x26, 0x1E);

    CBrush windowBrush; ///< of the colour `window`, for controls that stand on it

    CFont title;   ///< the application's name in the band
    CFont heading; ///< a card's title
    CFont body;    ///< cells
    CFont bold;    ///< group headings and column titles
    CFont note;    ///< notes

private:
    void MakeFont(CFont& font, int points, int weight) const;

    int m_dotsPerInch;
};
