#include "framework/gdi/CDC.h"
#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

namespace
{

constexpr UINT kControl = 40;
constexpr UINT kTaken = 0x301;  // the control's handler keeps it from the parent
constexpr UINT kShared = 0x302; // the control's handler chooses
constexpr UINT kParentOnly = 0x303;

Events events;

class Control : public CWnd
{
public:
    BOOL keep = FALSE;
    HBRUSH brush = nullptr;
    int childNotifications = 0;

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        ++childNotifications;
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    }

protected:
    afx_msg void OnTaken()
    {
        events.push_back("control taken");
    }
    afx_msg BOOL OnShared()
    {
        events.push_back("control shared");
        return keep;
    }
    afx_msg void OnNotifyTaken(NMHDR*, LRESULT* result)
    {
        events.push_back("control notify");
        *result = 21;
    }
    afx_msg BOOL OnNotifyShared(NMHDR*, LRESULT* result)
    {
        events.push_back("control notifyex");
        *result = 22;
        return keep;
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT kind)
    {
        events.push_back(With("control color", kind));
        return brush;
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT)
    {
        events.push_back("control draw");
    }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT measure)
    {
        events.push_back("control measure");
        measure->itemHeight = 31;
    }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT)
    {
        events.push_back("control delete");
    }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT)
    {
        events.push_back("control compare");
        return -1;
    }
    afx_msg int CharToItem(UINT key, UINT index)
    {
        events.push_back(With("control char", key, index));
        return 5;
    }
    afx_msg int VKeyToItem(UINT key, UINT index)
    {
        events.push_back(With("control key", key, index));
        return 6;
    }
    afx_msg void HScroll(UINT code, UINT position)
    {
        events.push_back(With("control hscroll", code, position));
    }
    afx_msg void VScroll(UINT code, UINT position)
    {
        events.push_back(With("control vscroll", code, position));
    }
    afx_msg void ParentNotify(UINT message, LPARAM)
    {
        events.push_back(With("control parentnotify", message));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Control, CWnd)
ON_CONTROL_REFLECT(kTaken, &Control::OnTaken)
ON_CONTROL_REFLECT_EX(kShared, &Control::OnShared)
ON_NOTIFY_REFLECT(NM_CLICK, &Control::OnNotifyTaken)
ON_NOTIFY_REFLECT_EX(NM_DBLCLK, &Control::OnNotifyShared)
ON_WM_CTLCOLOR_REFLECT()
ON_WM_DRAWITEM_REFLECT()
ON_WM_MEASUREITEM_REFLECT()
ON_WM_DELETEITEM_REFLECT()
ON_WM_COMPAREITEM_REFLECT()
ON_WM_CHARTOITEM_REFLECT()
ON_WM_VKEYTOITEM_REFLECT()
ON_WM_HSCROLL_REFLECT()
ON_WM_VSCROLL_REFLECT()
ON_WM_PARENTNOTIFY_REFLECT()
END_MESSAGE_MAP()

class Parent : public CWnd
{
protected:
    afx_msg void OnTaken()
    {
        events.push_back("parent taken");
    }
    afx_msg void OnShared()
    {
        events.push_back("parent shared");
    }
    afx_msg void OnParentOnly()
    {
        events.push_back("parent only");
    }
    afx_msg void OnNotifyTaken(NMHDR*, LRESULT* result)
    {
        events.push_back("parent notify");
        *result = 31;
    }
    afx_msg void OnNotifyShared(NMHDR*, LRESULT* result)
    {
        events.push_back("parent notifyex");
        *result = 32;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, CWnd)
ON_CONTROL(kTaken, kControl, &Parent::OnTaken)
ON_CONTROL(kShared, kControl, &Parent::OnShared)
ON_CONTROL(kParentOnly, kControl, &Parent::OnParentOnly)
ON_NOTIFY(NM_CLICK, kControl, &Parent::OnNotifyTaken)
ON_NOTIFY(NM_DBLCLK, kControl, &Parent::OnNotifyShared)
END_MESSAGE_MAP()

/// Has its own opinion on colours and drawing, and may ask the base.
class ColoringParent : public Parent
{
public:
    bool asksBase = false;

protected:
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* window, UINT kind)
    {
        events.push_back("parent color");
        return asksBase ? CWnd::OnCtlColor(dc, window, kind) : reinterpret_cast<HBRUSH>(0x99);
    }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT draw)
    {
        events.push_back("parent draw");
        if (asksBase)
        {
            CWnd::OnDrawItem(id, draw);
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ColoringParent, Parent)
ON_WM_CTLCOLOR()
ON_WM_DRAWITEM()
END_MESSAGE_MAP()

template <class ParentWindow>
class ReflectionTo : public testing::Test
{
protected:
    ReflectionTo()
    {
        CreatePopup(parent);
        CreateChild(control, parent, kControl);
        control.childNotifications = 0;
        events.clear();
    }
    LRESULT Command(UINT code)
    {
        events.clear();
        return parent.SendMessage(WM_COMMAND, MAKEWPARAM(kControl, code), Handle());
    }
    LRESULT Notify(UINT code)
    {
        events.clear();
        NMHDR header = {control.m_hWnd, kControl, code};
        return parent.SendMessage(WM_NOTIFY, kControl, reinterpret_cast<LPARAM>(&header));
    }
    LPARAM Handle() const
    {
        return reinterpret_cast<LPARAM>(control.m_hWnd);
    }
    ParentWindow parent;
    Control control;
};

using Reflection = ReflectionTo<Parent>;
using ReflectionToColoringParent = ReflectionTo<ColoringParent>;

} // namespace

