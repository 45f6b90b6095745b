#include "framework/core/Exception.h"
#include "tests/windows/framework_dialog/TestDialogs.h"
#include "tests/windows/framework_dialog/resource.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{
using Layout = DialogTemplateBuilder::Layout;

/// Ends itself as soon as it is prepared and says what it found.
template <class Base>
class Brief : public Base
{
public:
    using Base::Base;

    BOOL OnInitDialog() override
    {
        Base::OnInitDialog();
        this->GetWindowText(m_title);
        this->GetDlgItemText(kFirstEdit, m_text);
        this->EndDialog(30);
        return TRUE;
    }

    CString m_title;
    CString m_text;
};

using BriefDialog = Brief<CDialog>;

HGLOBAL GlobalCopy(const std::vector<std::uint8_t>& bytes, UINT flags)
{
    const HGLOBAL block = ::GlobalAlloc(flags, bytes.size());
    std::memcpy(::GlobalLock(block), bytes.data(), bytes.size());
    ::GlobalUnlock(block);
    return block;
}

class TemplateForms : public testing::TestWithParam<Layout>
{
};
} // namespace

INSTANTIATE_TEST_SUITE_P(BothLayouts, TemplateForms, testing::Values(Layout::Plain, Layout::Extended));

TEST_P(TemplateForms, PointerToATemplate)
{
    const auto bytes = StandardTemplate(GetParam()).Bytes();
    BriefDialog dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(AsTemplate(bytes)));
    EXPECT_EQ(dialog.DoModal(), 30);
    EXPECT_EQ(dialog.m_title, "Standard");
    EXPECT_EQ(dialog.m_text, "one");
}

TEST_P(TemplateForms, MovableMemoryBlock)
{
    const HGLOBAL block = GlobalCopy(StandardTemplate(GetParam()).Bytes(), GMEM_MOVEABLE);
    BriefDialog dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(block));
    EXPECT_EQ(dialog.DoModal(), 30);
    EXPECT_EQ(dialog.m_text, "one");
    EXPECT_EQ(::GlobalFlags(block) & GMEM_LOCKCOUNT, 0u);
    ::GlobalFree(block);
}

TEST_P(TemplateForms, FixedMemoryBlock)
{
    const HGLOBAL block = GlobalCopy(StandardTemplate(GetParam()).Bytes(), GMEM_FIXED);
    BriefDialog dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(block));
    EXPECT_EQ(dialog.DoModal(), 30);
    ::GlobalFree(block);
}

TEST_P(TemplateForms, TruncatedBlockIsRefused)
{
    OwnerWindow owner;
    auto bytes = StandardTemplate(GetParam()).Bytes();
    bytes.resize(bytes.size() / 2);
    // The system's heap rounds sizes up: what lies after the end must not complete the template.
    const HGLOBAL block = GlobalCopy(bytes, GMEM_FIXED | GMEM_ZEROINIT);
    BriefDialog dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(block, &owner));
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
    ::GlobalFree(block);
}

TEST(DialogResource, ByNumber)
{
    BriefDialog dialog(IDD_PLAIN);
    EXPECT_EQ(dialog.DoModal(), 30);
    EXPECT_EQ(dialog.m_title, "Plain resource");
}

TEST(DialogResource, ByName)
{
    BriefDialog dialog("NAMED_DIALOG");
    EXPECT_EQ(dialog.DoModal(), 30);
    EXPECT_EQ(dialog.m_title, "Named resource");
}

TEST(DialogResource, ExtendedLayout)
{
    BriefDialog dialog(IDD_EXTENDED);
    EXPECT_EQ(dialog.DoModal(), 30);
    EXPECT_EQ(dialog.m_title, "Extended resource");
}

TEST(DialogResource, HandleOfALoadedResource)
{
    const HMODULE module = ::GetModuleHandleA(nullptr);
    const HGLOBAL loaded =
        ::LoadResource(module, ::FindResourceA(module, MAKEINTRESOURCEA(IDD_PLAIN), MAKEINTRESOURCEA(5)));
    BriefDialog dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(loaded));
    EXPECT_EQ(dialog.DoModal(), 30);
    EXPECT_EQ(dialog.m_title, "Plain resource");
}

TEST(DialogResource, ListsAreFilledFromTheTemplatesData)
{
    class Filled : public CDialog
    {
    public:
        Filled() : CDialog(IDD_FILLED)
        {
        }
        BOOL OnInitDialog() override
        {
            CDialog::OnInitDialog();
            m_comboCount = static_cast<int>(SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT));
            m_listCount = static_cast<int>(SendDlgItemMessage(IDC_LIST, LB_GETCOUNT));
            char text[32] = {};
            SendDlgItemMessage(IDC_COMBO, CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text));
            m_second = text;
            EndDialog(1);
            return TRUE;
        }
        int m_comboCount = 0;
        int m_listCount = 0;
        std::string m_second;
    };
    Filled dialog;
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_EQ(dialog.m_comboCount, 2);
    EXPECT_EQ(dialog.m_second, "beta");
    EXPECT_EQ(dialog.m_listCount, 1);
}

TEST(DialogCreationFailure, MissingResourceLeavesTheOwnerEnabled)
{
    OwnerWindow owner;
    CDialog dialog(59999u, &owner);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
    CDialog named("NO_SUCH_DIALOG", &owner);
    EXPECT_EQ(named.DoModal(), -1);
}

TEST(DialogCreationFailure, NoTemplateAtAll)
{
    CDialog dialog;
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_FALSE(dialog.Create(static_cast<LPCTSTR>(nullptr)));
    EXPECT_FALSE(dialog.CreateIndirect(static_cast<LPCDLGTEMPLATE>(nullptr)));
    EXPECT_FALSE(dialog.CreateIndirect(static_cast<HGLOBAL>(nullptr)));
}

TEST(DialogCreationFailure, UnknownControlClassLeavesTheOwnerEnabled)
{
    OwnerWindow owner;
    auto builder = StandardTemplate();
    builder.Add("NoSuchWindowClass", 2000, 0, {0, 0, 10, 10});
    NotingDialog dialog(&owner, builder);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.m_postNcDestroyCount, 1);
}

TEST(DialogCreationFailure, UnknownDialogClassTellsTheObject)
{
    OwnerWindow owner;
    auto builder = StandardTemplate();
    builder.WindowClass("NoSuchWindowClass");
    NotingDialog dialog(&owner, builder);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_postNcDestroyCount, 1);
}

TEST(DialogCreationFailure, DoesNotCatchTheNextWindow)
{
    auto builder = StandardTemplate();
    builder.WindowClass("NoSuchWindowClass");
    NotingDialog dialog(nullptr, builder);
    EXPECT_EQ(dialog.DoModal(), -1);
    const HWND stranger = ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(stranger), nullptr);
    ::DestroyWindow(stranger);
}

TEST(DialogFont, IsToldBeforeTheControlsAre)
{
    NotingDialog dialog;
    HFONT fontAtInit = nullptr;
    HFONT used = nullptr;
    dialog.m_onInit = [&](NotingDialog& self)
    {
        fontAtInit = self.m_font;
        used = reinterpret_cast<HFONT>(self.SendDlgItemMessage(kFirstEdit, WM_GETFONT));
        self.EndDialog(1);
        return TRUE;
    };
    dialog.DoModal();
    EXPECT_NE(fontAtInit, nullptr);
    EXPECT_EQ(fontAtInit, used);
}
