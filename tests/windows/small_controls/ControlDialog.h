#pragma once

#include "framework/include/afxwin.h"

#include <gtest/gtest.h>

#include <string>

namespace vorn::test
{

/// A shown window that holds controls and hands their notifications back to them. Remembers how often it was notified.
class ControlDialog : public CWnd
{
public:
    ControlDialog();
    ~ControlDialog() override;

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    int notifications = 0;
    UINT lastCode = 0;
};

std::string TextOf(HWND window);

/// What message boxes have for their caption: the name of this program, which has no application object.
std::string HostCaption();

/// Puts a text on the clipboard.
void SetClipboard(const std::string& text);

} // namespace vorn::test
