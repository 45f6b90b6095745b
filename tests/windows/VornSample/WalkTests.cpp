#include "tests/support/PumpUntil.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/ScratchKey.h"
#include "tests/windows/VornSample/InstalledSample.h"
#include "tests/windows/VornSample/Listings.h"
#include "tests/windows/VornSample/SampleSettings.h"

#include <VornCommon.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

// Two lives of an installed sample, spoken to from outside as a user's hands would: what the first one is left with,
// the second one finds, and nothing else remains anywhere.

using namespace vorn::test;

namespace
{

constexpr const char* kStartupTitle = "Vornwald sample host (2025-2026)";

// The sample's public numbers: of its view, its pages' commands and controls, its dialogs' controls.
constexpr int kView = 0xE900;
constexpr WPARAM kTablesPage = 33104;
constexpr WPARAM kChartPage = 33105;
constexpr int kList = 2200;
constexpr int kNotice = 2207;
constexpr int kChart = 2300;
constexpr WPARAM kEditCommand = 33201;
constexpr int kEditField = 1010;
constexpr int kEditValue = 1011;
constexpr WPARAM kRouteCommand = 33500;
constexpr WPARAM kPreferencesCommand = 33010;
constexpr int kCategories = 3401;
constexpr int kDistance = 3501;
constexpr int kSeconds = 3520;
constexpr int kMinuteDecimals = 3522;
constexpr WPARAM kLegBarCommand = 33509;
constexpr int kRouteRemarks = 3123;
constexpr int kLegs = 3330;
constexpr int kWarningCheck = 1004;
// The library's, of the startup dialog.
constexpr int kDisclaimer = 1003;
constexpr int kHide = 1004;

constexpr const char* kNewName = "Walla Walla Regional";

/// The file in which an older release kept the sample's settings; taken away again.
class LegacyFile
{
public:
    explicit LegacyFile(const std::string& content) : m_content(content)
    {
        char windows[MAX_PATH];
        GetWindowsDirectoryA(windows, MAX_PATH);
        m_path = std::string(windows) + "\\VornSample.INI";
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(m_path.c_str(), "wb"), std::fclose);
        std::fwrite(content.data(), 1, content.size(), file.get());
    }
    ~LegacyFile()
    {
        DeleteFileA(m_path.c_str());
    }
    LegacyFile(const LegacyFile&) = delete;
    LegacyFile& operator=(const LegacyFile&) = delete;

    bool IsUntouched() const
    {
        return ReadWholeFile(m_path) == m_content;
    }

private:
    std::string m_content;
    std::string m_path;
};

/// What a program of the family could leave behind outside its own key and folder.
struct Surroundings
{
    Lines user;
    Lines machine;
    Lines files;
};

Surroundings LookAround()
{
    Surroundings now;
    // Hosts of other tests, which may run at the same time, have keys of their own there.
    for (const std::string& line : RegistryLines(HKEY_CURRENT_USER, "Software\\Vornwald"))
    {
        if (!line.starts_with("VornSample\\") && !line.starts_with("ConsoleHostTest\\"))
            now.user.push_back(line);
    }
    now.machine = RegistryLines(HKEY_LOCAL_MACHINE, "Software\\Vornwald");
    for (const char* const variable : {"APPDATA", "LOCALAPPDATA", "ProgramData"})
    {
        char folder[MAX_PATH] = "";
        if (GetEnvironmentVariableA(variable, folder, MAX_PATH) == 0)
            continue;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
        {
            if (entry.path().filename() == "Microsoft") // the system's own, with links that lead anywhere
                continue;
            now.files.push_back(entry.path().string());
            const Lines files = FileLines(entry.path());
            now.files.insert(now.files.end(), files.begin(), files.end());
        }
    }
    return now;
}

