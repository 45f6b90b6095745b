#include "family/TarnComm/core/ProxySet.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace
{

ProxyInfo* Added(ProxySet& proxies, const char* address)
{
    auto proxy = std::make_unique<ProxyInfo>();
    proxy->mAddress.Parse(address);
    EXPECT_TRUE(proxies.AddProxy(proxy.get()));
    return proxy.release();
}

std::string Hosts(const ProxySet& proxies)
{
    std::string hosts;
    for (int i = 0; i < proxies.GetCount(); ++i)
    {
        hosts += std::string(proxies.GetAt(i)->mAddress.mpHost) + " ";
    }
    return hosts;
}

} // namespace

TEST(ProxyInfo, IsAnHttpProxyForAllPortsAtFirst)
{
    const ProxyInfo proxy;
    EXPECT_EQ(proxy.mType, 1);
    EXPECT_EQ(proxy.mAddress.mpUser, nullptr);
    EXPECT_EQ(proxy.mAddress.mpPassword, nullptr);
    EXPECT_EQ(proxy.mAddress.mpHost, nullptr);
    EXPECT_EQ(proxy.mAddress.mPort, 0);
    EXPECT_EQ(proxy.mFirstPort, 1);
    EXPECT_EQ(proxy.mLastPort, 65535);
    EXPECT_TRUE(proxy.mEnabled);
}

TEST(ProxyInfo, TypesHaveTheirNumbers)
{
    EXPECT_EQ(ProxyInfo::kHttp, 1);
    EXPECT_EQ(ProxyInfo::kSocks4, 2);
    EXPECT_EQ(ProxyInfo::kSocks5, 3);
    EXPECT_EQ(ProxyInfo::kHttpTunneling, 4);
}

TEST(ProxyInfo, TypesHaveTheirUsualPorts)
{
    EXPECT_EQ(ProxyInfo::UsualPort(1), 8080);
    EXPECT_EQ(ProxyInfo::UsualPort(4), 8080);
    EXPECT_EQ(ProxyInfo::UsualPort(2), 1080);
    EXPECT_EQ(ProxyInfo::UsualPort(3), 1080);
    EXPECT_EQ(ProxyInfo::UsualPort(0), 8080);
    EXPECT_EQ(ProxyInfo::UsualPort(-3), 8080);
}

TEST(ProxySet, IsEmptyAtFirst)
{
    const ProxySet proxies;
    EXPECT_EQ(proxies.GetCount(), 0);
    EXPECT_EQ(proxies.GetAt(0), nullptr);
    EXPECT_EQ(proxies.GetAt(-1), nullptr);
}

TEST(ProxySet, KeepsEntriesInTheOrderOfAdding)
{
    ProxySet proxies;
    ProxyInfo* const first = Added(proxies, "a");
    ProxyInfo* const second = Added(proxies, "b");
    EXPECT_EQ(proxies.GetCount(), 2);
    EXPECT_EQ(proxies.GetAt(0), first);
    EXPECT_EQ(proxies.GetAt(1), second);
    EXPECT_EQ(proxies.GetAt(2), nullptr);
}

TEST(ProxySet, DeletingClosesTheGap)
{
    ProxySet proxies;
    Added(proxies, "a");
    ProxyInfo* const second = Added(proxies, "b");
    Added(proxies, "c");
    EXPECT_TRUE(proxies.DeleteProxy(second));
    EXPECT_EQ(Hosts(proxies), "a c ");
}

TEST(ProxySet, RefusesWhatIsNotItsOwn)
{
    ProxySet proxies;
    ProxyInfo* const own = Added(proxies, "a");
    ProxyInfo foreign;
    EXPECT_FALSE(proxies.AddProxy(nullptr));
    EXPECT_FALSE(proxies.AddProxy(own));
    EXPECT_FALSE(proxies.DeleteProxy(nullptr));
    EXPECT_FALSE(proxies.DeleteProxy(&foreign));
    EXPECT_EQ(Hosts(proxies), "a ");
}

TEST(ProxySet, CopiesHaveEntriesOfTheirOwn)
{
    ProxySet proxies;
    Added(proxies, "joe:secret@a:80")->mEnabled = false;
    Added(proxies, "b");
    ProxySet copy(proxies);
    ProxySet assigned;
    Added(assigned, "z");
    assigned = proxies;
    proxies.GetAt(0)->mAddress.Parse("changed");
    proxies.DeleteProxy(proxies.GetAt(1));
    EXPECT_EQ(Hosts(copy), "a b ");
    EXPECT_EQ(Hosts(assigned), "a b ");
    EXPECT_STREQ(copy.GetAt(0)->mAddress.mpPassword, "secret");
    EXPECT_FALSE(copy.GetAt(0)->mEnabled);
    assigned = *&assigned;
    EXPECT_EQ(Hosts(assigned), "a b ");
}
