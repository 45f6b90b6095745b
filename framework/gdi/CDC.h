#pragma once

/// @file
/// Device contexts: where drawing goes, and every drawing call.
#include "framework/core/CString.h"
#include "framework/core/Export.h"
#include "framework/core/Geometry.h"
#include "framework/core/Object.h"

class CBitmap;
class CBrush;
class CFont;
class CGdiObject;
class CPalette;
class CPen;
class CRgn;
class CWnd;

/// A device context.
///
/// An object holds two handles, which are mostly the same: output goes to `m_hDC`, questions about attributes
/// (colours, modes, text sizes, mapping) go to `m_hAttribDC`. Calls that set an attribute or select an object
/// set it in both; their result is that of the attribute context. This lets a drawing routine write into one
/// context (a metafile, a preview) while it measures in another (a printer).
///
/// Coordinates are logical unless a call says otherwise. Calls on an object without a context fail with the
/// system's failure value. Calls that select an object return the one selected before, which is a temporary
/// object when nobody owns it: select it back before the thread becomes idle.
///
/// Ownership is like that of CGdiObject: an object deletes the context that it created or was attached to.
class HOSTFRAMEWORK_API CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)
public:
    CDC();
    ~CDC() override;

    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    /// Output context. Set it through Attach(), Detach() and SetOutputDC() only.
    HDC m_hDC = nullptr;
    /// Attribute context. Set it through SetAttribDC() and ReleaseAttribDC() only.
    HDC m_hAttribDC = nullptr;
    /// TRUE while this object stands for a print job.
    BOOL m_bPrinting = FALSE;

    /// @name Construction and handles
    /// @{
    operator HDC() const;
    /// The output context; null when empty.
    HDC GetSafeHdc() const;
    /// The window a display context belongs to; null for others.
    CWnd* GetWindow() const;

    /// The object that owns `dc`, or a temporary one; null for null.
    static CDC* PASCAL FromHandle(HDC dc);
    /// Frees this thread's temporary objects; called while idle.
    static void PASCAL DeleteTempMap();

    /// Takes ownership of `dc`, for output and attributes. @return FALSE for null or when a context is held.
    BOOL Attach(HDC dc);
    /// Gives up both contexts without deleting. @return the output context.
    HDC Detach();
    virtual void SetAttribDC(HDC dc);
    /// For objects whose output context is not attached (a metafile that records); the handle is not owned.
    virtual void SetOutputDC(HDC dc);
    virtual void ReleaseAttribDC();
    virtual void ReleaseOutputDC();

    /// Context of a device; `initData` is a device mode or null.
    BOOL CreateDC(LPCSTR driverName, LPCSTR deviceName, LPCSTR output, const void* initData);
    /// Information context: questions only.
    BOOL CreateIC(LPCSTR driverName, LPCSTR deviceName, LPCSTR output, const void* initData);
    /// Memory context that fits `dc` (null: the screen), with a bitmap of one pixel selected.
    BOOL CreateCompatibleDC(CDC* dc);
    /// Deletes the context. Only for created ones; a window's context is released instead.
    BOOL DeleteDC();
    /// @}

    /// @name Saved states and facts
    /// @{
    /// @return number of the saved state in the attribute context, 0 on failure.
    virtual int SaveDC();
    /// @param savedDC what SaveDC() returned, or -1 for the last state. With two contexts use -1 or states saved in
    /// pairs.
    virtual BOOL RestoreDC(int savedDC);
    BOOL ResetDC(const DEVMODE* deviceMode);
    int GetDeviceCaps(int index) const;
    UINT SetBoundsRect(const RECT* rect, UINT flags);
    UINT GetBoundsRect(LPRECT rect, UINT flags);
    /// Whether this object stands for a print job.
    BOOL IsPrinting() const;
    BOOL EnumObjects(int objectType, int(CALLBACK* function)(LPVOID, LPARAM), LPARAM data);
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point);
    /// @}

    /// @name Selection (each returns what was selected before, null on failure)
    /// @{
    virtual CGdiObject* SelectStockObject(int index);
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    virtual CFont* SelectObject(CFont* font);
    /// Memory contexts only; a bitmap can be in one context at a time.
    CBitmap* SelectObject(CBitmap* bitmap);
    /// Makes a copy of the region the clip region. @return SIMPLEREGION, ..., ERROR.
    int SelectObject(CRgn* region);
    /// Chooses by the class of the object. @return null for a region, which has no former object.
    CGdiObject* SelectObject(CGdiObject* object);
    CPalette* SelectPalette(CPalette* palette, BOOL forceBackground);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CPalette* GetCurrentPalette() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    UINT RealizePalette();
    void UpdateColors();
    COLORREF GetNearestColor(COLORREF color) const;
    /// Grey pattern brush of every second pixel; owned by the framework. Null when it cannot be made.
    static CBrush* PASCAL GetHalftoneBrush();
    /// @}

    /// @name Attributes (each setter returns the former value)
    /// @{
    COLORREF GetBkColor() const;
    int GetBkMode() const;
    int GetPolyFillMode() const;
    int GetROP2() const;
    int GetStretchBltMode() const;
    COLORREF GetTextColor() const;
    COLORREF GetDCBrushColor() const;
    COLORREF GetDCPenColor() const;
    virtual COLORREF SetBkColor(COLORREF color);
    int SetBkMode(int mode);
    int SetPolyFillMode(int mode);
    int SetROP2(int mode);
    int SetStretchBltMode(int mode);
    virtual COLORREF SetTextColor(COLORREF color);
    COLORREF SetDCBrushColor(COLORREF color);
    COLORREF SetDCPenColor(COLORREF color);
    BOOL GetColorAdjustment(LPCOLORADJUSTMENT adjustment) const;
    BOOL SetColorAdjustment(const COLORADJUSTMENT* adjustment);
    int GetGraphicsMode() const;
    int SetGraphicsMode(int mode);
    BOOL GetWorldTransform(XFORM& transform) const;
    BOOL SetWorldTransform(const XFORM& transform);
    BOOL ModifyWorldTransform(const XFORM& transform, DWORD mode);
    DWORD GetLayout() const;
    DWORD SetLayout(DWORD layout);
    /// @}

    /// @name Mapping (each setter returns the former value)
    /// @{
    int GetMapMode() const;
    CPoint GetViewportOrg() const;
    CSize GetViewportExt() const;
    CPoint GetWindowOrg() const;
    CSize GetWindowExt() const;
    virtual int SetMapMode(int mode);
    virtual CPoint SetViewportOrg(int x, int y);
    virtual CPoint OffsetViewportOrg(int width, int height);
    virtual CSize SetViewportExt(int cx, int cy);
    virtual CSize ScaleViewportExt(int xNumerator, int xDenominator, int yNumerator, int yDenominator);
    virtual CPoint SetWindowOrg(int x, int y);
    virtual CPoint OffsetWindowOrg(int width, int height);
    virtual CSize SetWindowExt(int cx, int cy);
    virtual CSize ScaleWindowExt(int xNumerator, int xDenominator, int yNumerator, int yDenominator);
    CPoint SetViewportOrg(POINT point);
    CSize SetViewportExt(SIZE size);
    CPoint SetWindowOrg(POINT point);
    CSize SetWindowExt(SIZE size);
    /// @}

    /// @name Coordinates
    /// Rectangles are taken as two points. HIMETRIC units are 0.01 mm, sizes without direction: the result of a
    /// conversion is by the device's pixels per inch (2540 units), in the fixed mapping modes by the mapping.
    /// @{
    void DPtoLP(LPPOINT points, int count = 1) const;
    void DPtoLP(LPRECT rect) const;
    void DPtoLP(LPSIZE size) const;
    void LPtoDP(LPPOINT points, int count = 1) const;
    void LPtoDP(LPRECT rect) const;
    void LPtoDP(LPSIZE size) const;
    void DPtoHIMETRIC(LPSIZE size) const;
    void HIMETRICtoDP(LPSIZE size) const;
    void LPtoHIMETRIC(LPSIZE size) const;
    void HIMETRICtoLP(LPSIZE size) const;
    /// @}

    /// @name Regions and clipping
    /// @{
    BOOL FillRgn(CRgn* region, CBrush* brush);
    BOOL FrameRgn(CRgn* region, CBrush* brush, int width, int height);
    BOOL InvertRgn(CRgn* region);
    BOOL PaintRgn(CRgn* region);
    int GetClipBox(LPRECT rect) const;
    BOOL PtVisible(int x, int y) const;
    BOOL PtVisible(POINT point) const;
    BOOL RectVisible(const RECT* rect) const;
    /// Null takes the clip region away.
    int SelectClipRgn(CRgn* region);
    /// Combines with the present clip region (RGN_AND, ...).
    int SelectClipRgn(CRgn* region, int mode);
    int ExcludeClipRect(int left, int top, int right, int bottom);
    int ExcludeClipRect(const RECT* rect);
    int ExcludeUpdateRgn(CWnd* window);
    int IntersectClipRect(int left, int top, int right, int bottom);
    int IntersectClipRect(const RECT* rect);
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE size);
    /// @}

    /// @name Lines
    /// @{
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point);
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point);
    BOOL Arc(int left, int top, int right, int bottom, int xStart, int yStart, int xEnd, int yEnd);
    BOOL Arc(const RECT* rect, POINT start, POINT end);
    BOOL ArcTo(int left, int top, int right, int bottom, int xStart, int yStart, int xEnd, int yEnd);
    BOOL ArcTo(const RECT* rect, POINT start, POINT end);
    /// Angles in degrees, counter-clockwise from the x axis.
    BOOL AngleArc(int x, int y, int radius, float startAngle, float sweepAngle);
    int GetArcDirection() const;
    int SetArcDirection(int direction);
    BOOL Polyline(const POINT* points, int count);
    BOOL PolylineTo(const POINT* points, int count);
    BOOL PolyPolyline(const POINT* points, const DWORD* polylineCounts, int polylineCount);
    BOOL PolyDraw(const POINT* points, const BYTE* types, int count);
    /// `count` is one more than a multiple of three.
    BOOL PolyBezier(const POINT* points, int count);
    /// `count` is a multiple of three; the curve starts at the current position.
    BOOL PolyBezierTo(const POINT* points, int count);
    /// @}

    /// @name Rectangles
    /// @{
    void FillRect(const RECT* rect, CBrush* brush);
    void FrameRect(const RECT* rect, CBrush* brush);
    void InvertRect(const RECT* rect);
    /// Fills with one colour; leaves the background colour as it was.
    void FillSolidRect(const RECT* rect, COLORREF color);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF color);
    /// Frame of one pixel: left and top in one colour, right and bottom in the other. The upper right and the lower
    /// left corner pixels are of the second colour.
    void Draw3dRect(const RECT* rect, COLORREF topLeft, COLORREF bottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight);
    BOOL DrawEdge(LPRECT rect, UINT edge, UINT flags);
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state);
    void DrawFocusRect(const RECT* rect);
    /// Redraws a tracking frame: takes the former one (null: none) away by drawing it again, draws the new one.
    /// Null brushes mean the halftone brush.
    void DrawDragRect(const RECT* rect, SIZE thickness, const RECT* last, SIZE lastThickness, CBrush* brush = nullptr,
                      CBrush* lastBrush = nullptr);
    BOOL DrawIcon(int x, int y, HICON icon);
    BOOL DrawIcon(POINT point, HICON icon);
    BOOL DrawState(POINT point, SIZE size, HBITMAP bitmap, UINT flags, HBRUSH brush = nullptr);
    BOOL DrawState(POINT point, SIZE size, CBitmap* bitmap, UINT flags, CBrush* brush = nullptr);
    BOOL DrawState(POINT point, SIZE size, HICON icon, UINT flags, HBRUSH brush = nullptr);
    BOOL DrawState(POINT point, SIZE size, HICON icon, UINT flags, CBrush* brush);
    BOOL DrawState(POINT point, SIZE size, LPCSTR text, UINT flags, BOOL prefixText = TRUE, int textLength = 0,
                   HBRUSH brush = nullptr);
    BOOL DrawState(POINT point, SIZE size, LPCSTR text, UINT flags, BOOL prefixText, int textLength, CBrush* brush);
    BOOL DrawState(POINT point, SIZE size, DRAWSTATEPROC drawProc, LPARAM data, UINT flags, HBRUSH brush = nullptr);
    BOOL DrawState(POINT point, SIZE size, DRAWSTATEPROC drawProc, LPARAM data, UINT flags, CBrush* brush);
    /// @}

    /// @name Filled shapes
    /// @{
    BOOL Rectangle(int left, int top, int right, int bottom);
    BOOL Rectangle(const RECT* rect);
    BOOL RoundRect(int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight);
    BOOL RoundRect(const RECT* rect, POINT ellipse);
    BOOL Ellipse(int left, int top, int right, int bottom);
    BOOL Ellipse(const RECT* rect);
    BOOL Chord(int left, int top, int right, int bottom, int xStart, int yStart, int xEnd, int yEnd);
    BOOL Chord(const RECT* rect, POINT start, POINT end);
    BOOL Pie(int left, int top, int right, int bottom, int xStart, int yStart, int xEnd, int yEnd);
    BOOL Pie(const RECT* rect, POINT start, POINT end);
    BOOL Polygon(const POINT* points, int count);
    BOOL PolyPolygon(const POINT* points, const INT* polygonCounts, int polygonCount);
    BOOL GradientFill(TRIVERTEX* vertices, ULONG vertexCount, void* mesh, ULONG meshCount, DWORD mode);
    /// @}

    /// @name Pixels and bitmaps
    /// A null source context is passed on as none.
    /// @{
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(POINT point) const;
    COLORREF SetPixel(int x, int y, COLORREF color);
    COLORREF SetPixel(POINT point, COLORREF color);
    BOOL SetPixelV(int x, int y, COLORREF color);
    BOOL SetPixelV(POINT point, COLORREF color);
    BOOL PatBlt(int x, int y, int width, int height, DWORD rop);
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, DWORD rop);
    BOOL StretchBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                    int sourceHeight, DWORD rop);
    BOOL MaskBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, CBitmap& mask, int xMask,
                 int yMask, DWORD rop);
    BOOL PlgBlt(LPPOINT corners, CDC* source, int xSource, int ySource, int width, int height, CBitmap& mask, int xMask,
                int yMask);
    BOOL TransparentBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                        int sourceHeight, UINT transparentColor);
    BOOL AlphaBlend(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                    int sourceHeight, BLENDFUNCTION blend);
    BOOL FloodFill(int x, int y, COLORREF boundary);
    BOOL ExtFloodFill(int x, int y, COLORREF color, UINT type);
    /// @}

    /// @name Text
    /// Lengths are in characters; -1 means "up to the terminator". A null text is an empty one.
    /// @{
    virtual BOOL TextOut(int x, int y, LPCSTR text, int length);
    BOOL TextOut(int x, int y, const CString& text);
    virtual BOOL ExtTextOut(int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length, LPINT widths);
    BOOL ExtTextOut(int x, int y, UINT options, const RECT* rect, const CString& text, LPINT widths);
    virtual CSize TabbedTextOut(int x, int y, LPCSTR text, int length, int tabCount, LPINT tabs, int tabOrigin);
    CSize TabbedTextOut(int x, int y, const CString& text, int tabCount, LPINT tabs, int tabOrigin);
    /// @return height of the text drawn (or measured, with DT_CALCRECT), 0 on failure.
    virtual int DrawText(LPCSTR text, int length, LPRECT rect, UINT format);
    int DrawText(const CString& text, LPRECT rect, UINT format);
    virtual int DrawTextEx(LPSTR text, int length, LPRECT rect, UINT format, LPDRAWTEXTPARAMS parameters);
    int DrawTextEx(const CString& text, LPRECT rect, UINT format, LPDRAWTEXTPARAMS parameters);
    virtual BOOL GrayString(CBrush* brush, BOOL(CALLBACK* output)(HDC, LPARAM, int), LPARAM data, int length, int x,
                            int y, int width, int height);

    /// Extents in the attribute context.
    CSize GetTextExtent(LPCSTR text, int length) const;
    CSize GetTextExtent(const CString& text) const;
    CSize GetTabbedTextExtent(LPCSTR text, int length, int tabCount, LPINT tabs) const;
    CSize GetTabbedTextExtent(const CString& text, int tabCount, LPINT tabs) const;
    /// Extents in the output context.
    CSize GetOutputTextExtent(LPCSTR text, int length) const;
    CSize GetOutputTextExtent(const CString& text) const;
    CSize GetOutputTabbedTextExtent(LPCSTR text, int length, int tabCount, LPINT tabs) const;
    CSize GetOutputTabbedTextExtent(const CString& text, int tabCount, LPINT tabs) const;
    BOOL GetTextExtentExPoint(LPCSTR text, int length, int maxExtent, LPINT fit, LPINT widths, LPSIZE size) const;

    UINT GetTextAlign() const;
    UINT SetTextAlign(UINT flags);
    int GetTextFace(int count, LPSTR faceName) const;
    int GetTextFace(CString& faceName) const;
    BOOL GetTextMetrics(LPTEXTMETRIC metrics) const;
    BOOL GetOutputTextMetrics(LPTEXTMETRIC metrics) const;
    UINT GetOutlineTextMetrics(UINT size, LPOUTLINETEXTMETRIC metrics) const;
    int SetTextJustification(int breakExtra, int breakCount);
    int GetTextCharacterExtra() const;
    int SetTextCharacterExtra(int extra);
    DWORD GetCharacterPlacement(LPCSTR text, int count, int maxExtent, LPGCP_RESULTS results, DWORD flags) const;
    DWORD GetCharacterPlacement(const CString& text, int maxExtent, LPGCP_RESULTS results, DWORD flags) const;
    BOOL GetCharWidth(UINT first, UINT last, LPINT widths) const;
    BOOL GetCharWidth(UINT first, UINT last, float* widths) const;
    BOOL GetOutputCharWidth(UINT first, UINT last, LPINT widths) const;
    BOOL GetCharABCWidths(UINT first, UINT last, LPABC widths) const;
    BOOL GetCharABCWidths(UINT first, UINT last, LPABCFLOAT widths) const;
    DWORD SetMapperFlags(DWORD flags);
    CSize GetAspectRatioFilter() const;
    int GetKerningPairs(int count, LPKERNINGPAIR pairs) const;
    DWORD GetFontData(DWORD table, DWORD offset, LPVOID data, DWORD count) const;
    DWORD GetFontLanguageInfo() const;
    DWORD GetGlyphOutline(UINT character, UINT format, LPGLYPHMETRICS metrics, DWORD size, LPVOID data,
                          const MAT2* matrix) const;
    BOOL ScrollDC(int dx, int dy, const RECT* scroll, const RECT* clip, CRgn* updateRegion, LPRECT updateRect);
    /// @}

    /// @name Print jobs
    /// @{
    int StartDoc(LPDOCINFO document);
    /// @param documentName shown in the print queue.
    int StartDoc(LPCSTR documentName);
    int StartPage();
    int EndPage();
    int EndDoc();
    int AbortDoc();
    int SetAbortProc(BOOL(CALLBACK* function)(HDC, int));
    /// Whether the job may go on, asked of the abort procedure; TRUE without one.
    BOOL QueryAbort() const;
    virtual int Escape(int escape, int count, LPCSTR input, LPVOID output);
    int Escape(int escape, int inputSize, LPCSTR input, int outputSize, LPSTR output);
    int DrawEscape(int escape, int inputSize, LPCSTR input);
    /// @}

    /// @name Metafiles
    /// @{
    BOOL PlayMetaFile(HMETAFILE metafile);
    BOOL PlayMetaFile(HENHMETAFILE metafile, const RECT* bounds);
    BOOL AddMetaFileComment(UINT size, const BYTE* data);
    /// @}

    /// @name Paths
    /// @{
    BOOL BeginPath();
    BOOL EndPath();
    BOOL AbortPath();
    BOOL CloseFigure();
    BOOL FillPath();
    BOOL StrokePath();
    BOOL StrokeAndFillPath();
    BOOL FlattenPath();
    BOOL WidenPath();
    float GetMiterLimit() const;
    BOOL SetMiterLimit(float limit);
    /// @return number of points; -1 on failure. With a count of 0 nothing is stored.
    int GetPath(LPPOINT points, LPBYTE types, int count) const;
    BOOL SelectClipPath(int mode);
    /// @}

private:
    BOOL(CALLBACK* m_pAbortProc)(HDC, int) = nullptr;
};