std::string TextOf(HWND window)
{
    std::string text(4096, '\0');
    const LRESULT length =
        SendMessageA(window, WM_GETTEXT, static_cast<WPARAM>(text.size()), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

struct ChildSearch
{
    int id;
    HWND found;
};

BOOL CALLBACK HasId(HWND window, LPARAM parameter)
{
    ChildSearch& search = *reinterpret_cast<ChildSearch*>(parameter);
    if (GetDlgCtrlID(window) != search.id)
        return TRUE;
    search.found = window;
    return FALSE;
}

/// A control however deep it stands.
HWND Control(HWND window, int id)
{
    ChildSearch search{id, nullptr};
    EnumChildWindows(window, HasId, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

BOOL CALLBACK AppendShown(HWND window, LPARAM parameter)
{
    const std::string text = TextOf(window);
    if (IsWindowVisible(window) && !text.empty())
        reinterpret_cast<std::string*>(parameter)->append(text).push_back('\n');
    return TRUE;
}

std::string ShownTexts(HWND window)
{
    std::string texts;
    EnumChildWindows(window, AppendShown, reinterpret_cast<LPARAM>(&texts));
    return texts;
}

void Choose(HWND box, WPARAM index)
{
    SendMessageA(box, CB_SETCURSEL, index, 0);
    SendMessageA(GetParent(box), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(box), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(box));
}

void Type(HWND edit, const char* text)
{
    SendMessageA(edit, EM_SETSEL, 0, -1);
    SendMessageA(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
}

RECT PlaceOf(HWND window)
{
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

std::string PlaceText(const RECT& place)
{
    return std::to_string(place.left) + "," + std::to_string(place.top) + " " +
           std::to_string(place.right - place.left) + " x " + std::to_string(place.bottom - place.top);
}

/// The form in which a main window's place is kept, from the live window.
std::string PlacementText(HWND window)
{
    WINDOWPLACEMENT place{};
    place.length = sizeof place;
    GetWindowPlacement(window, &place);
    std::string text;
    for (const LONG number :
         {static_cast<LONG>(place.flags), static_cast<LONG>(place.showCmd), place.ptMinPosition.x,
          place.ptMinPosition.y, place.ptMaxPosition.x, place.ptMaxPosition.y, place.rcNormalPosition.left,
          place.rcNormalPosition.top, place.rcNormalPosition.right, place.rcNormalPosition.bottom})
        text += (text.empty() ? "" : ",") + std::to_string(number);
    return text;
}

/// The form in which a dialog's place is kept.
std::string PlacementBytes(HWND window)
{
    WINDOWPLACEMENT place{};
    place.length = sizeof place;
    GetWindowPlacement(window, &place);
    return Hex(&place, sizeof place);
}

bool Goes(HWND window)
{
    return PumpUntil(
        [window]
        {
            return IsWindow(window) == FALSE;
        });
}

class SampleWalk : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_installed.IsComplete());
        m_around = LookAround();
        m_programs = FileLines(m_installed.Folder());
        m_table = ReadWholeFile(m_installed.File("data\\navaids.dbf"));
        ASSERT_GT(m_table.size(), 1000u);
    }

    DWORD Run(const std::string& arguments)
    {
        return ProgramRun(m_installed.File("VornSample.exe"), arguments, m_folder.File("output.txt")).ExitCode();
    }

    /// Starts it, looks at its startup dialog, closes that, and waits for the main window.
    void Start(bool isFirst)
    {
        m_sample = std::make_unique<ProgramRun>(m_installed.File("VornSample.exe"), "", m_folder.File("output.txt"));
        const HWND dialog = m_sample->Dialog(kStartupTitle);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(IsWindowVisible(GetDlgItem(dialog, kDisclaimer)) != FALSE, isFirst);
        EXPECT_EQ(IsDlgButtonChecked(dialog, kHide) == BST_CHECKED, !isFirst);
        const std::string texts = ShownTexts(dialog);
        for (const char* const line :
             {"Welcome to Vornwald sample host\n", "Copyright \xA9 2025-2026 Vornwald. All rights reserved.\n",
              "Coverage:      Radio aids of the Pacific Northwest\n", "Coverage:      Runways, United States\n",
              "Coverage:      Runways, Canada\n", "Coverage:      Shore lines and borders\n",
              "Effective:       ", "Expires:          ", "Next Update: "})
            EXPECT_NE(texts.find(line), std::string::npos) << line << " is not in:\n" << texts;
        if (isFirst)
            SendMessageA(GetDlgItem(dialog, kHide), BM_CLICK, 0, 0);
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
        m_window = m_sample->MainWindow();
        ASSERT_NE(m_window, nullptr);
        m_view = GetDlgItem(m_window, kView);
    }

    void End()
    {
        PostMessageA(m_window, WM_CLOSE, 0, 0);
        EXPECT_EQ(m_sample->ExitCode(), 0u);
        m_sample.reset();
    }

    void Command(WPARAM command) const
    {
        PostMessageA(m_window, WM_COMMAND, command, 0);
    }

    void Close(HWND dialog, int button) const
    {
        PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
        EXPECT_TRUE(Goes(dialog));
        SendMessageA(m_window, WM_NULL, 0, 0); // the command has ended
    }

    HWND OpenDialog(WPARAM command, const char* title) const
    {
        Command(command);
        return m_sample->Dialog(title);
    }

    /// Moved by a hand, and enlarged by a quarter.
    void MoveChart()
    {
        Command(kChartPage);
        ASSERT_TRUE(PumpUntil(
            [&]
            {
                RECT area{};
                GetClientRect(GetDlgItem(m_view, kChart), &area);
                return IsWindowVisible(GetDlgItem(m_view, kChart)) != FALSE && area.bottom > 400;
            }));
        const HWND shown = GetDlgItem(m_view, kChart);
        SendMessageA(shown, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(300, 300));
        SendMessageA(shown, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(400, 350));
        SendMessageA(shown, WM_LBUTTONUP, 0, MAKELPARAM(400, 350));
        PostMessageA(shown, WM_KEYDOWN, VK_ADD, 1);
    }

    HWND OpenFirstAid()
    {
        Command(kTablesPage);
        EXPECT_TRUE(PumpUntil(
            [&]
            {
                const HWND list = GetDlgItem(m_view, kList);
                return IsWindowVisible(list) && SendMessageA(list, LVM_GETITEMCOUNT, 0, 0) == 156;
            }));
        const HWND dialog = OpenDialog(kEditCommand, "Edit record 0");
        Choose(GetDlgItem(dialog, kEditField), 1);
        return dialog;
    }

    void EditTable()
    {
        const HWND dialog = OpenFirstAid();
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(TextOf(GetDlgItem(dialog, kEditValue)), "Grand Forks");
        Type(GetDlgItem(dialog, kEditValue), kNewName);
        Close(dialog, IDOK);
        EXPECT_EQ(TextOf(GetDlgItem(m_view, kNotice)), "Written: NAME of record 0.");
    }

    /// The planner warns first, until it is told not to.
    void ChangeRoute()
    {
        const HWND warning = OpenDialog(kRouteCommand, "Not for navigation");
        ASSERT_NE(warning, nullptr);
        SendMessageA(GetDlgItem(warning, kWarningCheck), BM_CLICK, 0, 0);
        PostMessageA(warning, WM_COMMAND, IDOK, 0);
        const HWND dialog = m_sample->Dialog("Route settings");
        ASSERT_NE(dialog, nullptr);
        SetWindowPos(dialog, nullptr, 130, 110, 700, 600, SWP_NOZORDER | SWP_NOACTIVATE);
        m_route = PlaceOf(dialog);
        m_routePlacement = PlacementBytes(dialog);
        Type(GetDlgItem(dialog, kRouteRemarks), "By the river");
        Close(dialog, IDOK);
    }

    void CheckRoute() const
    {
        const HWND dialog = OpenDialog(kRouteCommand, "Route settings"); // no warning any more
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(PlaceText(PlaceOf(dialog)), PlaceText(m_route));
        EXPECT_EQ(TextOf(GetDlgItem(dialog, kRouteRemarks)), "By the river");
        Close(dialog, IDCANCEL);
    }

    /// The preferences with the category in front that has a control.
    static HWND ShowPreference(HWND dialog, int id)
    {
        const HWND control = GetDlgItem(dialog, id);
        const HWND tree = GetDlgItem(dialog, kCategories);
        const auto next = [tree](WPARAM relation, LRESULT item)
        {
            return SendMessageA(tree, TVM_GETNEXTITEM, relation, item);
        };
        for (LRESULT item = next(TVGN_ROOT, 0); item != 0 && !IsWindowVisible(control);
             item = next(TVGN_NEXTVISIBLE, item))
        {
            SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, item);
            PumpUntil(
                [control]
                {
                    return IsWindowVisible(control) != FALSE;
                },
                std::chrono::milliseconds(100)); // most categories are others
        }
        EXPECT_TRUE(IsWindowVisible(control));
        return control;
    }

    void ChangePreferences()
    {
        const HWND dialog = OpenDialog(kPreferencesCommand, "Preferences");
        ASSERT_NE(dialog, nullptr);
        const HWND seconds = ShowPreference(dialog, kSeconds);
        EXPECT_EQ(SendMessageA(seconds, BM_GETCHECK, 0, 0), BST_CHECKED) << "of the older installation";
        SendMessageA(seconds, BM_CLICK, 0, 0);
        Type(GetDlgItem(dialog, kMinuteDecimals), "3");
        const HWND distance = ShowPreference(dialog, kDistance);
        EXPECT_EQ(TextOf(distance), "Statute Mile") << "of the older installation";
        Choose(distance, 2);
        SetWindowPos(dialog, nullptr, 90, 140, 720, 520, SWP_NOZORDER | SWP_NOACTIVATE);
        m_preferences = PlaceOf(dialog);
        m_preferencesPlacement = PlacementBytes(dialog);
        Close(dialog, IDOK);
    }

    void CheckPreferences() const
    {
        const HWND dialog = OpenDialog(kPreferencesCommand, "Preferences");
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(PlaceText(PlaceOf(dialog)), PlaceText(m_preferences));
        EXPECT_EQ(SendMessageA(GetDlgItem(dialog, kSeconds), BM_GETCHECK, 0, 0), BST_UNCHECKED);
        EXPECT_EQ(TextOf(GetDlgItem(dialog, kMinuteDecimals)), "3");
        EXPECT_EQ(TextOf(GetDlgItem(dialog, kDistance)), "Kilometer");
        Close(dialog, IDCANCEL);
    }

    int LegsShown() const
    {
        const HWND list = Control(m_window, kLegs);
        return IsWindowVisible(list) ? static_cast<int>(SendMessageA(list, LB_GETCOUNT, 0, 0)) : -1;
    }

    std::string Stored(const std::string& section, const char* key) const
    {
        char text[1024] = "";
        DWORD size = sizeof text;
        RegGetValueA(HKEY_CURRENT_USER, (std::string(kSettings) + '\\' + section).c_str(), key, RRF_RT_REG_SZ, nullptr,
                     text, &size);
        return text;
    }

    void MeasureBars();
    void CheckView();
    void CheckTable() const;
    void CheckUsage() const;
    void CheckSurroundings() const;
    Lines ExpectedSettings() const;

    ScratchFolder m_folder;
    ScratchKey m_settings{HKEY_CURRENT_USER, kSettings};
    InstalledSample m_installed{m_folder.Path() / "Vornwald" / "VornSample"};
    const LegacyFile m_legacy{"[Units]\r\nSpeed=7\r\nDistance=1\r\n"
                              "[General]\r\nShow seconds=1\r\n"
                              "[Planner]\r\nAircraft=N77LEG\r\n"
                              "[Paths]\r\nUserHidden Path=" +
                              m_folder.File("Hidden") +
                              "\r\n"
                              "[Chart]\r\nProjection=2\r\nParam1=44\r\nParam2=52\r\nScale=12050\r\n"
                              "CntrLat=47.5\r\nCntrLon=-121\r\n"};
    const CTime m_begin = CTime::GetCurrentTime();
    Surroundings m_around;
    Lines m_programs;
    std::string m_table;
    std::unique_ptr<ProgramRun> m_sample;
    HWND m_window = nullptr;
    HWND m_view = nullptr;
    RECT m_route{};
    std::string m_routePlacement;
    RECT m_preferences{};
    std::string m_preferencesPlacement;
    std::string m_placement;
    std::string m_legBar;
    std::string m_statusBar;
    std::string m_barSize;
};

/// The places of the status bar and of the planner's bar, which is docked at the right, as they are to be kept.
void SampleWalk::MeasureBars()
{
    const auto placeIn = [this](HWND window)
    {
        RECT place = PlaceOf(window);
        MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&place), 2);
        return std::to_string(place.left) + ',' + std::to_string(place.top) + ',' + std::to_string(place.right) + ',' +
               std::to_string(place.bottom);
    };
    const HWND bar = GetParent(Control(m_window, kLegs));
    const RECT place = PlaceOf(bar);
    m_barSize = std::to_string(place.right - place.left) + ',' + std::to_string(place.bottom - place.top);
    m_legBar = std::to_string(kLegBarCommand) + ",1,0,16384," + placeIn(bar) + ",59421,0,0,1,0,0,0";
    m_statusBar = "59393,1,0,32768," + placeIn(GetDlgItem(m_window, 59393)) + ",0,0,0,1,0,0,0";
}

