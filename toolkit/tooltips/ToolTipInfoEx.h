#pragma once

/// @file
/// The tools of a tooltip control and their descriptions.
#include "frame/core/Export.h"
#include "framework/core/CString.h"
#include "framework/core/Geometry.h"
#include "framework/core/Object.h"

#include <windows.h>

class ToolTipInfoEx;

/// What a tooltip control tells about a tool and takes for it. Control and id together name the tool.
struct VORNCOMMON_API TOOLINFOEX
{
    /// Flags.
    static constexpr UINT TextFromResource = 1; ///< the text was loaded from the string table
    static constexpr UINT PartOfWindow = 2;     ///< the rectangle is not the whole control

    TOOLINFOEX();
    TOOLINFOEX(const TOOLINFOEX& other);
    explicit TOOLINFOEX(const ToolTipInfoEx& tool);
    ~TOOLINFOEX();
    TOOLINFOEX& operator=(const TOOLINFOEX& other);
    TOOLINFOEX& operator=(const ToolTipInfoEx& tool);

    HWND hwnd; ///< the control
    UINT id;
    CRect rect;   ///< in the control's client coordinates; empty: all of it
    CString text; ///< both fields
    UINT flags;
};

/// One tool: a control or a part of it, and its text or the number of the string resource that holds it.
class VORNCOMMON_API ToolTipInfoEx : public CObject
{
    DECLARE_DYNAMIC(ToolTipInfoEx)
public:
    /// @param textId a string resource, loaded each time the text is wanted; 0 where @p text is given
    /// @param rect null or empty: the whole control
    ToolTipInfoEx(HWND control, UINT id, UINT textId, LPCSTR text, const RECT* rect);
    ~ToolTipInfoEx() override;

    HWND GetControl() const;
    UINT GetID() const;
    /// 0 when the tool has a text of its own.
    UINT GetTextID() const;
    const CRect& GetRect() const;
    bool IsWholeControl() const;
    /// Both fields. A string resource is looked for in the host first; of one longer than 511 characters the rest is
    /// left out. Without such a resource: empty.
    CString GetText() const;
    bool HasKey(HWND control, UINT id) const;
    bool IsVisible() const;
    /// Where the tool is now, in screen coordinates; empty when its control has gone.
    CRect GetScreenRect() const;
    /// Gives the tool another text and another rectangle.
    void Redefine(UINT textId, LPCSTR text, const RECT* rect);
    /// Takes rectangle and text over. A text that is the present one leaves the tool with its string resource.
    void Take(const TOOLINFOEX& info);

private:
    HWND m_control;
    UINT m_id;
    UINT m_textId;
    CString m_text;
    CRect m_rect;
};
