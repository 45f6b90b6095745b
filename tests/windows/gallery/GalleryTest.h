#pragma once

#include "apps/planner/PlannerDialog.h"
#include "tests/support/ScratchKey.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vorn::test
{

/// A window of the planner that stands open without its loop. It is closed with the object.
class OpenWindow
{
public:
    OpenWindow() = default;
    virtual ~OpenWindow() = default;
    OpenWindow(const OpenWindow&) = delete;
    OpenWindow& operator=(const OpenWindow&) = delete;

    virtual CWnd& Window() = 0;
    /// The window through whose controls TAB walks.
    virtual HWND ControlsOwner();
    virtual int Pages() const;
    virtual void ShowPage(int page);
};

/// A kind of them, by the name that tests give it.
struct GalleryWindow
{
    const char* name;
    /// Opens one; it need not be shown yet.
    std::unique_ptr<OpenWindow> (*open)(planner::PlannerData& data);
    /// Sheets promise to paint all that they show at each message of a size.
    bool isSheet = false;
};

/// All dialogs, the sheet, the wizard and the log.
const std::vector<GalleryWindow>& GalleryWindows();
const GalleryWindow& GalleryWindowNamed(const std::string& name);

std::ostream& operator<<(std::ostream& stream, const GalleryWindow& window);
std::string NameOfWindow(const testing::TestParamInfo<GalleryWindow>& parameter);

/// A host application with a plan and six places. Its settings and its profile are the test's own, and empty at first.
class GalleryTest : public testing::Test
{
protected:
    GalleryTest();
    ~GalleryTest() override;

    /// Opens and shows a window; null when it did not open.
    std::unique_ptr<OpenWindow> Open(const GalleryWindow& window);

    planner::PlannerData m_data;

private:
    ScratchKey m_settings{HKEY_CURRENT_USER, "Software\\Vornwald\\GalleryTests"};
    ScratchKey m_profile{HKEY_CURRENT_USER, "Software\\VornTests\\GalleryTests"};
};

/// Of each kind in turn one that is open.
class GalleryWindowTest : public GalleryTest, public testing::WithParamInterface<GalleryWindow>
{
protected:
    void SetUp() override;
    void TearDown() override;

    CWnd& Window();
    void Reopen();

    std::unique_ptr<OpenWindow> m_open;
};

CRect WindowRect(HWND window);
void SizeTo(HWND window, int width, int height);
std::string TextOf(HWND window);
/// The faults of a window as one text; empty when there are none.
std::string FaultsText(HWND window);
/// The visible controls of a window, and those of the dialogs in it, in their order.
std::vector<HWND> ControlsOf(HWND window);

} // namespace vorn::test