/// The older installation's view, dragged by 100 pixels to the right and 50 downwards, then a quarter larger.
void SampleWalk::CheckView()
{
    constexpr double kDegreesAPixel = 180 / 3.14159265 / 12050;
    ViewDefinition view;
    ASSERT_TRUE(view.Parse(Stored("Views", "Chart").c_str()));
    EXPECT_EQ(view.mProjection, PROJECTION_LAMBERT_CONFORMAL);
    EXPECT_EQ(view.mParams, (std::vector<double>{44, 52}));
    EXPECT_NEAR(view.mScale / 12050, 1.25, 0.01);
    EXPECT_NEAR(view.mCenterLat - 47.5, 50 * kDegreesAPixel, 0.05);
    EXPECT_NEAR(view.mCenterLon + 121, -100 * kDegreesAPixel / std::cos(47.6 * 3.14159265 / 180), 0.05);
}

/// One field of one record, and not a byte beside it.
void SampleWalk::CheckTable() const
{
    constexpr std::size_t kFields = 10;
    constexpr std::size_t kName = 32 + 32 * kFields + 1 + 1 + 4; // behind the header, the mark and the ident
    std::string expected = m_table;
    expected.replace(kName, 26, std::string(kNewName) + std::string(26 - std::strlen(kNewName), ' '));
    EXPECT_TRUE(ReadWholeFile(m_installed.File("data\\navaids.dbf")) == expected);
    Lines changed = Without(FileLines(m_installed.Folder()), m_programs);
    ASSERT_EQ(changed.size(), 1u) << Joined(changed);
    EXPECT_TRUE(changed.front().starts_with("data\\navaids.dbf, ")) << changed.front();
    EXPECT_EQ(FileLines(m_installed.Folder()).size(), m_programs.size());
}

