#pragma once

/* Identifiers of the frames' own texts and dialogs in the framework's resources. Also read by the resource
   compiler: plain definitions only. */

#define IDS_FRAME_PAGE_NUMBER 0xF181
#define IDS_FRAME_LOSE_CHANGES 0xF182

#define IDD_FRAME_PRINTING 30721
#define IDC_FRAME_DOCUMENT 201
#define IDC_FRAME_PRINTER 202
#define IDC_FRAME_PAGE 204
