#include "tests/support/ScratchFolder.h"
#include "tests/windows/framework_app/extension/Extension.h"

#include <gtest/gtest.h>

namespace
{

/// Takes the extension out of the chain for a scope.
class WithoutExtension
{
public:
    WithoutExtension()
    {
        LeaveChain();
    }
    WithoutExtension(const WithoutExtension&) = delete;
    WithoutExtension& operator=(const WithoutExtension&) = delete;
    ~WithoutExtension()
    {
        JoinChain();
    }
};

CString Text(UINT id)
{
    CString text("(none)");
    AfxLoadString(id, text);
    return text;
}

} // namespace

TEST(ResourceChain, AsksTheProgramFirst)
{
    EXPECT_EQ(Text(1001), "program's shared");
    EXPECT_EQ(Text(1002), "program's own");
    EXPECT_EQ(AfxFindStringResourceHandle(1001), ::GetModuleHandle(nullptr));
}

TEST(ResourceChain, AsksExtensionsNext)
{
    EXPECT_EQ(Text(1000), "extension's own");
    EXPECT_EQ(AfxFindStringResourceHandle(1000), ExtensionModule());
    EXPECT_EQ(Text(AFX_IDP_INTERNAL_FAILURE), "extension's internal error") << "before the framework's own";
    const WithoutExtension without;
    EXPECT_EQ(Text(1000), "(none)");
    EXPECT_EQ(AfxFindStringResourceHandle(1000), nullptr);
}

TEST(ResourceChain, AsksTheFrameworkLast)
{
    const WithoutExtension without;
    EXPECT_EQ(Text(AFX_IDP_INTERNAL_FAILURE), "An internal error occurred in the application.");
    EXPECT_EQ(AfxFindStringResourceHandle(AFX_IDP_INTERNAL_FAILURE), ::GetModuleHandle("HostFramework.dll"));
}

TEST(ResourceChain, FindsEveryKindOfResource)
{
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(77), RT_MENU), ExtensionModule());
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(78), RT_MENU), AfxGetResourceHandle());
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(77));
    EXPECT_EQ(menu.GetMenuItemCount(), 1U);
    CMenu none;
    EXPECT_FALSE(none.LoadMenu(78));
    EXPECT_EQ(none.m_hMenu, nullptr);
}

TEST(ResourceChain, StartsWithTheModuleChosen)
{
    AfxSetResourceHandle(ExtensionModule());
    EXPECT_EQ(AfxGetResourceHandle(), ExtensionModule());
    EXPECT_EQ(Text(1001), "extension's shared");
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandle(nullptr));
    EXPECT_EQ(Text(1001), "program's shared");
}

TEST(ResourceChain, PutsTheNewestExtensionFirstAndSystemModulesLast)
{
    const WithoutExtension without;
    const HMODULE first = ::GetModuleHandle("HostFramework.dll");
    const CDynLinkLibrary older(first, first);
    EXPECT_EQ(AfxFindStringResourceHandle(AFX_IDP_INTERNAL_FAILURE), first);
    {
        const CDynLinkLibrary newer(ExtensionModule(), ExtensionModule());
        EXPECT_EQ(Text(AFX_IDP_INTERNAL_FAILURE), "extension's internal error");
    }
    AFX_EXTENSION_MODULE state = {};
    ASSERT_TRUE(AfxInitExtensionModule(state, ExtensionModule()));
    EXPECT_EQ(state.hResource, ExtensionModule());
    const CDynLinkLibrary system(state, TRUE);
    EXPECT_EQ(Text(AFX_IDP_INTERNAL_FAILURE), "An internal error occurred in the application.");
}

TEST(ResourceChain, LoadsTextsIntoBuffers)
{
    char buffer[8] = {};
    EXPECT_EQ(AfxLoadString(1002, buffer, sizeof(buffer)), 7);
    EXPECT_STREQ(buffer, "program") << "cut to fit";
    EXPECT_EQ(AfxLoadString(9999, buffer, sizeof(buffer)), 0);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(AfxLoadString(1002, buffer, 0), 0);
    EXPECT_EQ(AfxLoadString(1002, nullptr, 8), 0);
    EXPECT_EQ(AfxLoadString(1002, buffer, 1), 0);
    EXPECT_STREQ(buffer, "");
}