/// The counters: version 1, the day of the first start, then starts, tables opened, searches, edits.
void SampleWalk::CheckUsage() const
{
    const std::string usage = m_folder.Read("Hidden\\usage.dat");
    ASSERT_EQ(usage.size(), 4u + 8u + 4u + 4u * 4u);
    std::array<std::int32_t, 5> counts{};
    std::int64_t start = 0;
    EXPECT_EQ(usage.substr(0, 4), std::string("\1\0\0\0", 4));
    std::memcpy(&start, usage.data() + 4, sizeof start);
    std::memcpy(counts.data(), usage.data() + 12, sizeof counts);
    EXPECT_GE(start, m_begin.GetTime());
    EXPECT_LE(start, CTime::GetCurrentTime().GetTime());
    EXPECT_EQ(counts, (std::array<std::int32_t, 5>{4, 4, 2, 0, 1}));
}

void SampleWalk::CheckSurroundings() const
{
    EXPECT_TRUE(m_legacy.IsUntouched());
    const Surroundings now = LookAround();
    EXPECT_EQ(Joined(now.user), Joined(m_around.user));
    EXPECT_EQ(Joined(now.machine), Joined(m_around.machine));
    EXPECT_EQ(Joined(Without(now.files, m_around.files)), "");
    Lines others;
    for (const std::string& line : FileLines(m_folder.Path()))
    {
        if (!line.starts_with("Vornwald\\VornSample\\"))
            others.push_back(line.substr(0, line.find(',')));
    }
    EXPECT_EQ(Joined(others), "Hidden\\messages.log\nHidden\\usage.dat\noutput.txt\n");
}

