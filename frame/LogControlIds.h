#pragma once

/* The window of the log. Also read by the resource compiler: plain definitions only. */

#define IDD_VORN_LOG 1773
#define IDC_VORN_LOG_TEXT 1738