TEST(ResourceChain, TakesAnEmptyTextForNone)
{
    EXPECT_EQ(Text(1010), "(none)");
    EXPECT_EQ(Text(9999), "(none)");
    EXPECT_EQ(Text(1012), "(none)") << "behind the last text of a block";
    EXPECT_EQ(Text(0), "(none)");
    EXPECT_EQ(Text(0xFFFF), "(none)");
}

TEST(ResourceChain, GivesTextsInTheProgramsCodePage)
{
    EXPECT_EQ(Text(1011), "caf\xE9");
}

TEST(FormatStrings, ReplaceMarksByTexts)
{
    CString text;
    AfxFormatString2(text, 1003, "one", "two");
    EXPECT_EQ(text, "First one then two, %% and ?.");
    AfxFormatString1(text, 1003, "one");
    EXPECT_EQ(text, "First one then ?, %% and ?.");
    AfxFormatString1(text, 9999, "one");
    EXPECT_EQ(text, "");
    const LPCTSTR arguments[] = {"a", nullptr};
    AfxFormatStrings(text, "%1%2%1%", arguments, 2);
    EXPECT_EQ(text, "aa%");
    AfxFormatStrings(text, nullptr, arguments, 2);
    EXPECT_EQ(text, "");
}

TEST(FormatStrings, TakePartsBetweenSeparators)
{
    CString text;
    EXPECT_TRUE(AfxExtractSubString(text, "one\ntwo\n\nfour", 1));
    EXPECT_EQ(text, "two");
    EXPECT_TRUE(AfxExtractSubString(text, "one\ntwo\n\nfour", 2));
    EXPECT_EQ(text, "");
    EXPECT_TRUE(AfxExtractSubString(text, "one\ntwo\n\nfour", 3));
    EXPECT_EQ(text, "four");
    EXPECT_FALSE(AfxExtractSubString(text, "one\ntwo\n\nfour", 4));
    EXPECT_EQ(text, "");
    EXPECT_FALSE(AfxExtractSubString(text, nullptr, 0));
    EXPECT_FALSE(AfxExtractSubString(text, "a", -1));
    EXPECT_TRUE(AfxExtractSubString(text, "a;b", 1, ';'));
    EXPECT_EQ(text, "b");
}

namespace
{

/// A host's class whose base, with a message map, is in another library.
class HostWindow : public ExtensionWindow
{
public:
    int hostCalls = 0;

protected:
    afx_msg LRESULT OnHostShared(WPARAM wParam, LPARAM lParam)
    {
        ++hostCalls;
        return wParam ? ExtensionWindow::OnShared(wParam, lParam) : 200;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(HostWindow, ExtensionWindow)
ON_MESSAGE(kSharedMessage, &HostWindow::OnHostShared)
END_MESSAGE_MAP()

} // namespace

TEST(ExtensionLibraries, GiveBaseClassesWithMessageMaps)
{
    HostWindow window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
    EXPECT_EQ(window.SendMessage(kExtensionMessage, 5), 6);
    EXPECT_EQ(window.SendMessage(kSharedMessage, 0), 200);
    EXPECT_EQ(window.SendMessage(kSharedMessage, 1), 100);
    EXPECT_EQ(window.hostCalls, 2);
    EXPECT_EQ(window.extensionCalls, 2);
}

TEST(ExtensionLibraries, LeaveTheChainWhenTheyAreUnloaded)
{
    // A second copy, which nothing holds in memory.
    char path[MAX_PATH] = {};
    ::GetModuleFileName(ExtensionModule(), path, MAX_PATH);
    const vorn::test::ScratchFolder folder;
    const std::string copy = folder.File("second_extension.dll");
    ASSERT_TRUE(::CopyFile(path, copy.c_str(), FALSE));
    const HMODULE second = ::LoadLibrary(copy.c_str());
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(AfxFindStringResourceHandle(1000), second) << "the newest comes first";
    AfxSetResourceHandle(second);
    ASSERT_TRUE(::FreeLibrary(second));
    EXPECT_EQ(::GetModuleHandle("second_extension.dll"), nullptr);
    EXPECT_EQ(AfxFindStringResourceHandle(1000), ExtensionModule());
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle()) << "a module that went is nobody's choice";
    ExtensionWindow window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
    EXPECT_EQ(window.SendMessage(kExtensionMessage, 5), 6);
}
