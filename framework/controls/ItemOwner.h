#pragma once

#include "framework/core/CString.h"

#include <windows.h>

/// @file
/// What list boxes and combo boxes have in common: items of text, which their owner may draw.
namespace vorn
{

/// The text of an item by the control's own functions; empty for an item that there is not.
/// @param lengthOf (index) @param copy (index, buffer) both answer below 0 for no item
template <class Length, class Copy>
void TakeItemText(int index, CString& text, Length lengthOf, Copy copy)
{
    const int length = lengthOf(index);
    if (length < 0)
    {
        text.Empty();
        return;
    }
    const int copied = copy(index, text.GetBuffer(length));
    text.ReleaseBuffer(copied < 0 ? 0 : copied);
}

/// Hands the message of an item that its owner draws to the control's functions for it. False for other messages.
/// @param result for the answer of a message that has one; may be null
template <class Control>
bool HandleItemMessage(Control& control, UINT message, LPARAM lParam, LRESULT* result)
{
    switch (message)
    {
    case WM_DRAWITEM:
        control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return true;
    case WM_MEASUREITEM:
        control.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return true;
    case WM_DELETEITEM:
        control.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return true;
    case WM_COMPAREITEM:
    {
        const int order = control.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        if (result)
            *result = order;
        return true;
    }
    default:
        return false;
    }
}

} // namespace vorn
