#pragma once

#define IDD_PLAIN 300
#define IDD_EXTENDED 301
#define IDD_FILLED 302
#define IDC_COMBO 1010
#define IDC_LIST 1011
#define IDC_TEXT 1001
