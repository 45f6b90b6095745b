#pragma once

#include "frame/LogControlIds.h"
#include "frame/VornCommonLog.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <functional>
#include <string>

/// What the tests must see of the log's inside.
struct OpenLog : VornCommonLog
{
    using VornLog::mpSingleInst;
};

/// No shared log before and after each test.
class LogTest : public testing::Test
{
protected:
    LogTest();
    ~LogTest() override;
};

/// Shows a log; `look` sees the window, which is then closed by a command.
/// @return whether there was a window
bool ShowLog(VornCommonLog& log, const std::function<void(HWND)>& look = nullptr, WPARAM command = IDOK);

/// The same for any way to show one.
bool WhileShown(const std::function<void()>& show, const std::function<void(HWND)>& look, WPARAM command = IDOK);

HWND TextControl(HWND window);

/// The control's text with its line ends as it hands them out (CR LF).
std::string ShownText(HWND window);
