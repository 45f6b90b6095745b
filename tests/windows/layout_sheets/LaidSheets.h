#pragma once

#include "framework/controls/CTabCtrl.h"
#include "framework/dialog/CPropertySheet.h"
#include "tests/support/DialogTemplateBuilder.h"
#include "tests/windows/layout/ProfileApp.h"
#include "toolkit/layout/LayoutPropertyPage.h"
#include "toolkit/layout/LayoutPropertySheet.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

inline constexpr int kPageEdit = 1001;

/// A template of a page with one edit box, in memory, 160 by 80 dialog units.
std::vector<std::uint8_t> PageTemplate(const char* title);

/// A page whose edit box fills it.
class PlannerPage : public LayoutManagement::LayoutPropertyPage
{
public:
    explicit PlannerPage(const char* title = "Route");
    ~PlannerPage() override;
    BOOL OnInitDialog() override;

    CRect Edit() const;
    CRect Client() const;
    using LayoutMgr::GetTrackSizes;

    int* m_deaths = nullptr; ///< raised by the destructor

private:
    std::vector<std::uint8_t> m_bytes;
};

/// A page without layout.
class PlainPage : public CPropertyPage
{
public:
    explicit PlainPage(const char* title = "Plain");

private:
    std::vector<std::uint8_t> m_bytes;
};

/// A sheet that tells where its parts stand.
class PlannerSheet : public LayoutManagement::LayoutPropertySheet
{
public:
    explicit PlannerSheet(LPCSTR section = nullptr, bool repositionBars = false);
    ~PlannerSheet() override;
    BOOL OnInitDialog() override;

    CSize Client() const;
    CSize Outer() const;
    CSize Frame() const;
    void Size(CSize outer);
    void SizeBy(int more, int lower);
    HWND Part(int id) const;
    bool Shows(int id) const;
    /// A control's place in client coordinates.
    CRect Place(int id) const;
    CRect Tabs() const;
    CRect PageArea() const;
    CRect PlaceOf(const CWnd& page) const;

    std::function<void(PlannerSheet&)> m_onInit;
    int* m_deaths = nullptr; ///< raised by the destructor
    using LayoutMgr::GetTrackSizes;
    using LayoutMgr::item;
};

CRect PlaceIn(HWND parent, HWND control);

/// The framework's sheet, which lays nothing out.
class FrameworkSheet : public CPropertySheet
{
public:
    FrameworkSheet() : CPropertySheet("Planning")
    {
    }
};

/// A sheet of one page, open while it lives.
template <class Sheet, class Page = PlannerPage>
struct OpenSheet
{
    OpenSheet()
    {
        sheet.AddPage(&page);
        EXPECT_TRUE(sheet.Create());
    }
    ~OpenSheet()
    {
        sheet.DestroyWindow();
    }
    OpenSheet(const OpenSheet&) = delete;
    OpenSheet& operator=(const OpenSheet&) = delete;

    Page page;
    Sheet sheet;
};

/// A sheet of three pages, which its tests open.
class SheetOfThree : public testing::Test
{
protected:
    SheetOfThree();
    ~SheetOfThree() override;

    PlannerPage m_route{"Route"};
    PlannerPage m_fuel{"Fuel"};
    PlainPage m_plain;
    PlannerSheet m_sheet;
};
