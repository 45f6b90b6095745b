#include "framework/gdi/CDC.h"

BOOL CDC::PlayMetaFile(HMETAFILE metafile)
{
    return ::PlayMetaFile(m_hDC, metafile);
}

BOOL CDC::PlayMetaFile(HENHMETAFILE metafile, const RECT* bounds)
{
    return ::PlayEnhMetaFile(m_hDC, metafile, bounds);
}

BOOL CDC::AddMetaFileComment(UINT size, const BYTE* data)
{
    return ::GdiComment(m_hDC, size, data);
}