Lines SampleWalk::ExpectedSettings() const
{
    Lines lines = {
        "Bars\\Bar0 = \"" + m_statusBar + '"',
        "Bars\\Bar1 = \"" + m_legBar + '"',
        "Bars\\Bars = 2",
        "Bars\\ScreenCX = " + std::to_string(GetSystemMetrics(SM_CXSCREEN)),
        "Bars\\ScreenCY = " + std::to_string(GetSystemMetrics(SM_CYSCREEN)),
        "Dialog Bar Sizes\\Docked33509 = \"" + m_barSize + '"',
        "Dialog Bar Sizes\\Floating33509 = \"" + m_barSize + '"',
        "Chart\\Night = 0",
        "Chart\\Projection = -1",
        "General\\LatLonPrecMinutes = 3",
        "General\\Show seconds = 0",
        "Units\\Distance = 2",
        "Startup\\NoDisclaimer = 1",
        "Views\\Chart = \"" + Stored("Views", "Chart") + '"',
        "Window\\Page = \"Tables\"",
        "WindowPlacement\\Main = \"" + m_placement + '"',
        "PreferencesDialog\\WindowPlacement = binary" + m_preferencesPlacement,
        "RouteDialog\\WindowPlacement = binary" + m_routePlacement,
        // The flight as it was, with the aircraft of the older installation.
        "Planner\\Aircraft = \"N77LEG\"",
        "Planner\\Alternate = \"KPSC\"",
        "Planner\\Arm0 = \"40.6\"",
        "Planner\\Arm1 = \"37\"",
        "Planner\\Arm2 = \"73\"",
        "Planner\\Arm3 = \"95\"",
        "Planner\\Arm4 = \"48\"",
        "Planner\\AvoidClassB = 0",
        "Planner\\AvoidClassC = 0",
        "Planner\\AvoidProhibited = 1",
        "Planner\\AvoidRestricted = 1",
        "Planner\\BlackAndWhite = 0",
        "Planner\\Contingency = \"5\"",
        "Planner\\Copies = \"1\"",
        "Planner\\Departure = \"KSEA\"",
        "Planner\\DepartureTime = \"0900\"",
        "Planner\\Destination = \"KGEG\"",
        "Planner\\Flow = \"9.2\"",
        "Planner\\Footer = \" \"",
        "Planner\\Header = \"Flight plan\"",
        "Planner\\Landscape = 0",
        "Planner\\LongestLeg = \"150\"",
        "Planner\\Margin0 = \"20\"",
        "Planner\\Margin1 = \"10\"",
        "Planner\\Margin2 = \"10\"",
        "Planner\\Margin3 = \"12\"",
        "Planner\\Notes = \" \"",
        "Planner\\OnBoard = \"38\"",
        "Planner\\PrintChart = 1",
        "Planner\\PrintChecklist = 0",
        "Planner\\PrintLoading = 1",
        "Planner\\PrintLog = 1",
        "Planner\\Remarks = \"By the river\"",
        "Planner\\Reserve = \"45\"",
        "Planner\\Routing = 0",
        "Planner\\SecondAlternate = \" \"",
        "Planner\\Speed = \"122\"",
        "Planner\\Taxi = \"1.1\"",
        "Planner\\Via = \"ELN EPH\"",
        "Planner\\Warning = 0",
        "Planner\\Weight0 = \"1663\"",
        "Planner\\Weight1 = \"340\"",
        "Planner\\Weight2 = \"0\"",
        "Planner\\Weight3 = \"30\"",
        "Planner\\Weight4 = \"0\"",
    };
    std::sort(lines.begin(), lines.end());
    return lines;
}

} // namespace

