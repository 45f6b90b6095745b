#pragma once

/// @file
/// What a message map's entry point receives, and the pieces that handlers take from it.
#include "framework/core/Export.h"
#include "framework/core/Geometry.h"

#include <windows.h>

#include <type_traits>

class CCmdTarget;
class CDC;
class CMenu;
class CWnd;

/// One message or command on its way to a handler.
struct HOSTFRAMEWORK_API AfxMessageCall
{
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    LRESULT result = 0;     ///< what the handler answered
    UINT nID = 0;           ///< commands: command or control id
    int nCode = 0;          ///< commands: command or notification code
    void* pExtra = nullptr; ///< commands: CCmdUI*, AFX_NOTIFY*, or null

    UINT LoWordW() const
    {
        return LOWORD(wParam);
    }
    UINT HiWordW() const
    {
        return HIWORD(wParam);
    }
    UINT LoWordL() const
    {
        return LOWORD(lParam);
    }
    UINT HiWordL() const
    {
        return HIWORD(lParam);
    }
    short ShortLoW() const
    {
        return static_cast<short>(LOWORD(wParam));
    }
    short ShortHiW() const
    {
        return static_cast<short>(HIWORD(wParam));
    }
    int IntLoL() const
    {
        return static_cast<short>(LOWORD(lParam));
    }
    int IntHiL() const
    {
        return static_cast<short>(HIWORD(lParam));
    }
    UINT UintW() const
    {
        return static_cast<UINT>(wParam);
    }
    BOOL BoolW() const
    {
        return static_cast<BOOL>(wParam);
    }
    /// lParam as a point of signed 16-bit coordinates.
    CPoint PointL() const
    {
        return CPoint(IntLoL(), IntHiL());
    }
    template <class Pointer>
    Pointer PointerW() const
    {
        return reinterpret_cast<Pointer>(wParam);
    }
    template <class Pointer>
    Pointer PointerL() const
    {
        return reinterpret_cast<Pointer>(lParam);
    }
    /// Window object of the handle in wParam or lParam; temporary if nobody wraps it; null for none.
    CWnd* WndW() const;
    CWnd* WndL() const;
    /// A control's object as the handler's declared type, which may be a temporary CWnd: its
    /// non-virtual functions work on the handle alone.
    template <class Control>
    Control* ControlL() const
    {
        return reinterpret_cast<Control*>(WndL());
    }
    CMenu* MenuW() const;
    CMenu* MenuL() const;
    CDC* DcW() const;
    /// Pieces of WM_APPCOMMAND: the command and the device that gave it.
    UINT AppCommand() const
    {
        return HiWordL() & ~static_cast<UINT>(FAPPCOMMAND_MASK);
    }
    UINT AppDevice() const
    {
        return HiWordL() & FAPPCOMMAND_MASK;
    }
    /// WM_MDIACTIVATE: whether the target is the window being activated.
    BOOL IsMdiActivation(const CCmdTarget* target) const;
    /// Pieces of WM_CTLCOLOR*: which kind of control (CTLCOLOR_MSGBOX ... CTLCOLOR_STATIC).
    UINT CtlColorType() const;

    template <class Value>
    void Answer(Value value)
    {
        if constexpr (std::is_pointer_v<Value>)
        {
            result = reinterpret_cast<LRESULT>(value);
        }
        else
        {
            result = static_cast<LRESULT>(value);
        }
    }
};
