#include "files/core/FileExists.h"

#include "framework/core/FileFind.h"

bool FileExists(const char* path)
{
    return path != nullptr && *path != '\0' && CFileFind().FindFile(path);
}
