#include "config/AppRegMgr.h"
#include "config/ProxySettings.h"
#include "config/SealedText.h"
#include "tests/support/ScratchKey.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <memory>
#include <string>

namespace
{

constexpr const char* kKey = "Software\\Vornwald\\Global";

/// No shared settings of the user's before and after each test.
class ProxyStore : public testing::Test
{
protected:
    ProxyStore()
    {
        AppRegMgr::FreeInst();
    }
    ~ProxyStore() override
    {
        AppRegMgr::FreeInst();
    }

    static void Add(ProxySet& proxies, const char* address, int type, bool enabled)
    {
        auto proxy = std::make_unique<ProxyInfo>();
        proxy->mAddress.Parse(address);
        proxy->mType = type;
        proxy->mEnabled = enabled;
        proxy->mFirstPort = 8000;
        proxy->mLastPort = 65535;
        ASSERT_TRUE(proxies.AddProxy(proxy.get()));
        proxy.release();
    }

    static std::string Shown(const ProxySet& proxies)
    {
        std::string text;
        for (int i = 0; i < proxies.GetCount(); ++i)
        {
            const ProxyInfo& proxy = *proxies.GetAt(i);
            const URI& address = proxy.mAddress;
            text += std::to_string(proxy.mType) + " " + (address.mpUser ? address.mpUser : "-") + " " +
                    (address.mpPassword ? address.mpPassword : "-") + " " + (address.mpHost ? address.mpHost : "-") +
                    " " + std::to_string(address.mPort) + " " + std::to_string(proxy.mFirstPort) + " " +
                    std::to_string(proxy.mLastPort) + (proxy.mEnabled ? " on" : " off") + "\n";
        }
        return text;
    }

    static std::string RawText(const char* section, const char* value)
    {
        char text[2000] = "";
        DWORD size = sizeof text;
        const std::string key = std::string(kKey) + "\\" + section;
        return ::RegGetValueA(HKEY_CURRENT_USER, key.c_str(), value, RRF_RT_REG_SZ, nullptr, text, &size) ==
                       ERROR_SUCCESS
                   ? text
                   : "(none)";
    }

    static void PutText(const char* section, const char* value, const std::string& text)
    {
        const std::string key = std::string(kKey) + "\\" + section;
        EXPECT_EQ(::RegSetKeyValueA(HKEY_CURRENT_USER, key.c_str(), value, REG_SZ, text.c_str(),
                                    static_cast<DWORD>(text.size()) + 1),
                  ERROR_SUCCESS);
    }

    static void PutNumber(const char* section, const char* value, DWORD number)
    {
        const std::string key = std::string(kKey) + "\\" + section;
        EXPECT_EQ(::RegSetKeyValueA(HKEY_CURRENT_USER, key.c_str(), value, REG_DWORD, &number, sizeof number),
                  ERROR_SUCCESS);
    }

private:
    const vorn::test::ScratchKey m_key{HKEY_CURRENT_USER, kKey};
};

} // namespace

TEST_F(ProxyStore, NothingStoredIsAnEmptySet)
{
    ProxySet proxies;
    Add(proxies, "gone:1", 1, true);
    EXPECT_EQ(LoadProxies(proxies), 0);
    EXPECT_EQ(proxies.GetCount(), 0);
}

TEST_F(ProxyStore, WhatIsStoredIsLoaded)
{
    ProxySet proxies;
    Add(proxies, "joe:p@ss:w/rd@proxy.example.com:3128", 3, false);
    Add(proxies, "", 77, true);
    Add(proxies, "M\xFCller@[::1]:65535", 4, true);
    const std::string expected = Shown(proxies);
    EXPECT_TRUE(StoreProxies(proxies));
    AppRegMgr::FreeInst();
    ProxySet loaded;
    EXPECT_EQ(LoadProxies(loaded), 3);
    EXPECT_EQ(Shown(loaded), expected);
}

TEST_F(ProxyStore, PasswordsDoNotStandInTheRegistry)
{
    ProxySet proxies;
    Add(proxies, "joe:secret@proxy:1", 1, true);
    ASSERT_TRUE(StoreProxies(proxies));
    const std::string stored = RawText("Proxy 1", "Password");
    EXPECT_GT(stored.size(), 6u);
    EXPECT_EQ(stored.find("secret"), std::string::npos);
    EXPECT_EQ(RawText("Proxy 1", "User"), "joe");
    EXPECT_EQ(RawText("Proxy 1", "Host"), "proxy");
}

TEST_F(ProxyStore, AShorterSetLeavesNothingOfTheLongerOne)
{
    ProxySet proxies;
    for (const char* host : {"a", "b", "c"})
    {
        Add(proxies, host, 1, true);
    }
    ASSERT_TRUE(StoreProxies(proxies));
    proxies.DeleteProxy(proxies.GetAt(0));
    proxies.DeleteProxy(proxies.GetAt(0));
    ASSERT_TRUE(StoreProxies(proxies));
    EXPECT_EQ(RawText("Proxy 1", "Host"), "c");
    EXPECT_EQ(RawText("Proxy 2", "Host"), "(none)");
    EXPECT_EQ(RawText("Proxy 3", "Host"), "(none)");
    EXPECT_TRUE(StoreProxies(ProxySet()));
    EXPECT_EQ(LoadProxies(proxies), 0);
    EXPECT_EQ(RawText("Proxy 1", "Host"), "(none)");
}

TEST_F(ProxyStore, TheListEndsAtAGapAndAtItsCount)
{
    ProxySet proxies;
    for (const char* host : {"a", "b", "c"})
    {
        Add(proxies, host, 1, true);
    }
    ASSERT_TRUE(StoreProxies(proxies));
    PutNumber("Proxy", "Count", 2);
    EXPECT_EQ(LoadProxies(proxies), 2);
    PutNumber("Proxy", "Count", 0x7FFFFFFF);
    EXPECT_EQ(LoadProxies(proxies), 3);
    ::RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\Vornwald\\Global\\Proxy 2");
    AppRegMgr::FreeInst();
    EXPECT_EQ(LoadProxies(proxies), 1);
    PutNumber("Proxy", "Count", 0xFFFFFFFF);
    EXPECT_EQ(LoadProxies(proxies), 0);
}

TEST_F(ProxyStore, DamagedValuesAreReadAsFarAsTheyGo)
{
    ProxySet proxies;
    Add(proxies, "joe:secret@proxy:1", 2, true);
    ASSERT_TRUE(StoreProxies(proxies));
    PutText("Proxy 1", "Password", "this was never sealed");
    PutNumber("Proxy 1", "Port", 65536);
    PutNumber("Proxy 1", "FirstPort", 0xFFFFFFFF);
    PutText("Proxy 1", "LastPort", "ports");
    EXPECT_EQ(LoadProxies(proxies), 1);
    EXPECT_EQ(Shown(proxies), "2 joe - proxy 0 0 0 on\n");
}

TEST_F(ProxyStore, ATextThatCouldNotBeReadAgainIsRefusedAndTheRestStored)
{
    ProxySet proxies;
    Add(proxies, (std::string(1024, 'h') + ":1").c_str(), 1, true);
    Add(proxies, (std::string(1023, 'h') + ":1").c_str(), 1, true);
    EXPECT_FALSE(StoreProxies(proxies));
    ASSERT_EQ(LoadProxies(proxies), 2);
    EXPECT_EQ(proxies.GetAt(0)->mAddress.mpHost, nullptr);
    EXPECT_EQ(proxies.GetAt(0)->mAddress.mPort, 1);
    EXPECT_EQ(proxies.GetAt(1)->mAddress.mpHost, std::string(1023, 'h'));
}
