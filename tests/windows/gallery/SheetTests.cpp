#include "apps/planner/NewFlightWizard.h"
#include "apps/planner/PreferencesSheet.h"
#include "apps/planner/resource.h"
#include "tests/support/DialogDriver.h"
#include "tests/windows/gallery/GalleryTest.h"

// The preferences and the wizard in their loops, from keys and clicks alone.
namespace vorn::test
{
namespace
{

constexpr int kBack = 0x3023;
constexpr int kNext = 0x3024;
constexpr int kFinish = 0x3025;
constexpr int kApply = 0x3021;

/// A key down for a scope, as this thread sees it.
class HeldKey
{
public:
    explicit HeldKey(int key) : m_key(key)
    {
        Set(0x80);
    }
    ~HeldKey()
    {
        Set(0);
    }
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

private:
    void Set(BYTE state) const
    {
        BYTE keys[256] = {};
        GetKeyboardState(keys);
        keys[m_key] = state;
        SetKeyboardState(keys);
    }

    int m_key;
};

class GallerySheets : public GalleryTest
{
protected:
    /// What a user does next. False when it cannot be done yet.
    using Step = std::function<bool()>;

    /// Has a sheet run and takes the steps, one whenever its loop has come round.
    void Drive(LayoutManagement::LayoutPropertySheet& sheet, const std::vector<Step>& steps,
               const std::function<void()>& run)
    {
        std::size_t next = 0;
        m_sheet = &sheet;
        const DialogDriver driver(
            [&]
            {
                if (sheet.m_hWnd == nullptr || !sheet.IsWindowVisible() || GetFocus() == nullptr)
                    return false;
                return steps[next]() && ++next == steps.size();
            });
        run();
        EXPECT_EQ(next, steps.size());
    }
    INT_PTR RunPreferences(const std::vector<Step>& steps)
    {
        INT_PTR result = 0;
        planner::PreferencesSheet sheet(nullptr,
                                        [this]
                                        {
                                            ++m_changes;
                                        });
        Drive(sheet, steps,
              [&]
              {
                  result = sheet.DoModal();
              });
        return result;
    }
    /// True when the plan was taken over.
    bool RunWizard(const std::vector<Step>& steps)
    {
        bool isTaken = false;
        planner::NewFlightWizard wizard(m_data, nullptr);
        Drive(wizard, steps,
              [&]
              {
                  isTaken = wizard.Run();
              });
        return isTaken;
    }

    Step Key(WPARAM key)
    {
        return [this, key]
        {
            m_foci.push_back(GetDlgCtrlID(GetFocus()));
            PostMessage(GetFocus(), WM_KEYDOWN, key, 0);
            PostMessage(GetFocus(), WM_KEYUP, key, 0);
            return true;
        };
    }
    /// A letter with Alt.
    Step Mnemonic(char letter)
    {
        return [letter]
        {
            PostMessage(GetFocus(), WM_SYSCHAR, static_cast<WPARAM>(letter), 1 << 29);
            return true;
        };
    }
    Step Click(int button)
    {
        return [this, button]
        {
            PostMessage(::GetDlgItem(*m_sheet, button), BM_CLICK, 0, 0);
            return true;
        };
    }
    /// Of a control of the page that is seen.
    Step ClickOnPage(int control)
    {
        return [this, control]
        {
            PostMessage(::GetDlgItem(*m_sheet->GetActivePage(), control), BM_CLICK, 0, 0);
            return true;
        };
    }
    Step Do(const std::function<void()>& action)
    {
        return [action]
        {
            action();
            return true;
        };
    }
    Step ExpectPage(int page)
    {
        return Do(
            [this, page]
            {
                EXPECT_EQ(m_sheet->GetActiveIndex(), page);
            });
    }
    bool IsEnabled(int button) const
    {
        return ::IsWindowEnabled(::GetDlgItem(*m_sheet, button)) != FALSE;
    }
    bool Shows(int button) const
    {
        return ::IsWindowVisible(::GetDlgItem(*m_sheet, button)) != FALSE;
    }
    void Type(int control, const char* text)
    {
        m_sheet->GetActivePage()->SetDlgItemText(control, text);
    }
    static int Stored(const char* key, int otherwise)
    {
        return VornCommonApp::Inst()->GetSettingInt("General", key, otherwise);
    }

