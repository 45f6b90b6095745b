#include "framework/core/Exception.h"
#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

using namespace vorn::test;

namespace
{
bool IsAlive(HDC dc)
{
    return ::GetObjectType(dc) != 0;
}

/// A window without framework object.
class PlainWindow
{
public:
    PlainWindow()
        : m_handle(
              ::CreateWindow("STATIC", "", WS_POPUP | WS_VISIBLE, 10, 10, 40, 30, nullptr, nullptr, nullptr, nullptr))
    {
    }
    ~PlainWindow()
    {
        ::DestroyWindow(m_handle);
    }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    HWND Handle() const
    {
        return m_handle;
    }

private:
    HWND m_handle;
};

template <typename Context>
bool ThrowsResourceException(CWnd* window)
{
    bool thrown = false;
    TRY
    {
        Context dc(window);
    }
    CATCH(CResourceException, e)
    {
        thrown = true;
    }
    END_CATCH
    return thrown;
}
} // namespace

TEST(DeviceContext, LeavesAnOutputThatIsNotItsOwnAlone)
{
    HDC foreign = ::CreateCompatibleDC(nullptr);
    {
        CDC dc;
        dc.SetOutputDC(foreign);
        EXPECT_EQ(foreign, dc.GetSafeHdc());
    }
    EXPECT_TRUE(IsAlive(foreign));
    ::DeleteDC(foreign);
}

TEST(DeviceContext, IsForgottenWhenItsOutputIsReleased)
{
    HDC handle = ::CreateCompatibleDC(nullptr);
    CDC released;
    ASSERT_TRUE(released.Attach(handle));
    released.ReleaseOutputDC();
    EXPECT_NE(&released, CDC::FromHandle(handle));
    CDC exchanged;
    ASSERT_TRUE(exchanged.Attach(handle));
    HDC other = ::CreateCompatibleDC(nullptr);
    exchanged.SetOutputDC(other);
    EXPECT_NE(&exchanged, CDC::FromHandle(handle));
    ::DeleteDC(handle);
    ::DeleteDC(other);
}

TEST(DeviceContext, AnswersForANullPointer)
{
    // Volatile: the compiler must not see that the pointers are null.
    const CDC* const volatile none = nullptr;
    EXPECT_EQ(nullptr, none->GetSafeHdc());
    const CGdiObject* const volatile object = nullptr;
    EXPECT_EQ(nullptr, object->GetSafeHandle());
}

TEST(DeviceContext, DeletesWhatItCreated)
{
    HDC handle = nullptr;
    {
        CDC dc;
        ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
        handle = dc;
        EXPECT_EQ(dc.m_hDC, dc.m_hAttribDC);
        EXPECT_TRUE(IsAlive(handle));
    }
    EXPECT_FALSE(IsAlive(handle));
}

TEST(DeviceContext, DetachGivesTheContextBack)
{
    HDC handle = ::CreateCompatibleDC(nullptr);
    {
        CDC dc;
        EXPECT_TRUE(dc.Attach(handle));
        EXPECT_EQ(&dc, CDC::FromHandle(handle));
        EXPECT_FALSE(dc.Attach(handle)) << "one context at a time";
        EXPECT_EQ(handle, dc.Detach());
        EXPECT_EQ(nullptr, dc.m_hDC);
        EXPECT_EQ(nullptr, dc.m_hAttribDC);
    }
    EXPECT_TRUE(IsAlive(handle));
    ::DeleteDC(handle);
}

TEST(DeviceContext, DeleteDcWorksOnce)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    EXPECT_TRUE(dc.DeleteDC());
    EXPECT_FALSE(dc.DeleteDC());
    EXPECT_EQ(nullptr, dc.GetSafeHdc());
}

TEST(DeviceContext, TemporaryObjectsLeaveTheContextAlive)
{
    HDC handle = ::CreateCompatibleDC(nullptr);
    CDC* dc = CDC::FromHandle(handle);
    EXPECT_EQ(handle, dc->m_hDC);
    EXPECT_EQ(handle, dc->m_hAttribDC);
    EXPECT_EQ(dc, CDC::FromHandle(handle));
    CDC::DeleteTempMap();
    EXPECT_TRUE(IsAlive(handle));
    ::DeleteDC(handle);
    EXPECT_EQ(nullptr, CDC::FromHandle(nullptr));
}