TEST_F(SampleWalk, TheSecondLifeFindsWhatTheFirstOneLeft)
{
    // Reading settings writes none, and the older installation's are in force. The bar of the planner keeps its size.
    ASSERT_EQ(Run("--no-startup --summary"), 0u);
    const std::string summary = m_folder.Read("output.txt");
    EXPECT_NE(summary.find("  Speed                 Kilometer per Hour  INI file\n"), std::string::npos) << summary;
    const Lines sizes = RegistryLines(HKEY_CURRENT_USER, kSettings);
    ASSERT_EQ(sizes.size(), 2u) << Joined(sizes);
    EXPECT_TRUE(sizes[0].starts_with("Dialog Bar Sizes\\Docked33509 = ")) << sizes[0];
    EXPECT_TRUE(sizes[1].starts_with("Dialog Bar Sizes\\Floating33509 = ")) << sizes[1];

    ASSERT_NO_FATAL_FAILURE(Start(true));
    SetWindowPos(m_window, nullptr, 60, 70, 1000, 740, SWP_NOZORDER | SWP_NOACTIVATE);
    const RECT place = PlaceOf(m_window);
    EXPECT_EQ(PlaceText(place), "60,70 1000 x 740");
    ASSERT_NO_FATAL_FAILURE(ChangePreferences());
    ASSERT_NO_FATAL_FAILURE(MoveChart());
    ASSERT_NO_FATAL_FAILURE(ChangeRoute());
    Command(kLegBarCommand);
    EXPECT_TRUE(PumpUntil(
        [this]
        {
            return LegsShown() == 3;
        }));
    ASSERT_NO_FATAL_FAILURE(EditTable());
    MeasureBars();
    m_placement = PlacementText(m_window);
    End();

    CheckView();
    CheckTable();
    const Lines left = RegistryLines(HKEY_CURRENT_USER, kSettings);
    EXPECT_EQ(Joined(left), Joined(ExpectedSettings()));

    ASSERT_NO_FATAL_FAILURE(Start(false));
    EXPECT_EQ(PlaceText(PlaceOf(m_window)), PlaceText(place));
    EXPECT_TRUE(PumpUntil(
        [this]
        {
            return IsWindowVisible(GetDlgItem(m_view, kList)) && LegsShown() == 3;
        }))
        << "the page that was left comes back, the bar with its content too";
    CheckPreferences();
    CheckRoute();
    const HWND dialog = OpenFirstAid();
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kEditValue)), kNewName);
    Close(dialog, IDCANCEL);
    Command(kChartPage);
    EXPECT_TRUE(PumpUntil(
        [this]
        {
            return IsWindowVisible(GetDlgItem(m_view, kChart)) != FALSE;
        }));
    Command(kTablesPage);
    End();
    EXPECT_EQ(Joined(RegistryLines(HKEY_CURRENT_USER, kSettings)), Joined(left)) << "nothing was changed";

    EXPECT_EQ(Run("--no-startup --summary"), 0u);
    const std::string after = m_folder.Read("output.txt");
    EXPECT_NE(after.find("  Speed                 Kilometer per Hour  INI file\n"), std::string::npos) << after;
    EXPECT_NE(after.find("  Distance              Kilometer           Registry\n"), std::string::npos) << after;
    EXPECT_EQ(Joined(RegistryLines(HKEY_CURRENT_USER, kSettings)), Joined(left));
    CheckTable();
    CheckUsage();
    CheckSurroundings();
}
