#pragma once

#include "aviation/core/ColorText.h"
#include "aviation/core/DistributePoints.h"
#include "aviation/core/Morse.h"
#include "aviation/core/SmoothLine.h"
#include "frame/core/Export.h"
#include "framework/core/BaseTypes.h"
#include "framework/core/Geometry.h"

class CDC;

/// @file
/// What the chart views draw with: smoothed and evenly spaced lines, dashed performance lines, Morse idents, the
/// night's colours and the texts that colours are stored as.
///
/// A null device context draws nothing. Nothing here fails aloud.

/// Draws a line of `count` points dashed, with the context's pen. Points (-1, -1) part the line into runs. Each run is
/// spaced by `spacing` pixels as DistributePoints() does, and the pattern, counted in these steps, begins anew: a dash
/// of `dash1` steps, a gap of `gap1`, a dash of `dash2`, a gap of `gap2`, and again. Negative parts count as 0; a
/// pattern without length draws nothing.
VORNCOMMON_API void DrawPerfLine(CDC* dc, CPoint* points, int count, double spacing, int dash1, int gap1, int dash2,
                                 int gap2);

/// Draws a text's Morse code as blocks of `unit` pixels height from `y` downward; see MorseWidth() for their widths.
/// `align` is a text alignment: 2 (right) ends the code before `x`, 6 (centre) halves it there, any other value begins
/// it at `x`. Draws nothing for a text with anything but letters of either case, or a unit below 1.
VORNCOMMON_API void DrawMorse(CDC* dc, COLORREF color, int x, int y, int unit, int align, const char* text);

/// The factors of red, green and blue by night. They are read from the host's settings once ("Colors", "NVRedScale",
/// "NVGreenScale", "NVBlueScale", each "0.4" unless stored), and stored again as they were read. A stored red factor
/// below 0 counts as not read.
VORNCOMMON_API void GetNVScales(double& red, double& green, double& blue);

/// The factors are read anew at their next use: for a host whose user has just changed them.
VORNCOMMON_API void ForgetNVScales();

/// The colour by night: each component times its factor, cut to a whole number and masked to 8 bits. The result is
/// palette-relative (top byte 2), whatever `c` was.
VORNCOMMON_API COLORREF MakeNightVision(COLORREF c);
/// The same for three components in place.
VORNCOMMON_API void MakeNightVision(BYTE& red, BYTE& green, BYTE& blue);
/// The colour by day of one by night, nearly: each component divided by its factor. 0 where the factor is 0.
VORNCOMMON_API COLORREF MakeNormalColor(COLORREF c);

/// Whether the chart library's colours are in their night state; dusk is not.
VORNCOMMON_API bool IsNightVision();

/// Selects an object by its handle into the context's output handle (a null handle when `dc` is null).
/// @return the object selected before; null on failure.
VORNCOMMON_API HGDIOBJ SelectObject(CDC* dc, HGDIOBJ obj);
