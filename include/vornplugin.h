#ifndef VORNPLUGIN_H
#define VORNPLUGIN_H

/**
 * @file
 * The interface of projection plug-ins: 32-bit dynamic libraries that export some of the functions below under these
 * plain names, with the C calling convention. For C and C++; define VORNPLUGIN_BUILD in the plug-in itself and the
 * functions are exported as they are declared here. A module definition file is needed only where a compiler would
 * decorate the names.
 *
 * QueryProjectionName and CreateProjection must be there. What else is missing has a harmless answer, given at each.
 *
 * Angles are degrees, north and east positive; map coordinates are Earth radii (6378137 m) at scale 1, x to the right
 * and y up, the origin at the map pole; the skew is clockwise. Longitudes may arrive as any number of degrees; NaN
 * and infinities do not arrive. Functions that return int answer 1 for done or yes and 0 for refused or no; refusing,
 * they leave their results alone. No C++ exception may leave a plug-in. Everything is called from one thread.
 */

#ifdef __cplusplus
extern "C"
{
#endif

#if defined(_WIN32) && defined(VORNPLUGIN_BUILD)
#define VORNPLUGIN_API __declspec(dllexport)
#else
#define VORNPLUGIN_API
#endif

#ifdef _WIN32
#define VORNPLUGIN_CALL __cdecl
#else
#define VORNPLUGIN_CALL
#endif

    /** One projection object of the plug-in, never 0 for a live one. */
    typedef unsigned long VornProjection;

    /** Makes a projection; it ends with DestroyProjection. Required. */
    VORNPLUGIN_API VornProjection VORNPLUGIN_CALL CreateProjection(void);

    /** Display name in the system code page, valid until the next call. Called before any projection is made. Required.
     */
    VORNPLUGIN_API const char* VORNPLUGIN_CALL QueryProjectionName(void);

    /** Called once on a new projection, not on clones. Missing: 1. */
    VORNPLUGIN_API int VORNPLUGIN_CALL InitProjection(VornProjection projection);

    /** Missing: nothing happens. */
    VORNPLUGIN_API void VORNPLUGIN_CALL DestroyProjection(VornProjection projection);

    /**
     * Moves the state between the projection and a buffer: reads it when `read` is not 0, writes it otherwise. Advances
     * *cursor and reduces *remaining by what it moved, never by more than *remaining. Missing: 0.
     */
    VORNPLUGIN_API int VORNPLUGIN_CALL ReadWrite(VornProjection projection, char** cursor, unsigned long* remaining,
                                                 int read);

    /** Where the map is looked at. Missing: 0, 0. */
    VORNPLUGIN_API void VORNPLUGIN_CALL GetCenterLatLon(VornProjection projection, double* lat, double* lon);

    /** Turns map coordinates around the origin by the skew, and back. Missing: they stay. */
    VORNPLUGIN_API void VORNPLUGIN_CALL Skew(VornProjection projection, double* x, double* y);
    VORNPLUGIN_API void VORNPLUGIN_CALL UnSkew(VornProjection projection, double* x, double* y);

    /** Missing: 0; the two setters do nothing. */
    VORNPLUGIN_API double VORNPLUGIN_CALL GetSkew(VornProjection projection);
    VORNPLUGIN_API void VORNPLUGIN_CALL SetSkew(VornProjection projection, double degrees);
    VORNPLUGIN_API void VORNPLUGIN_CALL OffsetSkew(VornProjection projection, double degrees);

    /** From a position to unskewed map coordinates and back; 0 where the map has no such point. Missing: 0. */
    VORNPLUGIN_API int VORNPLUGIN_CALL LLtoXY(VornProjection projection, double lat, double lon, double* x, double* y);
    VORNPLUGIN_API int VORNPLUGIN_CALL XYtoLL(VornProjection projection, double x, double y, double* lat, double* lon);

    /** A copy with the same state; 0 when there can be none. Missing: 0. */
    VORNPLUGIN_API VornProjection VORNPLUGIN_CALL Clone(VornProjection projection);

    /** The rectangle around the map. Missing: 0, 0, 0, 0. */
    VORNPLUGIN_API void VORNPLUGIN_CALL MinMaxMapXY(VornProjection projection, double* minX, double* minY, double* maxX,
                                                    double* maxY);

    /** Builds the projection around a position; moves the centre to it too. Missing: 0. */
    VORNPLUGIN_API int VORNPLUGIN_CALL SetMapPole(VornProjection projection, double lat, double lon);

    /** Moves the centre. Missing: 0. */
    VORNPLUGIN_API int VORNPLUGIN_CALL PanTo(VornProjection projection, double lat, double lon);

    /** Map coordinates of the centre. Missing: 0. */
    VORNPLUGIN_API int VORNPLUGIN_CALL CenterMapXY(VornProjection projection, double* x, double* y);

    /** What kind of map it is. Missing: 0, but IsZoomable 1. */
    VORNPLUGIN_API int VORNPLUGIN_CALL IsCylindrical(VornProjection projection);
    VORNPLUGIN_API int VORNPLUGIN_CALL IsConic(VornProjection projection);
    VORNPLUGIN_API int VORNPLUGIN_CALL IsConformal(VornProjection projection);
    VORNPLUGIN_API int VORNPLUGIN_CALL IsZoomable(VornProjection projection);
    VORNPLUGIN_API int VORNPLUGIN_CALL Is3D(VornProjection projection);

    /** Parameters of the user's choice, from index 0. Missing: none. */
    VORNPLUGIN_API int VORNPLUGIN_CALL NumParams(VornProjection projection);
    VORNPLUGIN_API const char* VORNPLUGIN_CALL ParamName(VornProjection projection, int index);
    VORNPLUGIN_API double VORNPLUGIN_CALL GetParamValue(VornProjection projection, int index);
    VORNPLUGIN_API int VORNPLUGIN_CALL SetParamValue(VornProjection projection, int index, double value);

    /** What lies behind the map, 0x00BBGGRR. Missing: white. */
    VORNPLUGIN_API unsigned long VORNPLUGIN_CALL BackgroundColor(VornProjection projection);

    /** The map's outline, a polygon without a doubled last point. Missing: none. */
    VORNPLUGIN_API int VORNPLUGIN_CALL NMapLimitPts(VornProjection projection);
    VORNPLUGIN_API int VORNPLUGIN_CALL MapLimitPt(VornProjection projection, int index, double* x, double* y);

    /** The scale k along the parallel at a position, and k - 1. Missing: 1 and 0. */
    VORNPLUGIN_API double VORNPLUGIN_CALL ScaleMult(VornProjection projection, double lat, double lon);
    VORNPLUGIN_API double VORNPLUGIN_CALL ScaleError(VornProjection projection, double lat, double lon);

#ifdef __cplusplus
}
#endif

#endif
