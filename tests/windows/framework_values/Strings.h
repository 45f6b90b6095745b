#pragma once

// Identifiers of the string table of this test program.
#define IDS_VALUES_PLAIN 61001
#define IDS_VALUES_FORMAT 61002
#define IDS_VALUES_LONG 61003
#define IDS_VALUES_DEGREE 61004
#define IDS_VALUES_NONE 61005
