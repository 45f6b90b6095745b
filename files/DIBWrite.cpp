#include "files/DIB.h"
#include "files/core/ImageFile.h"
#include "files/core/NoThrow.h"

bool DIB::WriteBMP(const char* path) const
{
    return m_info && vorn::NoThrow(false,
                                   [&]
                                   {
                                       return vorn::WriteBmpFile(path, m_info->bmiHeader, View());
                                   });
}
