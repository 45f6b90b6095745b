#pragma once

/* Also read by the resource compiler. */
#define IDI_TEST_HOST 128
#define IDD_TEST_EMPTY 400
