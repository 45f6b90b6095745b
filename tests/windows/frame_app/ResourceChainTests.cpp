#include "frame/VornStrings.h"
#include "framework/include/afxwin.h"

#include <gtest/gtest.h>

TEST(ResourceChain, FindsTheLibrarysTextsForTheHost)
{
    CString text;
    ASSERT_TRUE(AfxLoadString(IDS_VORN_LIBRARY, text));
    EXPECT_STREQ(text, "Vornwald common library");
    EXPECT_EQ(AfxFindStringResourceHandle(IDS_VORN_LIBRARY), GetModuleHandleA("VornCommon.dll"));
}

TEST(ResourceChain, LeavesUnknownTextsUnfound)
{
    CString text;
    EXPECT_FALSE(AfxLoadString(60999, text));
    EXPECT_EQ(AfxFindStringResourceHandle(60999), nullptr);
}
