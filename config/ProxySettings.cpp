#include "config/ProxySettings.h"

#include "config/AppRegMgr.h"
#include "config/SealedText.h"

#include <climits>
#include <memory>
#include <string>

namespace
{

constexpr const char* kShared = "Global";
constexpr const char* kSection = "Proxy";
constexpr const char* kCount = "Count";
constexpr int kNoType = INT_MIN;
constexpr std::size_t kLongestText = 1023; // that a setting is read with

std::string SectionOf(int number)
{
    return std::string(kSection) + " " + std::to_string(number);
}

/// The stored values of one proxy.
class ProxyRecord
{
public:
    explicit ProxyRecord(int number)
        : m_section(SectionOf(number)), m_settings(*AppRegMgr::Instance()), m_index(m_settings.AddApp(kShared))
    {
    }

    bool Read(ProxyInfo& proxy) const
    {
        proxy.mType = Number("Type", kNoType);
        URI::SetString(proxy.mAddress.mpHost, Text("Host"));
        URI::SetString(proxy.mAddress.mpUser, Text("User"));
        const auto password = vorn::OpenSealedText(Text("Password").GetString());
        URI::SetString(proxy.mAddress.mpPassword, password ? password->c_str() : nullptr);
        proxy.mAddress.mPort = Port("Port");
        proxy.mFirstPort = Port("FirstPort");
        proxy.mLastPort = Port("LastPort");
        proxy.mEnabled = Number("Enabled", 1) != 0;
        return proxy.mType != kNoType;
    }

    bool Write(const ProxyInfo& proxy) const
    {
        const auto password = vorn::SealText(proxy.mAddress.mpPassword ? proxy.mAddress.mpPassword : "");
        bool stored = PutText("Host", proxy.mAddress.mpHost);
        stored = PutText("User", proxy.mAddress.mpUser) && stored;
        stored = PutText("Password", password ? password->c_str() : nullptr) && password && stored;
        stored = PutNumber("Port", proxy.mAddress.mPort) && stored;
        stored = PutNumber("FirstPort", proxy.mFirstPort) && stored;
        stored = PutNumber("LastPort", proxy.mLastPort) && stored;
        stored = PutNumber("Enabled", proxy.mEnabled ? 1 : 0) && stored;
        return PutNumber("Type", proxy.mType) && stored;
    }

    bool Delete() const
    {
        return m_settings.WriteVornString(m_section.c_str(), nullptr, nullptr, m_index) != FALSE;
    }

private:
    CString Text(const char* key) const
    {
        return m_settings.ReadVornString(m_section.c_str(), key, "", m_index);
    }

    int Number(const char* key, int otherwise) const
    {
        return m_settings.ReadVornInt(m_section.c_str(), key, otherwise, m_index);
    }

    unsigned short Port(const char* key) const
    {
        const int port = Number(key, 0);
        return port >= 0 && port <= USHRT_MAX ? static_cast<unsigned short>(port) : static_cast<unsigned short>(0);
    }

    /// Null is an empty text.
    bool PutText(const char* key, const char* text) const
    {
        const std::string value = text ? text : "";
        return value.size() <= kLongestText &&
               m_settings.WriteVornString(m_section.c_str(), key, value.c_str(), m_index) != FALSE;
    }

    bool PutNumber(const char* key, int number) const
    {
        return m_settings.WriteVornInt(m_section.c_str(), key, number, m_index) != FALSE;
    }

    std::string m_section;
    AppRegMgr& m_settings;
    int m_index;
};

void Clear(ProxySet& proxies)
{
    while (proxies.DeleteProxy(proxies.GetAt(proxies.GetCount() - 1)))
    {
    }
}

/// How many there are at most; those that are not there end the list too.
int StoredCount()
{
    const int index = AppRegMgr::Instance()->AddApp(kShared);
    return AppRegMgr::Instance()->ReadVornInt(kSection, kCount, INT_MAX, index);
}

} // namespace

int LoadProxies(ProxySet& proxies)
{
    Clear(proxies);
    const int count = StoredCount();
    auto proxy = std::make_unique<ProxyInfo>();
    for (int number = 1; number <= count && ProxyRecord(number).Read(*proxy) && proxies.AddProxy(proxy.get()); ++number)
    {
        static_cast<void>(proxy.release()); // the set's now
        proxy = std::make_unique<ProxyInfo>();
    }
    return proxies.GetCount();
}

bool StoreProxies(const ProxySet& proxies)
{
    const int count = proxies.GetCount();
    bool stored = true;
    for (int i = 0; i < count; ++i)
    {
        stored = ProxyRecord(i + 1).Write(*proxies.GetAt(i)) && stored;
    }
    const int index = AppRegMgr::Instance()->AddApp(kShared);
    stored = AppRegMgr::Instance()->WriteVornInt(kSection, kCount, count, index) != FALSE && stored;
    for (int number = count + 1; ProxyRecord(number).Delete(); ++number)
    {
        // until there are no more of a longer set before
    }
    return stored;
}
