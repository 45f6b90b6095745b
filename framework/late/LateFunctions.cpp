#include "framework/late/LateFunctions.h"

#include <cstddef>

// The functions themselves, in place of the system's import libraries. A call to a function of the system goes through
// a pointer named __imp__Function@N, N being the bytes of its arguments. Here that pointer stands at the head of a
// LateFunction record and leads, until the function is bound, to code that hands the record to BindLateFunction() and
// goes on into what it returns; return address and arguments lie on the stack all the time as the caller put them.
// A function that is missing here is imported plainly; the test of the imports tells.

static_assert(offsetof(vorn::LateFunction, target) == 0);

#define LATE_FUNCTION(dll, name, bytes) LATE_FUNCTION_NAMED(dll, #name, "_" #name "@" #bytes)
#define LATE_FUNCTION_NAMED(dll, name, symbol)                                                                         \
    __asm__(".section .rdata,\"dr\"\n"                                                                                 \
            "1: .asciz \"" dll "\"\n"                                                                                  \
            "2: .asciz \"" name "\"\n"                                                                                 \
            ".text\n"                                                                                                  \
            ".globl " symbol "\n" symbol ": jmp *__imp_" symbol "\n"                                                   \
            "3: pushl $__imp_" symbol "\n"                                                                             \
            "call _BindLateFunction\n"                                                                                 \
            "addl $4, %esp\n"                                                                                          \
            "jmp *%eax\n"                                                                                              \
            ".data\n"                                                                                                  \
            ".balign 4\n"                                                                                              \
            ".globl __imp_" symbol "\n"                                                                                \
            "__imp_" symbol ": .long 3b, 1b, 2b\n"                                                                     \
            ".text\n")

LATE_FUNCTION("comctl32.dll", CreateMappedBitmap, 20);
LATE_FUNCTION("comctl32.dll", CreatePropertySheetPageA, 4);
LATE_FUNCTION("comctl32.dll", DestroyPropertySheetPage, 4);
LATE_FUNCTION("comctl32.dll", ImageList_Add, 12);
LATE_FUNCTION("comctl32.dll", ImageList_AddMasked, 12);
LATE_FUNCTION("comctl32.dll", ImageList_Create, 20);
LATE_FUNCTION("comctl32.dll", ImageList_Destroy, 4);
LATE_FUNCTION("comctl32.dll", ImageList_Draw, 24);
LATE_FUNCTION("comctl32.dll", ImageList_Duplicate, 4);
LATE_FUNCTION("comctl32.dll", ImageList_GetBkColor, 4);
LATE_FUNCTION("comctl32.dll", ImageList_GetIcon, 12);
LATE_FUNCTION("comctl32.dll", ImageList_GetImageCount, 4);
LATE_FUNCTION("comctl32.dll", ImageList_GetImageInfo, 12);
LATE_FUNCTION("comctl32.dll", ImageList_LoadImageA, 28);
LATE_FUNCTION("comctl32.dll", ImageList_Remove, 8);
LATE_FUNCTION("comctl32.dll", ImageList_Replace, 16);
LATE_FUNCTION("comctl32.dll", ImageList_ReplaceIcon, 12);
LATE_FUNCTION("comctl32.dll", ImageList_SetBkColor, 8);
LATE_FUNCTION("comctl32.dll", ImageList_SetImageCount, 8);
LATE_FUNCTION("comctl32.dll", ImageList_SetOverlayImage, 12);
LATE_FUNCTION("comctl32.dll", InitCommonControlsEx, 4);
LATE_FUNCTION("comctl32.dll", PropertySheetA, 4);

LATE_FUNCTION("comdlg32.dll", ChooseColorA, 4);
LATE_FUNCTION("comdlg32.dll", ChooseFontA, 4);
LATE_FUNCTION("comdlg32.dll", CommDlgExtendedError, 0);
LATE_FUNCTION("comdlg32.dll", GetOpenFileNameA, 4);
LATE_FUNCTION("comdlg32.dll", GetSaveFileNameA, 4);
LATE_FUNCTION("comdlg32.dll", PrintDlgA, 4);

LATE_FUNCTION("shell32.dll", DragAcceptFiles, 8);
LATE_FUNCTION("shell32.dll", SHBrowseForFolderA, 4);
LATE_FUNCTION("shell32.dll", SHGetDesktopFolder, 4);
LATE_FUNCTION("shell32.dll", SHGetFolderPathA, 20);
LATE_FUNCTION("shell32.dll", SHGetMalloc, 4);
LATE_FUNCTION("shell32.dll", SHGetPathFromIDListA, 8);
LATE_FUNCTION("shell32.dll", ShellExecuteA, 24);

LATE_FUNCTION("crypt32.dll", CryptProtectData, 28);
LATE_FUNCTION("crypt32.dll", CryptUnprotectData, 28);

LATE_FUNCTION("ole32.dll", CoInitialize, 4);
LATE_FUNCTION("ole32.dll", CoTaskMemFree, 4);
LATE_FUNCTION("ole32.dll", CoUninitialize, 0);
LATE_FUNCTION("ole32.dll", OleInitialize, 4);
LATE_FUNCTION("ole32.dll", OleUninitialize, 0);

LATE_FUNCTION("oleaut32.dll", SystemTimeToVariantTime, 8);
LATE_FUNCTION("oleaut32.dll", VariantTimeToSystemTime, 12);
