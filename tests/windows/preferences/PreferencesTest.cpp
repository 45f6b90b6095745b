#include "tests/windows/preferences/PreferencesTest.h"

#include "tests/support/PumpUntil.h"

#include <array>
#include <set>

namespace vorn::test
{

namespace
{

class HostApp : public CWinApp, public VornCommonApp
{
public:
    HostApp() : CWinApp("PreferencesTests")
    {
        SetRegistryKey("Vornwald");
    }
};

HostApp g_app;

std::string ValueText(DWORD type, const std::array<char, 1024>& data)
{
    if (type == REG_SZ)
        return data.data();
    DWORD number = 0;
    std::copy_n(data.data(), sizeof number, reinterpret_cast<char*>(&number));
    return std::to_string(static_cast<int>(number));
}

void CollectValues(HKEY key, const std::string& section, std::set<std::string>& lines)
{
    for (DWORD index = 0;; ++index)
    {
        std::array<char, 256> name{};
        std::array<char, 1024> data{};
        DWORD nameSize = name.size();
        DWORD dataSize = data.size();
        DWORD type = 0;
        if (RegEnumValueA(key, index, name.data(), &nameSize, nullptr, &type, reinterpret_cast<BYTE*>(data.data()),
                          &dataSize) != ERROR_SUCCESS)
            return;
        lines.insert(section + '\\' + name.data() + '=' + ValueText(type, data));
    }
}

BOOL CALLBACK FindNote(HWND window, LPARAM parameter)
{
    std::array<char, 32> name{};
    GetClassName(window, name.data(), static_cast<int>(name.size()));
    const bool isNote = lstrcmpi(name.data(), TOOLTIPS_CLASSA) == 0 && IsWindowVisible(window);
    if (isNote)
        *reinterpret_cast<HWND*>(parameter) = window;
    return !isNote;
}

} // namespace

PreferencesTest::PreferencesTest()
{
    AppRegMgr::FreeInst();
    PathMgr::FreeInst();
    VornCommonApp::Inst(&g_app);
    GetConversionBoy()->ReadUnits();
    ColorContext::Instance()->SetCurrentState(COLORSTATE_DAY);
    ForgetNVScales();
    ToolTipCtrlEx::GlobalEnableTips(true);
}

PreferencesTest::~PreferencesTest()
{
    Close();
    ColorContext::Instance()->SetCurrentState(COLORSTATE_DAY);
    ToolTipCtrlEx::GlobalEnableTips(true);
    VornCommonLog::FreeInstance();
    VornCommonApp::FreeInst();
    PathMgr::FreeInst();
    AppRegMgr::FreeInst();
}

preferences::PreferencesDialog& PreferencesTest::Open()
{
    Close();
    preferences::Context context;
    context.changed = [this]
    {
        ++m_changes;
    };
    context.chartCenter = []
    {
        return LatLon(47.5, -122.25);
    };
    context.statistics = [this]
    {
        return m_clearings == 0 ? std::string("Program starts: 12") : std::string("Program starts: 0");
    };
    context.clearStatistics = [this]
    {
        ++m_clearings;
    };
    m_dialog = std::make_unique<preferences::PreferencesDialog>(std::move(context), nullptr);
    EXPECT_TRUE(m_dialog->Create(IDD_PREFERENCES, nullptr));
    m_dialog->ShowWindow(SW_SHOW);
    PumpWaiting();
    return *m_dialog;
}

preferences::PreferencesDialog& PreferencesTest::Dialog() const
{
    return *m_dialog;
}

void PreferencesTest::Close()
{
    if (m_dialog != nullptr)
        m_dialog->DestroyWindow();
    m_dialog.reset();
}

void PreferencesTest::Choose(const char* path) const
{
    m_dialog->GetOptionTree().SelectCategory(path);
    PumpWaiting();
}

void PreferencesTest::Click(UINT id) const
{
    m_dialog->GetDlgItem(static_cast<int>(id))->SendMessage(BM_CLICK);
    PumpWaiting();
}

void PreferencesTest::Type(UINT id, const std::string& text) const
{
    CWnd& field = *m_dialog->GetDlgItem(static_cast<int>(id));
    field.SetFocus();
    field.SendMessage(EM_SETSEL, 0, -1);
    if (text.empty())
        field.SendMessage(WM_KEYDOWN, VK_DELETE);
    for (const char character : text)
        field.SendMessage(WM_CHAR, static_cast<BYTE>(character));
}

void PreferencesTest::Select(UINT id, const char* text) const
{
    CWnd& box = *m_dialog->GetDlgItem(static_cast<int>(id));
    EXPECT_GE(box.SendMessage(CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text)), 0) << text;
    m_dialog->SendMessage(WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(box.m_hWnd));
}

void PreferencesTest::Press(UINT id) const
{
    CWnd& button = *m_dialog->GetDlgItem(static_cast<int>(id));
    EXPECT_TRUE(button.IsWindowEnabled());
    m_dialog->SendMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button.m_hWnd));
    PumpWaiting();
}

std::string PreferencesTest::TextOf(UINT id) const
{
    CString text;
    m_dialog->GetDlgItemText(static_cast<int>(id), text);
    return text.GetString();
}

bool PreferencesTest::Shows(UINT id) const
{
    return m_dialog->GetDlgItem(static_cast<int>(id))->IsWindowVisible() != FALSE;
}

bool PreferencesTest::IsOpen() const
{
    return m_dialog->IsWindowVisible() != FALSE;
}

std::string PreferencesTest::RefusalText()
{
    HWND note = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindNote, reinterpret_cast<LPARAM>(&note));
    if (note == nullptr)
        return {};
    std::array<char, 512> text{};
    TOOLINFOA tool{};
    tool.cbSize = sizeof tool;
    tool.lpszText = text.data();
    if (!SendMessage(note, TTM_ENUMTOOLSA, 0, reinterpret_cast<LPARAM>(&tool)))
        return {};
    tool.lpszText = text.data();
    SendMessage(note, TTM_GETTEXTA, text.size(), reinterpret_cast<LPARAM>(&tool));
    return text.data();
}

std::string PreferencesTest::Stored() const
{
    std::set<std::string> lines;
    HKEY root = nullptr;
    RegOpenKeyEx(m_settings.Root(), m_settings.Path().c_str(), 0, KEY_READ, &root);
    for (DWORD index = 0; root != nullptr; ++index)
    {
        std::array<char, 256> section{};
        HKEY key = nullptr;
        if (RegEnumKeyA(root, index, section.data(), section.size()) != ERROR_SUCCESS)
            break;
        if (lstrcmp(section.data(), "PreferencesDialog") != 0 &&
            RegOpenKeyEx(root, section.data(), 0, KEY_READ, &key) == ERROR_SUCCESS)
            CollectValues(key, section.data(), lines);
        RegCloseKey(key);
    }
    RegCloseKey(root);
    std::string all;
    for (const std::string& line : lines)
        all += line + '\n';
    return all;
}

} // namespace vorn::test
