#pragma once

/* Identifiers of the briefing's resources. Also read by the resource compiler: plain definitions only. */
#define IDR_BRIEFING 128
#define IDD_BRIEFING 130
#define IDC_BRIEFING_LIST 1001
#define IDC_BRIEFING_TAKE 1002
