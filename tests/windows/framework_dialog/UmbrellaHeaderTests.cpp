// Programs know the framework by these headers alone.
#include <afxwin.h>

#include <afxcmn.h>
#include <afxdlgs.h>

#include <gtest/gtest.h>

#include <type_traits>

TEST(UmbrellaHeaders, BringTheDialogsAndControls)
{
    EXPECT_TRUE((std::is_base_of_v<CWnd, CDialog>));
    EXPECT_TRUE((std::is_base_of_v<CDialog, CCommonDialog>));
    for (CRuntimeClass* type : {RUNTIME_CLASS(CStatic), RUNTIME_CLASS(CButton), RUNTIME_CLASS(CEdit),
                                RUNTIME_CLASS(CListBox), RUNTIME_CLASS(CComboBox), RUNTIME_CLASS(CScrollBar),
                                RUNTIME_CLASS(CListCtrl), RUNTIME_CLASS(CSliderCtrl), RUNTIME_CLASS(CToolTipCtrl)})
        EXPECT_TRUE(type->IsDerivedFrom(RUNTIME_CLASS(CWnd))) << type->m_lpszClassName;
    EXPECT_TRUE(RUNTIME_CLASS(CFileDialog)->IsDerivedFrom(RUNTIME_CLASS(CCommonDialog)));
}

TEST(UmbrellaHeaders, ClassesKeepTheirDocumentedNames)
{
    EXPECT_STREQ(RUNTIME_CLASS(CDialog)->m_lpszClassName, "CDialog");
    EXPECT_STREQ(RUNTIME_CLASS(CPrintDialog)->m_lpszClassName, "CPrintDialog");
}
