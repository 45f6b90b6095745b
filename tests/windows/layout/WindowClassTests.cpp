#include "framework/include/afxdlgs.h"
#include "toolkit/ResizableDialogBar.h"
#include "toolkit/layout/LayoutDialog.h"
#include "toolkit/layout/LayoutFormView.h"
#include "toolkit/layout/LayoutPropertyPage.h"
#include "toolkit/layout/LayoutPropertySheet.h"

#include <gtest/gtest.h>

#include <type_traits>

// What the windows that lay themselves out are, and how they are made.

using namespace LayoutManagement;

namespace
{

/// A window of the base class for everybody, a layout for its own class alone.
template <class Window, class Base>
constexpr bool kIsLaidOut = std::is_convertible_v<Window*, Base*>&& std::is_base_of_v<LayoutMgr, Window> &&
                            !std::is_convertible_v<Window*, LayoutMgr*>;

static_assert(kIsLaidOut<LayoutDialog, ToolTipDlg> && std::is_convertible_v<ToolTipDlg*, IconDlg*>);
static_assert(kIsLaidOut<LayoutDialogBar, ToolTipDlgBar> && std::is_convertible_v<ToolTipDlgBar*, CDialogBar*>);
static_assert(kIsLaidOut<LayoutFormView, CFormView>);
static_assert(kIsLaidOut<LayoutPropertyPage, ToolTipPropertyPage> &&
              std::is_convertible_v<ToolTipPropertyPage*, CPropertyPage*>);
static_assert(kIsLaidOut<LayoutPropertySheet, CPropertySheet>);
static_assert(kIsLaidOut<ResizableDialogBar, LayoutDialogBar>);

static_assert(std::is_constructible_v<LayoutDialog, UINT, CWnd*, LPCSTR, bool, bool>);
static_assert(std::is_constructible_v<LayoutDialog, LPCTSTR, CWnd*, LPCSTR, bool, bool>);
static_assert(std::is_constructible_v<LayoutFormView, UINT, LPCSTR>);
static_assert(std::is_constructible_v<LayoutPropertyPage>);
static_assert(std::is_constructible_v<LayoutPropertyPage, UINT, UINT>);
static_assert(std::is_constructible_v<LayoutPropertyPage, LPCTSTR, UINT>);
static_assert(std::is_constructible_v<LayoutPropertySheet, UINT, CWnd*, UINT, LPCSTR, bool>);
static_assert(std::is_constructible_v<LayoutPropertySheet, LPCTSTR, CWnd*, UINT, LPCSTR, bool>);

/// Lets a window of any of the classes tell what its layout is before anything was declared.
template <class Window>
class Fresh : public Window
{
public:
    using Window::Window;

    void ExpectFresh()
    {
        EXPECT_EQ(5, this->m_sizeRootBorderX);
        EXPECT_EQ(5, this->m_sizeRootBorderY);
        EXPECT_FALSE(this->LayoutLocked());
        EXPECT_FALSE(this->m_paneRoot.IsValid());
        EXPECT_EQ(CRect(0, 0, 0, 0), this->GetRect()) << "without a window";
    }
};

} // namespace

TEST(LaidWindowClasses, AreKnownAtRunTimeByTheirBases)
{
    EXPECT_TRUE(RUNTIME_CLASS(LayoutDialog)->IsDerivedFrom(RUNTIME_CLASS(ToolTipDlg)));
    EXPECT_TRUE(RUNTIME_CLASS(LayoutDialog)->IsDerivedFrom(RUNTIME_CLASS(CDialog)));
    EXPECT_TRUE(RUNTIME_CLASS(LayoutDialogBar)->IsDerivedFrom(RUNTIME_CLASS(CControlBar)));
    EXPECT_TRUE(RUNTIME_CLASS(LayoutFormView)->IsDerivedFrom(RUNTIME_CLASS(CView)));
    EXPECT_TRUE(RUNTIME_CLASS(LayoutPropertyPage)->IsDerivedFrom(RUNTIME_CLASS(CPropertyPage)));
    EXPECT_TRUE(RUNTIME_CLASS(LayoutPropertySheet)->IsDerivedFrom(RUNTIME_CLASS(CPropertySheet)));
    EXPECT_TRUE(RUNTIME_CLASS(ResizableDialogBar)->IsDerivedFrom(RUNTIME_CLASS(LayoutDialogBar)));
}

TEST(LaidWindowClasses, BeginWithBordersOfFiveUnlockedAndWithoutPanes)
{
    Fresh<LayoutDialog>(1U, nullptr, nullptr).ExpectFresh();
    Fresh<LayoutDialogBar>().ExpectFresh();
    Fresh<LayoutPropertyPage>().ExpectFresh();
    Fresh<LayoutPropertySheet>("Planning", nullptr, 0U, nullptr).ExpectFresh();
    Fresh<ResizableDialogBar>().ExpectFresh();
}
