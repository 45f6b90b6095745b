#include "files/core/TableBox.h"

#include <windows.h>

namespace
{
void ShowInBox(const char* text, const char* title)
{
    MessageBoxA(nullptr, text, title, MB_OK | MB_TASKMODAL);
}

[[maybe_unused]] const vorn::ShowTableBox before = vorn::SetTableBox(&ShowInBox);
} // namespace
