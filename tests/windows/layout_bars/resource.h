#pragma once

/* Identifiers of the layout bar tests' resources; also read by the resource compiler. */

#define IDD_LIST_BAR 3201
#define IDC_FIND 1001
#define IDC_AIDS 1002
#define IDC_SHOW 1003
