#pragma once

// Identifiers of the sample's resources and commands.
#define IDR_MAINFRAME 128
#define IDD_ABOUT 130

#define IDS_SAMPLE_TITLE 131
#define IDS_SAMPLE_SUBTITLE 132
#define IDS_SAMPLE_SECONDS 133

#define IDC_ABOUT_VERSIONS 1001

#define ID_VIEW_REFRESH 33000
#define ID_FILE_SAVE_PICTURE 33001
#define ID_PAGE_FIRST 33100
#define ID_PAGE_LAST 33131
#define ID_UNIT_FIRST 34000
#define ID_UNIT_LAST 34511

#define ID_INDICATOR_UNITS 35000
