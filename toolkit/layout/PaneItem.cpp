#include "toolkit/layout/LayoutDescription.h"
#include "toolkit/layout/Panes.h"

#include <typeinfo>

namespace LayoutManagement
{
namespace
{
constexpr UINT kRedraw = 0x101;        ///< RDW_INVALIDATE and RDW_UPDATENOW
constexpr int kSimpleComboPart = 1000; ///< the child of a combo box without a button that gives it its height

bool IsComboBox(HWND control)
{
    char name[32] = {};
    GetClassNameA(control, name, sizeof name);
    return lstrcmpiA(name, "ComboBox") == 0 || lstrcmpiA(name, "ComboBoxEx32") == 0;
}

LONG StyleOf(HWND control)
{
    return GetWindowLongA(control, GWL_STYLE);
}

RECT PlaceInParent(HWND control)
{
    RECT rect{};
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

bool MoveTo(HWND control, const RECT& rect)
{
    return MoveWindow(control, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, TRUE) != FALSE;
}
} // namespace

LayoutMgr::PaneItem::PaneItem(LayoutMgr* pMgr, HWND hWnd, ResizeMode modeResize, int sizeX, int sizeY, int sizeXMin,
                              int sizeYMin)
    : PaneBase(pMgr, modeResize), m_sizeX(sizeX), m_sizeY(sizeY), m_sizeXMin(sizeXMin), m_sizeYMin(sizeYMin),
      m_hWnd(IsWindow(hWnd) ? hWnd : nullptr), m_bIsComboBox(false), m_hWndParent(nullptr), m_rectSlot{}, m_rectTaken{}
{
    if (m_hWnd != nullptr)
    {
        m_hWndParent = GetParent(m_hWnd);
        m_bIsComboBox = IsComboBox(m_hWnd);
        takeSizes();
    }
}

void LayoutMgr::PaneItem::takeSizes()
{
    RECT rect{};
    GetWindowRect(m_hWnd, &rect);
    const int width = static_cast<int>(rect.right - rect.left);
    const int height = static_cast<int>(rect.bottom - rect.top);
    m_sizeX = m_sizeX == 0 ? width : m_sizeX;
    m_sizeY = m_sizeY == 0 ? height : m_sizeY;
    m_sizeXMin = m_sizeXMin < 0 ? width : m_sizeXMin;
    m_sizeYMin = m_sizeYMin < 0 ? height : m_sizeYMin;
}

bool LayoutMgr::PaneItem::isThere() const
{
    return IsStillThere(m_hWnd, m_hWndParent);
}

bool LayoutMgr::PaneItem::isShown(bool bShown)
{
    return m_hWnd == nullptr ? bShown : isThere() && HasVisibleStyle(m_hWnd);
}

void LayoutMgr::PaneItem::describe(LayoutDescription& description)
{
    // A derived class may measure and place in its own way.
    if (typeid(*this) == typeid(PaneItem))
    {
        describeItem(description);
    }
    else
    {
        PaneBase::describe(description);
    }
}

void LayoutMgr::PaneItem::describeItem(LayoutDescription& description)
{
    vorn::PaneItemSpec item;
    item.mode = static_cast<unsigned>(m_modeResize);
    item.width = m_sizeX;
    item.height = m_sizeY;
    item.minimumWidth = m_sizeXMin;
    item.minimumHeight = m_sizeYMin;
    item.hasControl = m_hWnd != nullptr;
    item.isShown = isShown(true);
    if (item.hasControl && item.isShown)
    {
        item.keepsHeight = m_bIsComboBox && (StyleOf(m_hWnd) & CBS_DROPDOWN) != 0;
        item.present = description.PlaceOf(m_hWnd);
    }
    description.AddItem(*this, item, m_hWnd);
}

bool LayoutMgr::PaneItem::placeAt(CRect& rect)
{
    LayoutDescription description(window(), LayoutPass::Place);
    describeItem(description);
    return description.Place(rect);
}

bool LayoutMgr::PaneItem::move(const RECT& rect)
{
    constexpr LONG kOtherKinds = CBS_DROPDOWN | CBS_NOINTEGRALHEIGHT;
    if (m_bIsComboBox && (StyleOf(m_hWnd) & kOtherKinds) == 0)
    {
        return moveSimpleCombo(rect);
    }
    if (!MoveTo(m_hWnd, rect))
    {
        return false;
    }
    RedrawWindow(m_hWnd, nullptr, nullptr, kRedraw);
    return true;
}

bool LayoutMgr::PaneItem::moveSimpleCombo(const RECT& rect)
{
    const RECT present = PlaceInParent(m_hWnd);
    if (EqualRect(&rect, &m_rectSlot) && EqualRect(&present, &m_rectTaken))
    {
        return true; // it never fills its slot, so only this tells that nothing has changed
    }
    if (!MoveTo(m_hWnd, rect))
    {
        return false;
    }
    if (const HWND part = GetDlgItem(m_hWnd, kSimpleComboPart))
    {
        RECT bounds{};
        GetWindowRect(part, &bounds);
        RECT taken = rect;
        taken.bottom = taken.top + bounds.bottom - bounds.top;
        MoveTo(m_hWnd, taken);
    }
    m_rectSlot = rect;
    m_rectTaken = PlaceInParent(m_hWnd);
    RedrawWindow(m_hWnd, nullptr, nullptr, kRedraw);
    return true;
}

int LayoutMgr::PaneItem::measured(int parentExtent, bool isHeight, int what)
{
    LayoutDescription description(window(), LayoutPass::Measure);
    describeItem(description);
    return MeasuredOf(description.Tree(), parentExtent, isHeight, what);
}

int LayoutMgr::PaneItem::getWidth(int parentExtent)
{
    return measured(parentExtent, false, kWanted);
}

int LayoutMgr::PaneItem::getHeight(int parentExtent)
{
    return measured(parentExtent, true, kWanted);
}

int LayoutMgr::PaneItem::getMinWidth()
{
    return measured(0, false, kLeast);
}

int LayoutMgr::PaneItem::getMinHeight()
{
    return measured(0, true, kLeast);
}

int LayoutMgr::PaneItem::getMaxWidth()
{
    return measured(0, false, kMost);
}

int LayoutMgr::PaneItem::getMaxHeight()
{
    return measured(0, true, kMost);
}

} // namespace LayoutManagement
