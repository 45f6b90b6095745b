#pragma once

/* Identifiers of the bar tests' resources; also read by the resource compiler. */

#define IDR_TEST_FRAME 3101
#define IDD_PLAN_BAR 3102
#define IDD_CAPTION_BAR 3103
#define IDD_CUSTOM_BAR 3104
#define IDR_TEST_TOOLBAR 3105

#define ID_TEST_GO 33101
#define ID_TEST_NOBODY 33102
#define ID_TEST_NAME 33103
#define ID_TEST_LIST 33104
#define ID_TEST_ACCEL 33105
#define ID_TEST_NOTE 33106