TEST_F(Reflection, OfACommandKeepsItFromTheParent)
{
    EXPECT_EQ(Command(kTaken), 1);
    EXPECT_EQ(events, Events{"control taken"});
}

TEST_F(Reflection, OfASharedCommandAsksTheControlFirst)
{
    EXPECT_EQ(Command(kShared), 1);
    EXPECT_EQ(events, (Events{"control shared", "parent shared"}));
    control.keep = TRUE;
    EXPECT_EQ(Command(kShared), 1);
    EXPECT_EQ(events, Events{"control shared"});
}

TEST_F(Reflection, OfACommandWithoutReflectedHandlerReachesTheParent)
{
    EXPECT_EQ(Command(kParentOnly), 1);
    EXPECT_EQ(events, Events{"parent only"});
    EXPECT_EQ(control.childNotifications, 1);
}

TEST_F(Reflection, OfANotificationKeepsItFromTheParentAndAnswers)
{
    EXPECT_EQ(Notify(static_cast<UINT>(NM_CLICK)), 21);
    EXPECT_EQ(events, Events{"control notify"});
}

TEST_F(Reflection, OfASharedNotificationAsksTheControlFirst)
{
    EXPECT_EQ(Notify(static_cast<UINT>(NM_DBLCLK)), 32);
    EXPECT_EQ(events, (Events{"control notifyex", "parent notifyex"}));
    control.keep = TRUE;
    EXPECT_EQ(Notify(static_cast<UINT>(NM_DBLCLK)), 22);
    EXPECT_EQ(events, Events{"control notifyex"});
}

TEST_F(Reflection, OfColoursAnswersWithTheControlsBrush)
{
    control.brush = reinterpret_cast<HBRUSH>(0x77);
    for (UINT kind = CTLCOLOR_MSGBOX; kind <= CTLCOLOR_STATIC; ++kind)
    {
        events.clear();
        EXPECT_EQ(parent.SendMessage(WM_CTLCOLORMSGBOX + kind, 0, Handle()), 0x77);
        EXPECT_EQ(events, Events{With("control color", kind)});
    }
}

TEST_F(Reflection, OfColoursFallsBackWhenTheControlHasNoBrush)
{
    const LRESULT plain = ::DefWindowProc(parent.m_hWnd, WM_CTLCOLOREDIT, 0, Handle());
    EXPECT_EQ(parent.SendMessage(WM_CTLCOLOREDIT, 0, Handle()), plain);
    EXPECT_EQ(events, Events{"control color 1"});
}

TEST_F(ReflectionToColoringParent, OfColoursAsksTheParentsHandlerFirst)
{
    control.brush = reinterpret_cast<HBRUSH>(0x77);
    EXPECT_EQ(parent.SendMessage(WM_CTLCOLOREDIT, 0, Handle()), 0x99);
    EXPECT_EQ(events, Events{"parent color"});
    events.clear();
    parent.asksBase = true;
    EXPECT_EQ(parent.SendMessage(WM_CTLCOLOREDIT, 0, Handle()), 0x77);
    EXPECT_EQ(events, (Events{"parent color", "control color 1"}));
}

