#pragma once

#include "family/VornChart/core/Export.h"
#include "framework/core/BaseTypes.h"

/// What a chart colours.
enum AppColorsType : int
{
    APPCOLOR_BACKGROUND = 0, ///< where the chart has nothing
    APPCOLOR_LAND = 1,
    APPCOLOR_WATER = 2,
    APPCOLOR_GRID = 3, ///< meridians and parallels
    APPCOLOR_ROUTE = 4,
    APPCOLOR_ACTIVELEG = 5, ///< the leg of the route that is being flown
    APPCOLOR_AIRCRAFT = 6,  ///< the own aircraft
    APPCOLOR_TEXT = 7,
    APPCOLOR_TEXTHALO = 8, ///< behind the text
    APPCOLOR_HIGHLIGHT = 9,
    APPCOLOR_WARNING = 10,
    APPCOLOR_SELECTION = 11,
    APPCOLOR_AIRSPACE = 12, ///< airspace boundaries
    APPCOLOR_AIRWAY = 13,
    APPCOLOR_TERRAIN = 14, ///< contour lines
    APPCOLOR_OVERLAY = 15, ///< what the user draws on top
    APPCOLOR_COUNT = 16
};

/// The light that colours are made for.
enum ColorState : int
{
    COLORSTATE_DAY = 0,
    COLORSTATE_NIGHT = 1, ///< dark and without much blue, for eyes that are used to the dark
    COLORSTATE_DUSK = 2
};

/// The colours in force in the whole process. Any thread may ask for them, also while another one changes the state;
/// what a thread draws during the change may have colours of both states.
class VORNCHART_API ColorContext
{
public:
    /// The one that the process shares, in the day state at first; made on first use and never null.
    static ColorContext* Instance();

    /// A ColorState.
    int GetCurrentState() const;
    /// Puts another state in force; a number that is no ColorState changes nothing.
    void SetCurrentState(int state);

    /// The colour in the state in force, without a top byte. Black for a type that there is not.
    COLORREF GetColor(AppColorsType type) const;

private:
    int m_state = COLORSTATE_DAY;
};
