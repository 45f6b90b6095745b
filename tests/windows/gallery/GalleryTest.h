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

/// A dialog of the planner, by the name that tests give it.
struct GalleryDialog
{
    const char* name;
    UINT id;
    /// The section of the profile that keeps its place.
    const char* section;
    std::unique_ptr<planner::PlannerDialog> (*make)(planner::PlannerData& data);
};

/// All of them.
const std::vector<GalleryDialog>& GalleryDialogs();
const GalleryDialog& GalleryDialogNamed(const std::string& name);

std::ostream& operator<<(std::ostream& stream, const GalleryDialog& dialog);
std::string NameOfDialog(const testing::TestParamInfo<GalleryDialog>& parameter);

/// A host application with a plan and six places. Its settings and its profile are the test's own, and empty at first.
class GalleryTest : public testing::Test
{
protected:
    GalleryTest();
    ~GalleryTest() override;

    /// A dialog as the planner opens it, but without its loop; shown.
    std::unique_ptr<planner::PlannerDialog> Open(const GalleryDialog& dialog);
    /// Closes what Open() gave.
    static void Close(std::unique_ptr<planner::PlannerDialog>& dialog);

    planner::PlannerData m_data;

private:
    ScratchKey m_settings{HKEY_CURRENT_USER, "Software\\Vornwald\\GalleryTests"};
    ScratchKey m_profile{HKEY_CURRENT_USER, "Software\\VornTests\\GalleryTests"};
};

CRect WindowRect(HWND window);
void SizeTo(HWND window, int width, int height);
/// The faults of a window as one text; empty when there are none.
std::string FaultsText(HWND window);

} // namespace vorn::test
