#pragma once

#include "framework/controls/CTabCtrl.h"
#include "framework/window/CWinApp.h"
#include "framework/window/CWnd.h"
#include "toolkit/layout/LayoutMgr.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <vector>

using LayoutManagement::LayoutMgr;

/// Left, top, right and bottom.
using Edges = std::array<int, 4>;

inline Edges EdgesOf(const RECT& rect)
{
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

/// A top-level window without a frame, so that its client area is the whole of it, and its layout.
class LaidWindow : public CWnd, public LayoutMgr
{
public:
    LaidWindow(int width, int height, DWORD style = WS_POPUP);
    ~LaidWindow() override;

    /// Adds a child.
    HWND Add(const char* className, UINT id, DWORD style, const RECT& rect, const char* text = "");
    HWND AddButton(UINT id, const RECT& rect = {0, 0, 20, 10})
    {
        return Add("Button", id, WS_VISIBLE, rect);
    }
    /// Where a child is, in client coordinates.
    Edges PlaceOf(HWND child) const;
    Edges PlaceOf(UINT id) const;
    /// How often the child's place was set since it was added.
    int MovesOf(HWND child) const;
    void Resize(int width, int height);

    using LayoutMgr::GetMaxControlSize;
    using LayoutMgr::GetTrackSizes;

private:
    static LRESULT CALLBACK CountMoves(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                       DWORD_PTR count);

    std::map<HWND, int> m_moves;
};
