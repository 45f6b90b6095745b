#include "framework/gdi/CDC.h"
#include "framework/gdi/DeviceContextMap.h"
#include "framework/gdi/GdiHelpers.h"
#include "framework/window/CWnd.h"

IMPLEMENT_DYNCREATE(CDC, CObject)

CDC* vorn::DeviceContextTraits::MakeTemporary(HDC handle)
{
    auto dc = std::make_unique<CDC>();
    dc->m_hDC = handle;
    dc->m_hAttribDC = handle;
    return dc.release();
}

void vorn::DeviceContextTraits::FreeTemporary(CDC* object)
{
    object->m_hDC = nullptr;
    object->m_hAttribDC = nullptr;
    const std::unique_ptr<CDC> owner(object);
}

vorn::OwnerMap<HDC, CDC>& vorn::DeviceContextOwners()
{
    // Never destroyed: objects with static lifetime in other modules end after this module's.
    static auto& owners = *new OwnerMap<HDC, CDC>;
    return owners;
}

CDC::CDC() = default;

CDC::~CDC()
{
    // A context given by SetOutputDC() is its giver's.
    const bool isOwned = m_hDC && vorn::DeviceContextOwners().Find(m_hDC) == this;
    HDC dc = Detach();
    if (isOwned)
        ::DeleteDC(dc);
}

CDC::operator HDC() const
{
    return m_hDC;
}

HDC CDC::GetSafeHdc() const
{
    // Callers may ask through a null pointer; the detour keeps the compiler from assuming that they do not.
    const CDC* volatile self = this;
    const CDC* dc = self;
    return dc ? dc->m_hDC : nullptr;
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

CDC* PASCAL CDC::FromHandle(HDC dc)
{
    if (CDC* owner = dc ? vorn::DeviceContextOwners().Find(dc) : nullptr)
        return owner;
    return vorn::TemporaryDeviceContexts().FromHandle(dc);
}

void PASCAL CDC::DeleteTempMap()
{
    vorn::TemporaryDeviceContexts().FreeTemporary(vorn::CurrentLoopDepth());
}

BOOL CDC::Attach(HDC dc)
{
    if (!dc || m_hDC)
        return FALSE;
    vorn::DeviceContextOwners().Set(dc, this);
    m_hDC = dc;
    SetAttribDC(dc);
    return TRUE;
}

HDC CDC::Detach()
{
    HDC dc = m_hDC;
    if (dc)
        vorn::DeviceContextOwners().Remove(dc, this);
    ReleaseAttribDC();
    m_hDC = nullptr;
    return dc;
}

void CDC::SetAttribDC(HDC dc)
{
    m_hAttribDC = dc;
}

void CDC::SetOutputDC(HDC dc)
{
    // The record of an attached context must not outlive what it says.
    if (m_hDC)
        vorn::DeviceContextOwners().Remove(m_hDC, this);
    m_hDC = dc;
}

void CDC::ReleaseAttribDC()
{
    m_hAttribDC = nullptr;
}

void CDC::ReleaseOutputDC()
{
    CDC::SetOutputDC(nullptr);
}

BOOL CDC::CreateDC(LPCSTR driverName, LPCSTR deviceName, LPCSTR output, const void* initData)
{
    return Attach(::CreateDC(driverName, deviceName, output, static_cast<const DEVMODE*>(initData)));
}

BOOL CDC::CreateIC(LPCSTR driverName, LPCSTR deviceName, LPCSTR output, const void* initData)
{
    return Attach(::CreateIC(driverName, deviceName, output, static_cast<const DEVMODE*>(initData)));
}

BOOL CDC::CreateCompatibleDC(CDC* dc)
{
    return Attach(::CreateCompatibleDC(vorn::HandleOf(dc)));
}

BOOL CDC::DeleteDC()
{
    return m_hDC ? ::DeleteDC(Detach()) : FALSE;
}

int CDC::SaveDC()
{
    return vorn::OnBoth(*this, ::SaveDC);
}

BOOL CDC::RestoreDC(int savedDC)
{
    return vorn::OnBoth(*this, ::RestoreDC, savedDC);
}

BOOL CDC::ResetDC(const DEVMODE* deviceMode)
{
    return ::ResetDC(m_hAttribDC, deviceMode) != nullptr;
}

int CDC::GetDeviceCaps(int index) const
{
    return ::GetDeviceCaps(m_hAttribDC, index);
}

UINT CDC::SetBoundsRect(const RECT* rect, UINT flags)
{
    return ::SetBoundsRect(m_hDC, rect, flags);
}

UINT CDC::GetBoundsRect(LPRECT rect, UINT flags)
{
    return ::GetBoundsRect(m_hAttribDC, rect, flags);
}

BOOL CDC::IsPrinting() const
{
    return m_bPrinting;
}

BOOL CDC::EnumObjects(int objectType, int(CALLBACK* function)(LPVOID, LPARAM), LPARAM data)
{
    return ::EnumObjects(m_hAttribDC, objectType, function, data);
}

CPoint CDC::GetBrushOrg() const
{
    CPoint origin(0, 0);
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    CPoint former(0, 0);
    ::SetBrushOrgEx(m_hDC, x, y, &former);
    return former;
}

CPoint CDC::SetBrushOrg(POINT point)
{
    return SetBrushOrg(point.x, point.y);
}
