#pragma once

/* Identifiers of the frame tests' resources; also read by the resource compiler. */

#define IDR_TEST_FRAME 3001
#define IDR_BARE_FRAME 3002
#define IDR_TEST_TOOLBAR 3003

#define ID_TEST_VIEW 33001
#define ID_TEST_FRAME 33002
#define ID_TEST_APP 33003
#define ID_TEST_NOBODY 33004
#define ID_TEST_DOCUMENT 33005
#define ID_TEST_POPUP_ITEM 33006
#define ID_TEST_ALL 33007
#define ID_TEST_PANE 33010
