#pragma once

/* Templates and controls of the library's own dialogs. Also read by the resource compiler: plain definitions only. */

#define IDD_VORN_WARNING 1797
#define IDC_VORN_WARNING_ICON 1001
#define IDC_VORN_WARNING_TEXT 1002
#define IDC_VORN_WARNING_SCROLLED 1003
#define IDC_VORN_WARNING_CHECK 1004
