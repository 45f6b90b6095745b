#include "tests/support/DialogDriver.h"
#include "tests/windows/small_controls/ControlDialog.h"
#include "toolkit/ControlIds.h"
#include "toolkit/WarningDlgWithCheck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>

using namespace vorn::test;

namespace
{
constexpr const char* kTitle = "Terrain ahead";

CRect PlaceOf(HWND box, int id)
{
    CRect rect;
    ::GetWindowRect(::GetDlgItem(box, id), &rect);
    ::MapWindowPoints(nullptr, box, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

bool IsShown(HWND box, int id)
{
    return ::IsWindowVisible(::GetDlgItem(box, id)) != FALSE;
}

/// Runs a warning; `look` sees it before it is closed by a command.
INT_PTR ShowBox(WarningDlgWithCheck& warning, UINT command, const std::function<void(HWND)>& look = nullptr)
{
    DialogDriver driver(
        [&]
        {
            const HWND box = FindDialog(kTitle);
            if (box == nullptr)
            {
                return false;
            }
            if (look)
            {
                look(box);
            }
            ::PostMessage(box, WM_COMMAND, command, 0);
            return true;
        });
    return warning.DoModal();
}

/// Whether all that is shown lies within the box and nothing over anything else.
void ExpectTidy(HWND box)
{
    CRect client;
    ::GetClientRect(box, &client);
    const int ids[] = {IDC_VORN_WARNING_ICON, IDC_VORN_WARNING_TEXT, IDC_VORN_WARNING_SCROLLED, IDC_VORN_WARNING_CHECK,
                       IDOK};
    for (const int id : ids)
    {
        const CRect place = PlaceOf(box, id);
        CRect common;
        EXPECT_TRUE(!IsShown(box, id) || place.IsRectEmpty() ||
                    (common.IntersectRect(client, place) && common == place))
            << id;
        for (const int other : ids)
        {
            const bool both = id < other && IsShown(box, id) && IsShown(box, other);
            EXPECT_FALSE(both && common.IntersectRect(place, PlaceOf(box, other))) << id << " and " << other;
        }
    }
}
} // namespace

TEST(Warning, TellsHowTheBoxWasChecked)
{
    WarningDlgWithCheck warning("The route passes below the minimum altitude.", kTitle, "&Do not show this again",
                                false);
    EXPECT_FALSE(warning.WasCheckChecked());
    EXPECT_EQ(IDOK, ShowBox(warning, IDOK,
                            [](HWND box)
                            {
                                EXPECT_EQ("The route passes below the minimum altitude.",
                                          TextOf(::GetDlgItem(box, IDC_VORN_WARNING_TEXT)));
                                EXPECT_EQ("&Do not show this again", TextOf(::GetDlgItem(box, IDC_VORN_WARNING_CHECK)));
                                EXPECT_EQ(::GetDlgItem(box, IDOK), ::GetFocus());
                                ::SendDlgItemMessage(box, IDC_VORN_WARNING_CHECK, BM_CLICK, 0, 0);
                                ExpectTidy(box);
                            }));
    EXPECT_TRUE(warning.WasCheckChecked());
}

TEST(Warning, ACancelledOneLeavesTheFirstState)
{
    WarningDlgWithCheck warning("text", kTitle, "check", true);
    EXPECT_EQ(IDCANCEL, ShowBox(warning, IDCANCEL,
                                [](HWND box)
                                {
                                    EXPECT_TRUE(::IsDlgButtonChecked(box, IDC_VORN_WARNING_CHECK));
                                    ::SendDlgItemMessage(box, IDC_VORN_WARNING_CHECK, BM_CLICK, 0, 0);
                                }));
    EXPECT_TRUE(warning.WasCheckChecked());
}

TEST(Warning, IsAsLargeAsItsText)
{
    CSize small;
    CSize large;
    const auto sizeInto = [](CSize& size)
    {
        return [&size](HWND box)
        {
            CRect frame;
            ::GetWindowRect(box, &frame);
            size = frame.Size();
            ExpectTidy(box);
        };
    };
    WarningDlgWithCheck one("Short.", kTitle, "check", false);
    ShowBox(one, IDOK, sizeInto(small));
    std::string text;
    for (int i = 0; i < 12; ++i)
    {
        text += "A sentence of a warning that is so long that it is wrapped. ";
    }
    WarningDlgWithCheck two(text.c_str(), kTitle, "check", false);
    ShowBox(two, IDOK, sizeInto(large));
    EXPECT_GT(large.cx, small.cx);
    EXPECT_GT(large.cy, small.cy);
    EXPECT_LE(large.cx, ::GetSystemMetrics(SM_CXSCREEN) * 7 / 10);
}

TEST(Warning, AVeryHighTextScrolls)
{
    std::string text;
    for (int i = 0; i < 200; ++i)
    {
        text += "Line " + std::to_string(i) + "\n";
    }
    WarningDlgWithCheck warning(text.c_str(), kTitle, "check", false);
    ShowBox(warning, IDOK,
            [](HWND box)
            {
                EXPECT_TRUE(IsShown(box, IDC_VORN_WARNING_SCROLLED));
                EXPECT_FALSE(IsShown(box, IDC_VORN_WARNING_TEXT));
                EXPECT_EQ(201, ::SendDlgItemMessage(box, IDC_VORN_WARNING_SCROLLED, EM_GETLINECOUNT, 0, 0));
                CRect frame;
                ::GetWindowRect(box, &frame);
                EXPECT_LT(frame.Height(), ::GetSystemMetrics(SM_CYSCREEN));
                ExpectTidy(box);
            });
}

TEST(Warning, WithoutACheckTextThereIsNoBox)
{
    WarningDlgWithCheck warning(nullptr, kTitle, nullptr, true);
    ShowBox(warning, IDOK,
            [](HWND box)
            {
                EXPECT_FALSE(IsShown(box, IDC_VORN_WARNING_CHECK));
                ExpectTidy(box);
            });
    EXPECT_TRUE(warning.WasCheckChecked());
}

TEST(Warning, ItsMarginsAndGapsAreInDialogUnits)
{
    WarningDlgWithCheck warning("The route passes below the minimum altitude.", kTitle, "&Do not show this again",
                                false);
    ShowBox(warning, IDOK,
            [](HWND box)
            {
                CRect units(4, 4, 7, 7); // gap and margin
                ::MapDialogRect(box, &units);
                CRect client;
                ::GetClientRect(box, &client);
                const CRect icon = PlaceOf(box, IDC_VORN_WARNING_ICON);
                const CRect text = PlaceOf(box, IDC_VORN_WARNING_TEXT);
                const CRect check = PlaceOf(box, IDC_VORN_WARNING_CHECK);
                const CRect button = PlaceOf(box, IDOK);
                EXPECT_EQ(units.BottomRight(), icon.TopLeft());
                EXPECT_EQ(icon.right + units.left, text.left);
                EXPECT_EQ(text.left, check.left);
                EXPECT_EQ(std::max(icon.bottom, text.bottom) + units.top, check.top);
                EXPECT_EQ(check.bottom + units.top, button.top);
                EXPECT_EQ(client.bottom - units.bottom, button.bottom);
                EXPECT_EQ(client.right - units.right, std::max(text.right, check.right));
                EXPECT_NEAR(client.CenterPoint().x, button.CenterPoint().x, 1) << "in the middle";
                EXPECT_EQ(reinterpret_cast<LRESULT>(::LoadIcon(nullptr, IDI_WARNING)),
                          ::SendDlgItemMessage(box, IDC_VORN_WARNING_ICON, STM_GETICON, 0, 0));
            });
}

TEST(Warning, ItsTextIsWrappedAtFourHundredDialogUnits)
{
    std::string text;
    for (int i = 0; i < 60; ++i)
    {
        text += "word ";
    }
    WarningDlgWithCheck warning(text.c_str(), kTitle, "check", false);
    ShowBox(warning, IDOK,
            [](HWND box)
            {
                CRect units(0, 0, 400, 8);
                ::MapDialogRect(box, &units);
                RECT work{};
                ::SystemParametersInfo(SPI_GETWORKAREA, 0, &work, 0);
                const LONG most = std::min(units.right, (work.right - work.left) * 60 / 100);
                const CRect place = PlaceOf(box, IDC_VORN_WARNING_TEXT);
                EXPECT_LE(place.Width(), most);
                EXPECT_GT(place.Width(), most - 60) << "a word more would not have fitted";
            });
}
