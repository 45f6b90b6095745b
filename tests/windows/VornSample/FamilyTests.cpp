#include "tests/support/PumpUntil.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/ScratchKey.h"
#include "tests/windows/VornSample/InstalledSample.h"

#include <VornCommon.h>

#include <gtest/gtest.h>

#include <memory>

// Two applications of the family at work at the same time, each installed in a folder of its own.

using namespace vorn::test;

namespace
{

constexpr const char* kSample = "Software\\Vornwald\\VornSample";
constexpr const char* kBriefing = "Software\\Vornwald\\VornBriefing";
constexpr const char* kShared = "Software\\Vornwald\\Global";

constexpr WPARAM kStatuteMiles = 34001;
constexpr WPARAM kKilometers = 34002;
constexpr int kTakeOver = 1002;

void Put(const std::string& key, const char* name, const std::string& text)
{
    RegSetKeyValueA(HKEY_CURRENT_USER, key.c_str(), name, REG_SZ, text.c_str(), static_cast<DWORD>(text.size() + 1));
}

class SampleFamily : public testing::Test
{
protected:
    /// As an installation does it: each application is told where it is.
    SampleFamily()
    {
        Put(std::string(kSample) + "\\Paths", "Home Path", m_sampleFolder.File(""));
        Put(std::string(kBriefing) + "\\Paths", "Home Path", m_briefingFolder.File(""));
    }

    std::string Summary() const
    {
        const std::string output = m_folder.File("summary.txt");
        EXPECT_EQ(ProgramRun(m_briefingFolder.File("VornBriefing.exe"), "--summary", output).ExitCode(), 0u);
        return ReadWholeFile(output);
    }

    std::string Root() const
    {
        return m_folder.File("Vornwald\\");
    }

    static DWORD Distance(const char* key)
    {
        DWORD value = 0xDEAD;
        DWORD size = sizeof value;
        RegGetValueA(HKEY_CURRENT_USER, (std::string(key) + "\\Units").c_str(), "Distance", RRF_RT_REG_DWORD, nullptr,
                     &value, &size);
        return value;
    }

    ScratchFolder m_folder;
    ScratchKey m_sampleSettings{HKEY_CURRENT_USER, kSample};
    ScratchKey m_briefingSettings{HKEY_CURRENT_USER, kBriefing};
    ScratchKey m_sharedSettings{HKEY_CURRENT_USER, kShared};
    InstalledSample m_sampleFolder{m_folder.Path() / "Vornwald" / "VornSample"};
    InstalledSample m_briefingFolder{m_folder.Path() / "Vornwald" / "VornBriefing"};
};

bool Has(const std::string& text, const std::string& line)
{
    return text.find("  " + line + "\n") != std::string::npos;
}

} // namespace

TEST_F(SampleFamily, TwoApplicationsSeeTheirOwnAndTheSharedFolders)
{
    ASSERT_TRUE(m_sampleFolder.IsComplete());
    Put(std::string(kSample) + "\\Paths", "Track Path", "C:\\Flights");
    const ProgramRun sample(m_sampleFolder.File("VornSample.exe"), "--no-startup", m_folder.File("output.txt"));
    ASSERT_NE(sample.MainWindow(), nullptr);

    const std::string both = Summary();
    EXPECT_TRUE(Has(both, "Program | " + Root() + "VornBriefing\\ | " + Root() + "VornSample\\")) << both;
    EXPECT_TRUE(Has(both, "Data | " + Root() + "VornBriefing\\EnrouteData\\ | " + Root() + "VornSample\\EnrouteData\\"))
        << both;
    EXPECT_TRUE(Has(both, "Common | " + Root() + "Common\\ | " + Root() + "Common\\")) << "shared; " << both;
    EXPECT_TRUE(Has(both, "User | " + m_folder.File("") + " | " + m_folder.File(""))) << "shared; " << both;
    EXPECT_TRUE(Has(both, "Tracks | " + Root() + "VornBriefing\\Track\\ | C:\\Flights\\")) << both;

    // The sample itself, from its side.
    const std::string output = m_folder.File("folders.txt");
    EXPECT_EQ(
        ProgramRun(m_sampleFolder.File("VornSample.exe"), "--no-startup --page Folders --summary", output).ExitCode(),
        0u);
    const std::string own = ReadWholeFile(output);
    EXPECT_NE(own.find(Root() + "VornSample\\EnrouteData\\"), std::string::npos) << own;
    EXPECT_NE(own.find(" " + Root() + "Common\\"), std::string::npos) << own;
    EXPECT_NE(own.find("C:\\Flights\\"), std::string::npos) << own;
    EXPECT_EQ(own.find("VornBriefing"), std::string::npos) << own;

    PostMessageA(sample.MainWindow(), WM_CLOSE, 0, 0);
    EXPECT_EQ(sample.ExitCode(), 0u);
}

TEST_F(SampleFamily, TwoApplicationsAtWorkKeepTheirSettingsApartAndShareTheOthers)
{
    ASSERT_TRUE(m_sampleFolder.IsComplete());
    const ProgramRun sample(m_sampleFolder.File("VornSample.exe"), "--no-startup", m_folder.File("sample.txt"));
    const ProgramRun briefing(m_briefingFolder.File("VornBriefing.exe"), "", m_folder.File("briefing.txt"));
    const HWND window = sample.MainWindow();
    const HWND dialog = briefing.Dialog();
    ASSERT_NE(window, nullptr);
    ASSERT_NE(dialog, nullptr);
    std::string both = Summary();
    EXPECT_TRUE(Has(both, "Distance | NM | NM")) << both;
    EXPECT_TRUE(Has(both, "Proxies | none | none")) << both;

    SendMessageA(window, WM_COMMAND, kKilometers, 0);
    both = Summary();
    EXPECT_TRUE(Has(both, "Distance | NM | KM")) << "seen while it runs, and no one else's; " << both;

    SendMessageA(GetDlgItem(dialog, kTakeOver), BM_CLICK, 0, 0);
    EXPECT_EQ(Distance(kBriefing), static_cast<DWORD>(UNIT_KM));
    SendMessageA(window, WM_COMMAND, kStatuteMiles, 0);
    EXPECT_EQ(Distance(kBriefing), static_cast<DWORD>(UNIT_KM));
    EXPECT_EQ(Distance(kSample), static_cast<DWORD>(UNIT_SM));
    both = Summary();
    EXPECT_TRUE(Has(both, "Distance | KM | SM")) << both;

    // What one program stores for the family, all of them find.
    ProxySet proxies;
    auto proxy = std::make_unique<ProxyInfo>();
    EXPECT_TRUE(proxy->mAddress.Parse("proxy.example:3128"));
    ASSERT_TRUE(proxies.AddProxy(proxy.get()));
    proxy.release(); // the set's now
    EXPECT_TRUE(StoreProxies(proxies));
    AppRegMgr::FreeInst();
    both = Summary();
    EXPECT_TRUE(Has(both, "Proxies | proxy.example | proxy.example")) << both;

    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_EQ(briefing.ExitCode(), 0u);
    PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(sample.ExitCode(), 0u);
}
