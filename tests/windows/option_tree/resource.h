#pragma once

#define IDD_PREFERENCES 420
#define IDC_TREE 1000
#define IDC_SCALE 1001
#define IDC_DUSK 1002
#define IDC_FONT 1003
#define IDC_UNITS 1004
#define IDC_ALWAYS 1005
