#pragma once

#include "framework/core/Export.h"
#include "framework/core/Geometry.h"
#include "framework/core/Object.h"

#include <windows.h>

#include <commctrl.h>

class CBitmap;
class CDC;

/// A list of pictures of one size. The object owns the list it created or attached and destroys it; the controls that
/// show the pictures only borrow it. Pictures are numbered from 0; functions that answer a picture answer -1 on
/// failure.
class HOSTFRAMEWORK_API CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

public:
    HIMAGELIST m_hImageList = nullptr;

    CImageList();
    ~CImageList() override;
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;

    /// An empty list for pictures of cx by cy pixels; `flags` are ILC_ values.
    BOOL Create(int cx, int cy, UINT flags, int initial, int grow);
    /// From a bitmap resource cut into pictures of width cx; `maskColour` becomes transparent.
    BOOL Create(UINT bitmapId, int cx, int grow, COLORREF maskColour);
    BOOL Create(LPCTSTR bitmapName, int cx, int grow, COLORREF maskColour);
    /// A copy of another list.
    BOOL Create(CImageList* source);
    BOOL DeleteImageList();

    /// Takes over a list; FALSE if there is none or the object already has one.
    BOOL Attach(HIMAGELIST list);
    /// Gives the list away.
    HIMAGELIST Detach();
    operator HIMAGELIST() const;
    HIMAGELIST GetSafeHandle() const;
    static CImageList* FromHandle(HIMAGELIST list);
    static CImageList* FromHandlePermanent(HIMAGELIST list);

    int GetImageCount() const;
    BOOL SetImageCount(UINT count);
    BOOL GetImageInfo(int index, IMAGEINFO* info) const;
    COLORREF SetBkColor(COLORREF colour);
    COLORREF GetBkColor() const;
    BOOL SetOverlayImage(int index, int overlay);

    int Add(CBitmap* image, CBitmap* mask);
    int Add(CBitmap* image, COLORREF maskColour);
    int Add(HICON icon);
    BOOL Remove(int index);
    BOOL Replace(int index, CBitmap* image, CBitmap* mask);
    int Replace(int index, HICON icon);
    HICON ExtractIcon(int index);
    /// `style` holds ILD_ flags.
    BOOL Draw(CDC* dc, int index, POINT at, UINT style);
};
