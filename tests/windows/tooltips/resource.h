#pragma once

/* Also read by the resource compiler. */
#define IDS_TEST_TWO_FIELDS 3001
#define IDS_TEST_LONG 3002
#define IDS_TEST_PLAIN 3003
#define IDS_TEST_LINES 3004

#define IDD_TEST_BAR 500
#define IDD_TEST_PAGE 501
#define IDC_TEST_NAME 101
#define IDC_TEST_DELETE 102
