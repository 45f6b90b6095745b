#include "tests/support/Canvas.h"

#include "framework/include/afxext.h"

#include <gtest/gtest.h>

using namespace vorn::test;

TEST(Metafile, RecordsAndPlays)
{
    CMetaFileDC recorder;
    ASSERT_TRUE(recorder.Create());
    EXPECT_EQ(nullptr, recorder.m_hAttribDC) << "there is nothing to measure in yet";
    recorder.PatBlt(0, 0, 2, 1, BLACKNESS);
    HMETAFILE metafile = recorder.Close();
    ASSERT_NE(nullptr, metafile);
    EXPECT_EQ(nullptr, recorder.m_hDC);
    Canvas canvas(3, 1);
    EXPECT_TRUE(canvas.dc.PlayMetaFile(metafile));
    EXPECT_EQ("##.\n", canvas.Picture());
    ::DeleteMetaFile(metafile);
}

TEST(Metafile, EnhancedOnesAreScaledIntoTheirFrame)
{
    CMetaFileDC recorder;
    ASSERT_TRUE(recorder.CreateEnhanced(nullptr, nullptr, nullptr, "test\0picture\0"));
    const BYTE comment[4] = {1, 2, 3, 4};
    EXPECT_TRUE(recorder.AddMetaFileComment(4, comment));
    CBrush red(kRed);
    recorder.FillRect(CRect(0, 0, 50, 50), &red);
    HENHMETAFILE metafile = recorder.CloseEnhanced();
    ASSERT_NE(nullptr, metafile);
    Canvas canvas(6, 2);
    EXPECT_TRUE(canvas.dc.PlayMetaFile(metafile, CRect(0, 0, 4, 4)));
    EXPECT_EQ(kRed, canvas.At(1, 1));
    EXPECT_EQ(kWhite, canvas.At(5, 1));
    ::DeleteEnhMetaFile(metafile);
}

TEST(Metafile, MeasuresInTheContextItWasGiven)
{
    Canvas canvas(1, 1);
    CMetaFileDC recorder;
    ASSERT_TRUE(recorder.Create());
    recorder.SetAttribDC(canvas.dc);
    EXPECT_EQ(canvas.dc.GetTextExtent("H", 1), recorder.GetTextExtent("H", 1));
    EXPECT_EQ(canvas.dc.GetDeviceCaps(LOGPIXELSX), recorder.GetDeviceCaps(LOGPIXELSX));
    HDC output = recorder.m_hDC;
    recorder.SetOutputDC(canvas.dc);
    recorder.ReleaseOutputDC();
    EXPECT_EQ(output, recorder.m_hDC) << "a recording keeps its output";
    recorder.ReleaseAttribDC();
    ::DeleteMetaFile(recorder.Close());
}

TEST(Metafile, LeftOpenRecordingsAreGivenUp)
{
    HDC plain = nullptr;
    HDC enhanced = nullptr;
    {
        CMetaFileDC first;
        CMetaFileDC second;
        first.Create();
        second.CreateEnhanced(nullptr, nullptr, nullptr, nullptr);
        plain = first;
        enhanced = second;
        EXPECT_FALSE(first.Create()) << "one recording at a time";
    }
    EXPECT_EQ(0U, ::GetObjectType(plain));
    EXPECT_EQ(0U, ::GetObjectType(enhanced));
}

TEST(PrintCalls, FailOnAnEmptyContext)
{
    CDC dc;
    EXPECT_LE(dc.StartDoc("name"), 0);
    EXPECT_LE(dc.StartDoc(static_cast<LPDOCINFO>(nullptr)), 0);
    EXPECT_LE(dc.StartPage(), 0);
    EXPECT_LE(dc.EndPage(), 0);
    EXPECT_LE(dc.EndDoc(), 0);
    EXPECT_LE(dc.AbortDoc(), 0);
    EXPECT_TRUE(dc.QueryAbort()) << "no procedure: nobody aborts";
    EXPECT_LE(dc.Escape(QUERYESCSUPPORT, 0, nullptr, nullptr), 0);
    EXPECT_LE(dc.Escape(QUERYESCSUPPORT, 0, nullptr, 0, nullptr), 0);
    EXPECT_LE(dc.DrawEscape(0, 0, nullptr), 0);
}
