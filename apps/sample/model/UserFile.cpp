#include "apps/sample/model/UserFile.h"

#include <shlobj.h>

CString UserFile(const char* name)
{
    const CString folder = PathMgr::Instance(AfxGetAppName())->GetPathInst(DP_USERHIDDEN, AfxGetAppName());
    SHCreateDirectoryEx(nullptr, folder, nullptr);
    return folder + name;
}
