#pragma once

/* A dialog of the test's own under the number of the library's startup dialog. Read by the resource compiler. */
#define IDD_HOSTS_OWN 1796
#define IDC_HOSTS_OWN 1077
