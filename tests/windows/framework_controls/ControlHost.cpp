#include "tests/windows/framework_controls/ControlHost.h"

#include "framework/window/ModuleState.h"

namespace
{
CWinApp g_app("ControlTests");
}

ControlHost::ControlHost()
{
    CreateEx(0, AfxRegisterWndClass(0), "host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 400, 300, nullptr, nullptr);
}

ControlHost::~ControlHost()
{
    if (m_hWnd)
        DestroyWindow();
}
