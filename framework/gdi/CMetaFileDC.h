#pragma once

/// @file
/// Contexts that record drawing into a metafile.
#include "framework/gdi/CDC.h"

/// Records drawing. After creation give it a context to measure in with SetAttribDC(); without one, questions fail.
class HOSTFRAMEWORK_API CMetaFileDC : public CDC
{
    DECLARE_DYNAMIC(CMetaFileDC)
public:
    CMetaFileDC();
    ~CMetaFileDC() override;

    /// Old format, in memory (null) or in a file.
    BOOL Create(LPCSTR fileName = nullptr);
    /// Enhanced format. @param reference device to match (null: the screen). @param bounds in 0.01 mm, null: as drawn.
    BOOL CreateEnhanced(CDC* reference, LPCSTR fileName, const RECT* bounds, LPCSTR description);
    /// Ends recording. @return the metafile, which the caller deletes; null on failure.
    HMETAFILE Close();
    HENHMETAFILE CloseEnhanced();

    void SetAttribDC(HDC dc) override;
    /// A recording context keeps its output: these do nothing.
    void SetOutputDC(HDC dc) override;
    void ReleaseOutputDC() override;
};
