#include "framework/include/afxwin.h"

#include <gtest/gtest.h>

TEST(WindowClasses, ShareOneRegistrationForTheSameFeatures)
{
    const std::string first = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_CROSS));
    const std::string same = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_CROSS));
    const std::string other = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_WAIT));
    EXPECT_EQ(first, same);
    EXPECT_NE(first, other);
    EXPECT_EQ(first.rfind("Afx:", 0), 0U);
    WNDCLASS info = {};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), first.c_str(), &info));
    EXPECT_EQ(info.style, static_cast<UINT>(CS_DBLCLKS));
    EXPECT_EQ(info.hCursor, ::LoadCursor(nullptr, IDC_CROSS));
    EXPECT_EQ(info.hbrBackground, nullptr);
}

TEST(WindowClasses, AreRegisteredOnceUnderANameOfTheHost)
{
    WNDCLASS windowClass = {};
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.lpszClassName = "VornTestOwnClass";
    EXPECT_TRUE(AfxRegisterClass(&windowClass));
    EXPECT_TRUE(AfxRegisterClass(&windowClass));
    windowClass.lpszClassName = "";
    EXPECT_FALSE(AfxRegisterClass(&windowClass));
}
