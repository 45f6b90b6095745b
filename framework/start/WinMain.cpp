#include <windows.h>

// The program's entry for hosts that have an application object and no main function of their own. It stands in a
// static library, because a program's entry cannot come from a DLL.
__declspec(dllimport) int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPTSTR commandLine, int showCommand);

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int showCommand)
{
    return AfxWinMain(instance, previous, commandLine, showCommand);
}