    LayoutManagement::LayoutPropertySheet* m_sheet = nullptr;
    std::vector<int> m_foci;
    int m_changes = 0;
};

TEST_F(GallerySheets, ReturnTakesThePreferencesOver)
{
    EXPECT_EQ(RunPreferences({Key(VK_SPACE), Key(VK_RETURN)}), IDOK);
    EXPECT_EQ(m_foci, (std::vector<int>{IDC_PREF_TIPS, IDC_PREF_TIPS}));
    EXPECT_EQ(Stored("Show Dialog Tips", -1), 0);
    EXPECT_EQ(m_changes, 1);
}

TEST_F(GallerySheets, EscapeLeavesThePreferencesAsTheyWere)
{
    EXPECT_EQ(RunPreferences({Key(VK_SPACE), Key(VK_ESCAPE)}), IDCANCEL);
    EXPECT_EQ(Stored("Show Dialog Tips", -1), -1);
    EXPECT_EQ(m_changes, 0);
}

TEST_F(GallerySheets, ApplyIsThereOnceSomethingHasChangedAndTakesItOver)
{
    const auto expectApply = [this](bool enabled)
    {
        return Do(
            [this, enabled]
            {
                EXPECT_EQ(IsEnabled(kApply), enabled);
            });
    };
    const Step expectFocus = Do(
        [this]
        {
            EXPECT_NE(GetFocus(), ::GetDlgItem(*m_sheet, kApply)) << "which is disabled";
            EXPECT_TRUE(::IsChild(*m_sheet, GetFocus()));
        });
    EXPECT_EQ(RunPreferences({expectApply(false), ClickOnPage(IDC_PREF_SECONDS), expectApply(true), Click(kApply),
                              expectApply(false),
                              Do(
                                  [this]
                                  {
                                      EXPECT_EQ(Stored("Show seconds", -1), 1);
                                      EXPECT_EQ(m_changes, 1);
                                  }),
                              ClickOnPage(IDC_PREF_SECONDS), expectApply(true), Click(IDCANCEL)}),
              IDCANCEL);
    EXPECT_EQ(Stored("Show seconds", -1), 1) << "what was changed after it is gone";
    EXPECT_EQ(m_changes, 1);
}

TEST_F(GallerySheets, OkTakesOverWhatOtherPagesHave)
{
    const Step chooseKilometers = Do(
        [this]
        {
            CWnd& box = *m_sheet->GetActivePage()->GetDlgItem(IDC_PREF_UNIT + 1);
            box.SendMessage(CB_SETCURSEL, 2);
            box.GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(IDC_PREF_UNIT + 1, CBN_SELCHANGE),
                                         reinterpret_cast<LPARAM>(box.m_hWnd));
            EXPECT_EQ(TextOf(*m_sheet->GetActivePage()->GetDlgItem(IDC_PREF_EXAMPLE)),
                      "For example 185.2 KM at 100.0 KTS");
        });
    const Step showUnits = Do(
        [this]
        {
            m_sheet->SetActivePage(1);
        });
    EXPECT_EQ(RunPreferences({ClickOnPage(IDC_PREF_SECONDS), showUnits, chooseKilometers, Click(IDOK)}), IDOK);
    EXPECT_EQ(Stored("Show seconds", -1), 1);
    EXPECT_EQ(VornCommonApp::Inst()->GetSettingInt("Units", "Distance", -1), UNIT_KM);
}

TEST_F(GallerySheets, ControlTabWalksThroughThePages)
{
    std::vector<int> pages;
    const Step note = Do(
        [&]
        {
            pages.push_back(m_sheet->GetActiveIndex());
        });
    const std::unique_ptr<HeldKey> control = std::make_unique<HeldKey>(VK_CONTROL);
    std::unique_ptr<HeldKey> shift;
    const Step pressShift = Do(
        [&]
        {
            shift = std::make_unique<HeldKey>(VK_SHIFT);
        });
    const Step releaseShift = Do(
        [&]
        {
            shift.reset();
        });
    RunPreferences({note, Key(VK_TAB), note, Key(VK_TAB), note, Key(VK_TAB), note, pressShift, Key(VK_TAB), note,
                    Key(VK_TAB), note, releaseShift, Key(VK_NEXT), note, Key(VK_PRIOR), note, Click(IDCANCEL)});
    EXPECT_EQ(pages, (std::vector<int>{0, 1, 2, 0, 2, 1, 2, 1}));
}

TEST_F(GallerySheets, TabWalksThroughThePageInReadingOrderAndOnToTheButtons)
{
    RunPreferences({Key(VK_TAB), Key(VK_TAB), Key(VK_TAB), Key(VK_TAB), Key(VK_TAB), Key(VK_ESCAPE)});
    EXPECT_EQ(m_foci,
              (std::vector<int>{IDC_PREF_TIPS, IDC_PREF_WARNING, IDC_PREF_SECONDS, IDC_PREF_DECIMALS, IDOK, IDCANCEL}));
}

TEST_F(GallerySheets, AltWithALetterGoesToItsControl)
{
    int focus = 0;
    const Step note = Do(
        [&]
        {
            focus = GetDlgCtrlID(GetFocus());
        });
    EXPECT_EQ(RunPreferences({Mnemonic('d'), note, Mnemonic('s'), Key(VK_RETURN)}), IDOK);
    EXPECT_EQ(focus, IDC_PREF_DECIMALS) << "a label's letter";
    EXPECT_EQ(Stored("Show seconds", -1), 1) << "a check box's";
}

TEST_F(GallerySheets, TheWizardGoesForthAndBackAndTakesThePlanAtItsEnd)
{
    const Step typeEnds = Do(
        [this]
        {
            Type(IDC_NEW_FROM, "KYKM");
            Type(IDC_NEW_TO, "KPSC");
        });
    const Step expectFirstButtons = Do(
        [this]
        {
            EXPECT_FALSE(IsEnabled(kBack));
            EXPECT_TRUE(IsEnabled(kNext));
            EXPECT_FALSE(Shows(kFinish));
        });
    const Step expectLastButtons = Do(
        [this]
        {
            EXPECT_TRUE(IsEnabled(kBack));
            EXPECT_TRUE(Shows(kFinish));
            EXPECT_FALSE(Shows(kNext));
            EXPECT_NE(TextOf(*m_sheet->GetActivePage()->GetDlgItem(IDC_NEW_SUMMARY)).find("KYKM to KPSC"),
                      std::string::npos);
            EXPECT_EQ(m_data.plan.departure, "KSEA") << "not yet";
        });
    EXPECT_TRUE(RunWizard({expectFirstButtons, typeEnds, Click(kNext), ExpectPage(1), Click(kBack), ExpectPage(0),
                           Click(kNext), ExpectPage(1), Click(kNext), ExpectPage(2), expectLastButtons, Click(kBack),
                           ExpectPage(1), Click(kNext), Click(kFinish)}));
    EXPECT_EQ(m_data.plan.departure, "KYKM");
    EXPECT_EQ(m_data.plan.destination, "KPSC");
    EXPECT_EQ(m_data.plan.via, "");
    EXPECT_EQ(m_data.plan.weights[planner::kFrontSeats], 340);
    EXPECT_EQ(VornCommonApp::Inst()->GetSettingString("Planner", "Departure", ""), "KYKM");
}

TEST_F(GallerySheets, ReturnWalksThroughTheWizard)
{
    EXPECT_TRUE(RunWizard({Key(VK_RETURN), ExpectPage(1), Key(VK_RETURN), ExpectPage(2), Key(VK_RETURN)}));
    EXPECT_EQ(m_data.plan.via, "");
}

TEST_F(GallerySheets, EscapeEndsTheWizardOnEachPageAndThePlanStays)
{
    EXPECT_FALSE(RunWizard({Key(VK_ESCAPE)}));
    EXPECT_FALSE(RunWizard({Click(kNext), ExpectPage(1), Key(VK_ESCAPE)}));
    EXPECT_FALSE(RunWizard({Click(kNext), Click(kNext), ExpectPage(2), Key(VK_ESCAPE)}));
    const Step toSummary = Do(
        [this]
        {
            m_sheet->GetActivePage()->GetDlgItem(IDC_NEW_SUMMARY)->SetFocus();
        });
    EXPECT_FALSE(RunWizard({Click(kNext), Click(kNext), toSummary, Key(VK_ESCAPE)})) << "from a field of several lines";
    EXPECT_EQ(m_data.plan.via, "ELN EPH");
}

TEST_F(GallerySheets, TheWizardStaysWhereAPlaceIsUnknown)
{
    const Step typeNowhere = Do(
        [this]
        {
            Type(IDC_NEW_TO, "XYZ");
        });
    const Step answerBox = [this]
    {
        const HWND box = FindDialog("GalleryTests");
        if (box == nullptr)
            return false;
        EXPECT_EQ(TextOf(::GetDlgItem(box, 0xFFFF)), "There is no navaid or airport \"XYZ\".");
        PostMessage(box, WM_COMMAND, IDOK, 0);
        return true;
    };
    const Step expectFocus = Do(
        [this]
        {
            EXPECT_EQ(m_sheet->GetActiveIndex(), 0);
            EXPECT_EQ(::GetParent(GetFocus()), ::GetDlgItem(*m_sheet->GetActivePage(), IDC_NEW_TO));
        });
    EXPECT_FALSE(RunWizard({typeNowhere, Click(kNext), answerBox, expectFocus, Key(VK_ESCAPE)}));
}

} // namespace
} // namespace vorn::test
