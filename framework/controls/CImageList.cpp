#include "framework/controls/CImageList.h"

#include "framework/controls/ControlMessage.h"
#include "framework/gdi/CBitmap.h"
#include "framework/gdi/CDC.h"
#include "framework/window/HandleMap.h"
#include "framework/window/ModuleState.h"

#include <new>

IMPLEMENT_DYNCREATE(CImageList, CObject)

namespace
{
struct ImageListTraits
{
    using Object = CImageList;
    using Handle = HIMAGELIST;
    static constexpr vorn::HandleKind kKind = vorn::HandleKind::ImageList;

    static Object* MakeTemporary(Handle handle)
    {
        Object* list = new (std::nothrow) CImageList; // owned by the map until the next idle time
        if (list)
            list->m_hImageList = handle;
        return list;
    }

    static void FreeTemporary(Object* list)
    {
        list->m_hImageList = nullptr;
        delete list; // made by MakeTemporary; the map holds plain pointers
    }
};

vorn::HandleMap<ImageListTraits>& Map()
{
    return vorn::ThreadHandleMap<ImageListTraits>();
}

HBITMAP HandleOf(const CBitmap* bitmap)
{
    return bitmap ? static_cast<HBITMAP>(bitmap->m_hObject) : nullptr;
}
} // namespace

CImageList::CImageList()
{
    vorn::EnsureCommonControls();
}

CImageList::~CImageList()
{
    DeleteImageList();
}

BOOL CImageList::Create(int cx, int cy, UINT flags, int initial, int grow)
{
    return Attach(::ImageList_Create(cx, cy, flags, initial, grow));
}

BOOL CImageList::Create(UINT bitmapId, int cx, int grow, COLORREF maskColour)
{
    return Create(MAKEINTRESOURCEA(bitmapId), cx, grow, maskColour);
}

BOOL CImageList::Create(LPCTSTR bitmapName, int cx, int grow, COLORREF maskColour)
{
    const HINSTANCE module = AfxFindResourceHandle(bitmapName, MAKEINTRESOURCEA(2)); // RT_BITMAP
    return Attach(::ImageList_LoadImageA(module, bitmapName, cx, grow, maskColour, IMAGE_BITMAP, 0));
}

BOOL CImageList::Create(CImageList* source)
{
    return source && Attach(::ImageList_Duplicate(source->m_hImageList));
}

BOOL CImageList::DeleteImageList()
{
    const HIMAGELIST list = Detach();
    return list && ::ImageList_Destroy(list);
}

BOOL CImageList::Attach(HIMAGELIST list)
{
    if (!list || m_hImageList)
        return FALSE;
    m_hImageList = list;
    Map().SetPermanent(list, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    const HIMAGELIST list = m_hImageList;
    if (list)
        Map().RemovePermanent(list);
    m_hImageList = nullptr;
    return list;
}

CImageList::operator HIMAGELIST() const
{
    return m_hImageList;
}

HIMAGELIST CImageList::GetSafeHandle() const
{
    // Callers may ask through a null pointer; the detour keeps the compiler from assuming that they do not.
    const CImageList* volatile self = this;
    const CImageList* list = self;
    return list ? list->m_hImageList : nullptr;
}

CImageList* CImageList::FromHandle(HIMAGELIST list)
{
    return Map().FromHandle(list);
}

CImageList* CImageList::FromHandlePermanent(HIMAGELIST list)
{
    return Map().LookupPermanent(list);
}

int CImageList::GetImageCount() const
{
    return ::ImageList_GetImageCount(m_hImageList);
}

BOOL CImageList::SetImageCount(UINT count)
{
    return ::ImageList_SetImageCount(m_hImageList, count);
}

BOOL CImageList::GetImageInfo(int index, IMAGEINFO* info) const
{
    return ::ImageList_GetImageInfo(m_hImageList, index, info);
}

COLORREF CImageList::SetBkColor(COLORREF colour)
{
    return ::ImageList_SetBkColor(m_hImageList, colour);
}

COLORREF CImageList::GetBkColor() const
{
    return ::ImageList_GetBkColor(m_hImageList);
}

BOOL CImageList::SetOverlayImage(int index, int overlay)
{
    return ::ImageList_SetOverlayImage(m_hImageList, index, overlay);
}

int CImageList::Add(CBitmap* image, CBitmap* mask)
{
    return ::ImageList_Add(m_hImageList, HandleOf(image), HandleOf(mask));
}

int CImageList::Add(CBitmap* image, COLORREF maskColour)
{
    return ::ImageList_AddMasked(m_hImageList, HandleOf(image), maskColour);
}

int CImageList::Add(HICON icon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, -1, icon);
}

BOOL CImageList::Remove(int index)
{
    return ::ImageList_Remove(m_hImageList, index);
}

BOOL CImageList::Replace(int index, CBitmap* image, CBitmap* mask)
{
    return ::ImageList_Replace(m_hImageList, index, HandleOf(image), HandleOf(mask));
}

int CImageList::Replace(int index, HICON icon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, index, icon);
}

HICON CImageList::ExtractIcon(int index)
{
    return ::ImageList_GetIcon(m_hImageList, index, ILD_NORMAL);
}

BOOL CImageList::Draw(CDC* dc, int index, POINT at, UINT style)
{
    return dc && ::ImageList_Draw(m_hImageList, index, dc->GetSafeHdc(), at.x, at.y, style);
}