TEST(DeviceContext, CreatesDisplayAndInformationContexts)
{
    CDC display;
    EXPECT_TRUE(display.CreateDC("DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(DT_RASDISPLAY, display.GetDeviceCaps(TECHNOLOGY));
    CDC information;
    EXPECT_TRUE(information.CreateIC("DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(::GetSystemMetrics(SM_CXSCREEN), information.GetDeviceCaps(HORZRES));
    EXPECT_FALSE(CDC().CreateDC("no such driver", "none", nullptr, nullptr));
}

TEST(DeviceContext, FailsQuietlyWhenEmpty)
{
    CDC dc;
    EXPECT_FALSE(dc.LineTo(1, 1));
    EXPECT_FALSE(dc.Rectangle(0, 0, 1, 1));
    EXPECT_EQ(CLR_INVALID, dc.SetTextColor(kRed));
    EXPECT_EQ(0, dc.SaveDC());
    EXPECT_FALSE(dc.RestoreDC(-1));
    EXPECT_EQ(nullptr, dc.SelectStockObject(BLACK_PEN));
    EXPECT_EQ(0, dc.GetDeviceCaps(HORZRES));
    EXPECT_FALSE(dc.TextOut(0, 0, "text", 4));
    EXPECT_EQ(CSize(0, 0), dc.GetTextExtent("text", 4));
    EXPECT_EQ(nullptr, dc.GetWindow());
}

TEST(DeviceContext, SavesAndRestoresItsState)
{
    Canvas canvas(1, 1);
    canvas.dc.SetTextColor(kRed);
    const int saved = canvas.dc.SaveDC();
    EXPECT_GT(saved, 0);
    canvas.dc.SetTextColor(kBlue);
    canvas.dc.SaveDC();
    EXPECT_TRUE(canvas.dc.RestoreDC(saved));
    EXPECT_EQ(kRed, canvas.dc.GetTextColor());
    EXPECT_FALSE(canvas.dc.RestoreDC(saved)) << "a state is used up";
}

TEST(DeviceContext, KnowsWhetherItPrints)
{
    CDC dc;
    EXPECT_FALSE(dc.IsPrinting());
    dc.m_bPrinting = TRUE;
    EXPECT_TRUE(dc.IsPrinting());
}

TEST(DeviceContext, MovesTheBrushOrigin)
{
    Canvas canvas(1, 1);
    EXPECT_EQ(CPoint(0, 0), canvas.dc.SetBrushOrg(3, 4));
    EXPECT_EQ(CPoint(3, 4), canvas.dc.SetBrushOrg(CPoint(1, 2)));
    EXPECT_EQ(CPoint(1, 2), canvas.dc.GetBrushOrg());
}

TEST(DeviceContext, CollectsBounds)
{
    Canvas canvas(20, 20);
    canvas.dc.SetBoundsRect(nullptr, DCB_ENABLE | DCB_RESET);
    canvas.dc.Rectangle(3, 4, 10, 12);
    CRect bounds;
    EXPECT_EQ(UINT(DCB_SET), canvas.dc.GetBoundsRect(&bounds, 0));
    EXPECT_EQ(3, bounds.left);
    EXPECT_EQ(4, bounds.top);
}

namespace
{
int CALLBACK CountObject(LPVOID, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return 1;
}
} // namespace

TEST(DeviceContext, EnumeratesPens)
{
    Canvas canvas(1, 1);
    int count = 0;
    EXPECT_EQ(1, canvas.dc.EnumObjects(OBJ_PEN, CountObject, reinterpret_cast<LPARAM>(&count)));
    EXPECT_GT(count, 0);
}

TEST(ClientContext, DrawsIntoTheClientArea)
{
    PlainWindow window;
    CWnd* object = CWnd::FromHandle(window.Handle());
    CClientDC dc(object);
    EXPECT_EQ(window.Handle(), ::WindowFromDC(dc));
    EXPECT_EQ(object, dc.GetWindow());
    dc.FillSolidRect(0, 0, 10, 10, kRed);
    EXPECT_EQ(kRed, dc.GetPixel(5, 5));
}

TEST(ClientContext, ServesTheWholeScreenWithoutWindow)
{
    CClientDC dc(nullptr);
    EXPECT_EQ(::GetSystemMetrics(SM_CXSCREEN), dc.GetDeviceCaps(HORZRES));
}

TEST(ClientContext, IsReleasedInMoreRoundsThanThereAreContexts)
{
    PlainWindow window;
    for (int i = 0; i < 20000; ++i)
    {
        ASSERT_NO_THROW({ CClientDC dc(CWnd::FromHandle(window.Handle())); }) << "round " << i;
    }
}

TEST(WindowContext, ReachesTheFrame)
{
    HWND handle = ::CreateWindow("STATIC", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 120, 90, nullptr, nullptr,
                                 nullptr, nullptr);
    {
        CWindowDC dc(CWnd::FromHandle(handle));
        CRect box;
        dc.GetClipBox(&box);
        EXPECT_EQ(120, box.Width());
        EXPECT_EQ(90, box.Height());
    }
    ::DestroyWindow(handle);
}

TEST(WindowContexts, ThrowForAWindowThatIsNotThere)
{
    CWnd none;
    EXPECT_TRUE(ThrowsResourceException<CClientDC>(&none));
    EXPECT_TRUE(ThrowsResourceException<CWindowDC>(&none));
    EXPECT_TRUE(ThrowsResourceException<CPaintDC>(&none));
    EXPECT_TRUE(ThrowsResourceException<CPaintDC>(nullptr));
}

TEST(PaintContext, ValidatesTheWindow)
{
    PlainWindow window;
    ::InvalidateRect(window.Handle(), nullptr, FALSE);
    EXPECT_TRUE(::GetUpdateRect(window.Handle(), nullptr, FALSE));
    {
        CPaintDC dc(CWnd::FromHandle(window.Handle()));
        EXPECT_EQ(dc.m_ps.hdc, dc.m_hDC);
        EXPECT_EQ(CRect(0, 0, 40, 30), CRect(dc.m_ps.rcPaint));
    }
    EXPECT_FALSE(::GetUpdateRect(window.Handle(), nullptr, FALSE));
}
