/* Version information of the family's libraries, included by each library's resource script behind
   its VORN_FILE_NAME and VORN_FILE_DESCRIPTION. Read by the resource compiler. */
#include <winver.h>

#define VORN_VERSION 0, 1, 0, 0
#define VORN_VERSION_TEXT "0.1.0"

#ifdef NDEBUG
#define VORN_FILE_FLAGS 0
#else
#define VORN_FILE_FLAGS VS_FF_DEBUG
#endif

VS_VERSION_INFO VERSIONINFO
FILEVERSION VORN_VERSION
PRODUCTVERSION VORN_VERSION
FILEFLAGSMASK VS_FFI_FILEFLAGSMASK
FILEFLAGS VORN_FILE_FLAGS
FILEOS VOS_NT_WINDOWS32
FILETYPE VFT_DLL
FILESUBTYPE VFT2_UNKNOWN
BEGIN
    BLOCK "StringFileInfo"
    BEGIN
        BLOCK "040904E4"
        BEGIN
            VALUE "CompanyName", "Vornwald"
            VALUE "FileDescription", VORN_FILE_DESCRIPTION
            VALUE "FileVersion", VORN_VERSION_TEXT
            VALUE "InternalName", VORN_FILE_NAME
            VALUE "LegalCopyright", "MIT licence"
            VALUE "OriginalFilename", VORN_FILE_NAME
            VALUE "ProductName", "Vornwald family"
            VALUE "ProductVersion", VORN_VERSION_TEXT
        END
    END
    BLOCK "VarFileInfo"
    BEGIN
        VALUE "Translation", 0x409, 1252
    END
END
