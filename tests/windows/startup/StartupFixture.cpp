#include "tests/windows/startup/StartupFixture.h"

#include "tests/support/DialogDriver.h"
#include "toolkit/startup/StartupIds.h"

namespace vorn::test
{

namespace
{

constexpr const char* kProfile = "Software\\VornStartupTests\\Testplane";
constexpr double kSecondsPerDay = 86400.0;
constexpr double kCycle = 28;

class TestApp : public CWinApp
{
public:
    TestApp() : CWinApp("Testplane")
    {
        SetRegistryKey("VornStartupTests");
    }

    int DoMessageBox(LPCTSTR prompt, UINT type, UINT promptId) override
    {
        lastBox = type;
        return CWinApp::DoMessageBox(prompt, type, promptId);
    }

    UINT lastBox = 0;
};

TestApp theApp;

struct Collection
{
    const char* windowClass;
    std::vector<ShownText> found;
};

BOOL CALLBACK Collect(HWND window, LPARAM parameter)
{
    auto& collection = *reinterpret_cast<Collection*>(parameter);
    char name[32] = "";
    ::GetClassNameA(window, name, sizeof name);
    if (::lstrcmpiA(name, collection.windowClass) == 0)
    {
        collection.found.push_back({window, TextOf(window), PlaceOf(window)});
    }
    return TRUE;
}

CStartupDlg::DataInfo Record(int kind, const char* coverage, double daysToExpiry)
{
    return {kind, 1.0F, coverage, InDays(daysToExpiry - kCycle), InDays(daysToExpiry)};
}

HWND ShownWindowOf(const CWnd& dialog)
{
    return ::IsWindowVisible(dialog.m_hWnd) ? dialog.m_hWnd : nullptr;
}

std::vector<std::string> TextsOf(const std::vector<ShownText>& shown)
{
    std::vector<std::string> texts;
    for (const ShownText& each : shown)
    {
        texts.push_back(each.text);
    }
    return texts;
}

} // namespace

UINT LastMessageBox()
{
    return theApp.lastBox;
}

std::string TextOf(HWND window)
{
    std::string text(static_cast<std::size_t>(::GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

CRect PlaceOf(HWND window)
{
    CRect rect;
    ::GetWindowRect(window, &rect);
    return rect;
}

HWND AreaOf(HWND dialog)
{
    return ::GetDlgItem(dialog, IDC_VORN_STARTUP_AREA);
}

std::vector<ShownText> ShownIn(HWND dialog, const char* windowClass)
{
    Collection collection{windowClass, {}};
    if (AreaOf(dialog) != nullptr)
    {
        ::EnumChildWindows(AreaOf(dialog), Collect, reinterpret_cast<LPARAM>(&collection));
    }
    return collection.found;
}

std::vector<std::string> LinesOf(HWND dialog)
{
    return TextsOf(ShownIn(dialog, "Static"));
}

std::vector<std::string> GroupsOf(HWND dialog)
{
    return TextsOf(ShownIn(dialog, "Button"));
}

Date InDays(double days)
{
    return Date(CTime(CTime::GetCurrentTime().GetTime() + static_cast<__time64_t>(days * kSecondsPerDay)));
}

CStartupDlg::DataInfo Navigation(const char* coverage, double daysToExpiry)
{
    return Record(1, coverage, daysToExpiry);
}

CStartupDlg::DataInfo Terminal(const char* coverage, double daysToExpiry)
{
    return Record(2, coverage, daysToExpiry);
}

StartupDialog::StartupDialog() : m_key(HKEY_CURRENT_USER, kProfile)
{
}

INT_PTR StartupDialog::Show(CStartupDlg& dialog, const std::function<void(HWND)>& look, UINT command, const char* title)
{
    DialogDriver driver(
        [&]
        {
            const HWND window = title != nullptr ? FindDialog(title) : ShownWindowOf(dialog);
            if (window == nullptr)
            {
                return false;
            }
            look(window);
            ::PostMessageA(window, WM_COMMAND, command, 0);
            return true;
        });
    return dialog.DoModal();
}

void StartupDialog::ShowWith(std::vector<CStartupDlg::DataInfo> records, const std::function<void(HWND)>& look)
{
    CStartupDlg dialog("Testplane", nullptr, records.data(), static_cast<int>(records.size()), nullptr, nullptr);
    EXPECT_EQ(IDCANCEL, Show(dialog, look));
}

void StartupDialog::Store(DWORD noDisclaimer)
{
    HKEY key = nullptr;
    const std::string section = std::string(kProfile) + "\\Startup";
    ::RegCreateKeyExA(HKEY_CURRENT_USER, section.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
    ::RegSetValueExA(key, "NoDisclaimer", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&noDisclaimer),
                     sizeof noDisclaimer);
    ::RegCloseKey(key);
}

std::optional<DWORD> StartupDialog::Stored()
{
    DWORD value = 0;
    DWORD size = sizeof value;
    const std::string section = std::string(kProfile) + "\\Startup";
    const LSTATUS status =
        ::RegGetValueA(HKEY_CURRENT_USER, section.c_str(), "NoDisclaimer", RRF_RT_REG_DWORD, nullptr, &value, &size);
    return status == ERROR_SUCCESS ? std::optional(value) : std::nullopt;
}

} // namespace vorn::test
