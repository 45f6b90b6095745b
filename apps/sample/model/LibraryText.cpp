#include "apps/sample/model/LibraryText.h"

#include <VornCommon.h>

std::string LibraryText(unsigned id)
{
    CString text;
    AfxLoadString(id, text);
    return text.GetString();
}
