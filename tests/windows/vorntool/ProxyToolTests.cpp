#include "config/AppRegMgr.h"
#include "config/ProxySettings.h"
#include "tests/support/ScratchKey.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

using namespace vorn::test;

namespace
{

/// No shared settings of the user's before and after each test.
class ProxyTool : public testing::Test
{
protected:
    ~ProxyTool() override
    {
        AppRegMgr::FreeInst();
    }

    static void ExpectList(const std::string& text)
    {
        ExpectDone({"proxy", "list"}, text);
    }

private:
    const ScratchKey m_settings{HKEY_CURRENT_USER, "Software\\Vornwald\\Global"};
};

} // namespace

TEST_F(ProxyTool, ListsWhatWasAdded)
{
    ExpectDone({"proxy", "add", "proxy.example.com"}, "");
    ExpectDone({"proxy", "add", "socks5://joe:secret@[2001:db8::1]", "--ports", "8000-8080", "--off"}, "");
    ExpectDone({"proxy", "add", "third:99", "--type", "tunnel", "--user", "M\xC3\xBCller", "--ports", "443"}, "");
    ExpectList("1   on   http    proxy.example.com:8080              1-65535\n"
               "2   off  socks5  [2001:db8::1]:1080                  8000-8080  joe (with password)\n"
               "3   on   tunnel  third:99                            443  M\xC3\xBCller\n");
}

TEST_F(ProxyTool, PrintsJsonWithoutPasswords)
{
    const std::string second =
        "{\"number\":2,\"enabled\":false,\"type\":\"socks4\",\"code\":2,\"host\":\"b\",\"port\":1080,"
        "\"firstPort\":1,\"lastPort\":65535,\"user\":\"joe\",\"hasPassword\":true}";
    ExpectDone({"proxy", "add", "a:1"}, "");
    ExpectDone({"proxy", "add", "joe:secret@b", "--type", "socks4", "--off", "--json"}, second + "\n");
    ExpectDone({"proxy", "list", "--json"},
               "[{\"number\":1,\"enabled\":true,\"type\":\"http\",\"code\":1,\"host\":\"a\",\"port\":1,\"firstPort\":1,"
               "\"lastPort\":65535,\"user\":null,\"hasPassword\":false}," +
                   second + "]\n");
    ExpectDone({"proxy", "delete", "2", "--json"}, second + "\n");
}

TEST_F(ProxyTool, TheApplicationsReadWhatItStores)
{
    ExpectDone({"proxy", "add", "http://b:1", "--user", "a:b@c", "--password", "p/w@x"}, "");
    ProxySet proxies;
    ASSERT_EQ(LoadProxies(proxies), 1);
    EXPECT_STREQ(proxies.GetAt(0)->mAddress.mpUser, "a:b@c");
    EXPECT_STREQ(proxies.GetAt(0)->mAddress.mpPassword, "p/w@x");
}

TEST_F(ProxyTool, DeletesByNumberOrAddress)
{
    for (const char* address : {"a:1", "b:2", "c:3", "c:3"})
    {
        ExpectDone({"proxy", "add", address}, "");
    }
    ExpectDone({"proxy", "delete", "1"}, "");
    ExpectDone({"proxy", "delete", "b:2"}, "");
    ExpectFailure({"proxy", "delete", "c:3"}, 1,
                  "vorntool proxy delete: there are 2 proxies 'c:3'; say which by its number");
    ExpectDone({"proxy", "delete", "2"}, "");
    ExpectList("1   on   http    c:3                                 1-65535\n");
}

TEST_F(ProxyTool, RefusesWhatIsNotThere)
{
    ExpectFailure({"proxy", "list"}, 1, "vorntool proxy list: there are no proxies");
    ExpectFailure({"proxy", "list", "--json"}, 1, "vorntool proxy list: there are no proxies");
    for (const char* word : {"1", "0", "-1", "99999999999999999999", "", "proxy"})
    {
        ExpectFailure({"proxy", "delete", word}, 1,
                      "vorntool proxy delete: there is no proxy '" + std::string(word) + "'");
    }
}

TEST_F(ProxyTool, WrongWordsStoreNothing)
{
    const std::string add = "vorntool proxy add: ";
    for (const char* address : {"", ":80", "proxy:x", "proxy:65536", "joe@", "\xE2\x98\x83"})
    {
        ExpectFailure({"proxy", "add", address}, 2,
                      add + "'" + address + "' is no address of a host; 'vorntool proxy add --help' says what is one");
    }
    ExpectFailure({"proxy", "add", "a", "--type", "ftp"}, 2,
                  add + "'ftp' is no type of proxy: http, tunnel, socks4 or socks5");
    ExpectFailure({"proxy", "add", "ftp://a"}, 2, add + "'ftp' is no type of proxy: http, tunnel, socks4 or socks5");
    ExpectFailure({"proxy", "add", "a", "--ports", "9-8"}, 2,
                  add + "'9-8' is neither a port nor a range of ports from 0 to 65535");
    ExpectFailure({"proxy", "add", "a", "--user", "\xE2\x98\x83"}, 2,
                  add + "--user has characters that settings cannot hold");
    ExpectFailure({"proxy", "add"}, 2, add + "ADDRESS is missing; see 'vorntool proxy add --help'");
    ExpectFailure({"proxy", "list"}, 1, "vorntool proxy list: there are no proxies");
}

TEST_F(ProxyTool, ATextThatCouldNotBeReadAgainIsRefused)
{
    ExpectDone({"proxy", "add", "a:1"}, "");
    ExpectFailure({"proxy", "add", std::string(1024, 'h')}, 1,
                  "vorntool proxy add: the registry refused it, or a text is longer than 1,023 characters");
    ExpectList("1   on   http    a:1                                 1-65535\n");
}
