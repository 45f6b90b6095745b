#include "apps/sample/SampleShots.h"

#include "apps/sample/AboutDialog.h"
#include "apps/sample/MainFrame.h"
#include "apps/sample/PageView.h"
#include "apps/sample/preferences/PreferencesDialog.h"
#include "apps/sample/preferences/ProxyDialog.h"
#include "apps/sample/resource.h"

#include <algorithm>
#include <array>

using vorn::planner::ShotRun;
using vorn::preferences::Category;
using vorn::preferences::PreferencesDialog;
using vorn::preferences::ProxyDialog;

namespace
{

/// A dialog of a page, by the command that opens it.
struct PageDialog
{
    const char* page;
    UINT command;
    const char* name; ///< of the picture
};
constexpr std::array kPageDialogs = {
    PageDialog{"Tables", ID_TABLE_EDIT, "edit-field"},
    PageDialog{"Pictures", ID_PICTURE_RESIZE, "resize-picture"},
};

/// A control of a page, to be explained.
struct PageTip
{
    const char* page;
    int control;
    const char* name; ///< of the picture
};
constexpr int kChartProjections = 2301; // the list above the chart
constexpr std::array kPageTips = {
    PageTip{"Chart", kChartProjections, "tip-5-page"},
    PageTip{"Tables", ID_TABLE_PACK, "tip-6-page-edge"},
};

ShotRun::Look TakeOnce(ShotRun& run, const char* name)
{
    return [&run, name](HWND window)
    {
        run.Shot({window}, name, true);
    };
}

/// "Chart|Night" as a part of a file's name.
std::string FileNameOf(const Category& category)
{
    std::string name = category.Path();
    std::replace(name.begin(), name.end(), '|', '-');
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char letter)
                   {
                       return static_cast<char>(tolower(letter));
                   });
    return name;
}

void TakeCategories(ShotRun& run, HWND window)
{
    auto& dialog = *static_cast<PreferencesDialog*>(CWnd::FromHandlePermanent(window));
    for (const std::unique_ptr<Category>& category : dialog.Categories())
    {
        dialog.ShowCategory(*category);
        run.Sizes(window, "options-" + FileNameOf(*category));
    }
}

void AddProxy(ProxySet& set, const char* address, bool enabled)
{
    auto proxy = std::make_unique<ProxyInfo>();
    proxy->mAddress.Parse(address);
    proxy->mEnabled = enabled;
    if (set.AddProxy(proxy.get()))
        static_cast<void>(proxy.release()); // the set's now
}

void TakeProxies(MainFrame& frame, ShotRun& run)
{
    ProxySet set; // an example, not the user's own
    AddProxy(set, "pilot@hangar.example:8080", true);
    AddProxy(set, "tower.example:3128", false);
    run.Open(
        [&]
        {
            ProxyDialog(&set, &frame).DoModal();
        },
        [&run](HWND window)
        {
            ::SendDlgItemMessage(window, IDC_VORN_PROXY_LIST, LB_SETCURSEL, 0, 0);
            ::SendMessage(window, WM_COMMAND, MAKEWPARAM(IDC_VORN_PROXY_LIST, LBN_SELCHANGE),
                          reinterpret_cast<LPARAM>(::GetDlgItem(window, IDC_VORN_PROXY_LIST)));
            run.Shot({window}, "proxies", true);
        });
}

/// A tip of several lines, and one of a control at the edge of the window.
void TakePageTips(MainFrame& frame, ShotRun& run)
{
    PageView& view = *frame.View();
    for (const PageTip& tip : kPageTips)
    {
        view.ShowPage(tip.page);
        run.ShotTip(frame, ::GetDlgItem(view, tip.control), view.Tips(), tip.name, false);
        view.Tips().Pop();
    }
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN), 0); // where nothing lights up below it
}

} // namespace

void TakeSampleShots(MainFrame& frame, ShotRun& run)
{
    run.Open(
        [&]
        {
            PreferencesDialog(frame.PreferencesContext(), &frame).DoModal();
        },
        [&run](HWND window)
        {
            TakeCategories(run, window);
        });
    TakeProxies(frame, run);
    run.Open(
        []
        {
            VornCommonLog::Instance()->DisplayLog(LOG_FATAL, false);
        },
        TakeOnce(run, "messages"));
    run.Open(
        [&]
        {
            AboutDialog(&frame).DoModal();
        },
        TakeOnce(run, "about"));
    for (const PageDialog& dialog : kPageDialogs)
    {
        frame.View()->ShowPage(dialog.page);
        run.Open(
            [&]
            {
                frame.SendMessage(WM_COMMAND, dialog.command);
            },
            TakeOnce(run, dialog.name));
    }
    TakePageTips(frame, run);
}
