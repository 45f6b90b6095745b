#pragma once

#define IDD_FORM 410
#define IDD_OWN_WINDOW 411
#define IDC_LIST 1001
#define IDC_ADD 1002
#define IDC_NAME 1003