TEST_F(ReflectionToColoringParent, OfDrawingAsksTheParentsHandlerFirst)
{
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_BUTTON;
    draw.CtlID = kControl;
    draw.hwndItem = control.m_hWnd;
    parent.SendMessage(WM_DRAWITEM, kControl, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(events, Events{"parent draw"});
    events.clear();
    parent.asksBase = true;
    parent.SendMessage(WM_DRAWITEM, kControl, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(events, (Events{"parent draw", "control draw"}));
}

TEST_F(Reflection, OfOwnerDrawMessagesReachesTheControl)
{
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_LISTBOX;
    draw.hwndItem = control.m_hWnd;
    parent.SendMessage(WM_DRAWITEM, kControl, reinterpret_cast<LPARAM>(&draw));
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_LISTBOX;
    measure.CtlID = kControl;
    parent.SendMessage(WM_MEASUREITEM, kControl, reinterpret_cast<LPARAM>(&measure));
    EXPECT_EQ(measure.itemHeight, 31U);
    DELETEITEMSTRUCT gone = {};
    gone.hwndItem = control.m_hWnd;
    parent.SendMessage(WM_DELETEITEM, kControl, reinterpret_cast<LPARAM>(&gone));
    COMPAREITEMSTRUCT compare = {};
    compare.hwndItem = control.m_hWnd;
    EXPECT_EQ(parent.SendMessage(WM_COMPAREITEM, kControl, reinterpret_cast<LPARAM>(&compare)), -1);
    EXPECT_EQ(events, (Events{"control draw", "control measure", "control delete", "control compare"}));
}

TEST_F(Reflection, OfKeysAndScrollingReachesTheControl)
{
    EXPECT_EQ(parent.SendMessage(WM_CHARTOITEM, MAKEWPARAM('k', 2), Handle()), 5);
    EXPECT_EQ(parent.SendMessage(WM_VKEYTOITEM, MAKEWPARAM(VK_DOWN, 3), Handle()), 6);
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 12), Handle());
    parent.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), Handle());
    EXPECT_EQ(events,
              (Events{"control char 107 2", "control key 40 3", "control hscroll 4 12", "control vscroll 1 0"}));
}

TEST_F(Reflection, ReachesAControlOfNumberZeroToo)
{
    const auto send = [this](UINT code)
    {
        events.clear();
        return parent.SendMessage(WM_COMMAND, MAKEWPARAM(0, code), Handle());
    };
    EXPECT_EQ(send(kTaken), 1);
    EXPECT_EQ(events, Events{"control taken"});
    EXPECT_EQ(send(kParentOnly), 0) << "no map of the parent speaks of number 0";
    EXPECT_EQ(events, Events());
}

TEST_F(Reflection, OfParentNotificationsNamesCreationAndEndOnly)
{
    parent.SendMessage(WM_PARENTNOTIFY, MAKEWPARAM(WM_DESTROY, kControl), Handle());
    parent.SendMessage(WM_PARENTNOTIFY, MAKEWPARAM(WM_LBUTTONDOWN, kControl), Handle());
    EXPECT_EQ(events, Events{"control parentnotify 2"});
}

TEST_F(Reflection, PassesByControlsWithoutPermanentObject)
{
    const HWND window = control.Detach();
    EXPECT_EQ(parent.SendMessage(WM_COMMAND, MAKEWPARAM(kControl, kTaken), reinterpret_cast<LPARAM>(window)), 1);
    EXPECT_EQ(events, Events{"parent taken"});
}

namespace
{

class CountingEdit : public CWnd
{
public:
    int changes = 0;

protected:
    afx_msg void OnChange()
    {
        ++changes;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CountingEdit, CWnd)
ON_CONTROL_REFLECT(EN_CHANGE, &CountingEdit::OnChange)
END_MESSAGE_MAP()

} // namespace

TEST_F(Reflection, ComesFromRealControls)
{
    CountingEdit edit;
    ASSERT_TRUE(edit.CreateEx(0, "EDIT", "", WS_CHILD, CRect(0, 0, 80, 20), &parent, 41));
    edit.SendMessage(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>("typed"));
    EXPECT_EQ(edit.changes, 1);
}
