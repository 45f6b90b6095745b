#include "framework/controls/CStatic.h"

#include "framework/controls/ControlMessage.h"

using vorn::AsHandle;
using vorn::Ask;

IMPLEMENT_DYNAMIC(CStatic, CWnd)

CStatic::CStatic() = default;

BOOL CStatic::Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("STATIC", text, style, rect, parent, id);
}

HBITMAP CStatic::SetBitmap(HBITMAP bitmap)
{
    return AsHandle<HBITMAP>(Ask(*this, STM_SETIMAGE, IMAGE_BITMAP, bitmap));
}

HBITMAP CStatic::GetBitmap() const
{
    return AsHandle<HBITMAP>(Ask(*this, STM_GETIMAGE, IMAGE_BITMAP));
}

HICON CStatic::SetIcon(HICON icon)
{
    return AsHandle<HICON>(Ask(*this, STM_SETICON, vorn::AsWParam(icon)));
}

HICON CStatic::GetIcon() const
{
    return AsHandle<HICON>(Ask(*this, STM_GETICON));
}

HCURSOR CStatic::SetCursor(HCURSOR cursor)
{
    return AsHandle<HCURSOR>(Ask(*this, STM_SETIMAGE, IMAGE_CURSOR, cursor));
}

HCURSOR CStatic::GetCursor()
{
    return AsHandle<HCURSOR>(Ask(*this, STM_GETIMAGE, IMAGE_CURSOR));
}

HENHMETAFILE CStatic::SetEnhMetaFile(HENHMETAFILE file)
{
    return AsHandle<HENHMETAFILE>(Ask(*this, STM_SETIMAGE, IMAGE_ENHMETAFILE, file));
}

HENHMETAFILE CStatic::GetEnhMetaFile() const
{
    return AsHandle<HENHMETAFILE>(Ask(*this, STM_GETIMAGE, IMAGE_ENHMETAFILE));
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
