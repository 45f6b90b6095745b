#pragma once

/* Template, controls and texts of the startup dialog. Also read by the resource compiler: plain definitions only. */

#define IDD_VORN_STARTUP 1796
#define IDC_VORN_STARTUP_TITLE 1001
#define IDC_VORN_STARTUP_COPYRIGHT 1002
#define IDC_VORN_STARTUP_DISCLAIMER 1003
#define IDC_VORN_STARTUP_HIDE 1004
#define IDC_VORN_STARTUP_UPDATE 1005
#define IDC_VORN_STARTUP_AREA 1006

#define IDS_VORN_DISCLAIMER 60320
