#pragma once

#include "family/VornChart/core/ColorContext.h"
#include "frame/core/Export.h"
#include "framework/core/Object.h"

#include <memory>
#include <windows.h>

/// The pens, brushes and fonts of the process, made when they are first asked for: equal requests get the same handle.
/// The handles stay the manager's and must not be deleted.
///
/// Pens and brushes stay until PurgeResources() or FreeInst(). Of the fonts only the 60 made last stay, however often
/// the older ones are asked for: use a font's handle at once, do not keep it across other requests.
///
/// An object that the system cannot make gives a null handle, which stays in place of the pen or brush; a font that
/// failed is tried again. Colours of the application are those in force at the time of the request, so that another
/// colour state gives other objects; so are the system's.
///
/// Any thread may ask. Inst() is to be called by the main thread first, FreeInst() when no other thread draws any more.
class VORNCOMMON_API ResMgr : public CObject
{
public:
    /// The one manager, which the first call makes. It is not deleted when the process ends.
    static ResMgr* Inst();
    /// Deletes the manager with every object. @return whether there was one.
    static BOOL FreeInst();
    ~ResMgr() override;

    /// @name Pens, with the arguments of CreatePen. "Std" pens are solid and one pixel wide.
    /// @{
    HPEN GetPen(int style, int width, COLORREF color);
    HPEN GetStdPen(COLORREF color);
    HPEN GetSysPen(int style, int width, int sysColorIndex);
    HPEN GetStdSysPen(int sysColorIndex);
    HPEN GetAppPen(int style, int width, AppColorsType color);
    HPEN GetStdAppPen(AppColorsType color);
    HPEN GetNullPen();
    /// @}

    /// @name Brushes, with the members of a LOGBRUSH. They are solid when only a colour is given.
    /// @{
    HBRUSH GetBrush(UINT style, COLORREF color, LONG hatch);
    HBRUSH GetBrush(COLORREF color);
    HBRUSH GetSysBrush(int sysColorIndex);
    HBRUSH GetAppBrush(AppColorsType color);
    /// Not the colour that `color` names: the number itself is the COLORREF of the brush. Hosts rely on that.
    HBRUSH GetAppBrush(UINT style, AppColorsType color, LONG hatch);
    HBRUSH GetNullBrush();
    /// @}

    /// @name Fonts, equal when all members of their LOGFONT are (the face as a text of at most 31 characters)
    /// @{
    /// Null for null.
    HFONT GetFont(const LOGFONTA* description);
    /// A null face is an empty one.
    HFONT GetFont(int height, int width, int escapement, int orientation, int weight, BYTE italic, BYTE underline,
                  BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
                  BYTE pitchAndFamily, LPCSTR face);
    /// @}

    /// Pens, brushes and fonts together, those that failed included.
    int GetResourceCount();
    /// Deletes every object; the next requests make new ones. No handle may be selected anywhere.
    void PurgeResources();

private:
    struct Shelves;

    ResMgr();

    static ResMgr* s_instance;

    const std::unique_ptr<Shelves> m_shelves;
    ColorContext* const m_colors;
};
