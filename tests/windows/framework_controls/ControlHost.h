#pragma once

#include "framework/window/CWinApp.h"
#include "framework/window/CWnd.h"

#include <gtest/gtest.h>

/// A shown top-level window that holds the control under test. Its class hands notifications back to the controls, as
/// every window of the framework does.
class ControlHost : public CWnd
{
public:
    ControlHost();
    ~ControlHost() override;
};

/// A fixture with a host and a rectangle to put a control in.
class ControlTest : public testing::Test
{
protected:
    static constexpr UINT kId = 1234;
    ControlHost m_host;
    RECT m_rect{10, 10, 160, 130};
};
